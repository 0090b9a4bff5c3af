// SPDX-License-Identifier: GPL-3.0-or-later
// One sensor's settings written to and read from an INI file of fifty sensors, compared with a
// plain write, sync, rename and read of the same bytes in the same folder. Once in the system's
// temporary folder, once in memory, where the disk hides nothing.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "platform/file_tools.h"
#include "platform/native.h"
#include "sensors/settings_fields.h"
#include "sensors/settings_file.h"
#include "support/temp_folder.h"
#include "util/number_text.h"

namespace {

using namespace kelvra;
using platform::Files;
using sensors::Transfer;

constexpr int SensorsInFile = 50;
constexpr const char* MemoryFolder = "/dev/shm";

std::string SensorId(int number) {
    return "PS-101;" + util::TrimmedNumberText(std::int64_t{100000 + number});
}

// The text of a file that holds the sensors with settings near the defaults.
std::string FileText() {
    platform::ProfileText text;
    for (int number = 0; number < SensorsInFile; ++number) {
        sensors::SensorSettings settings = sensors::DefaultSettings();
        settings.TrigLevel = -number - 0.1;
        sensors::TransferSettings(settings, text, SensorId(number), Transfer::Write);
    }
    return text.Bytes();
}

// Changes every value of the block.
void ChangeAll(sensors::SensorSettings& settings) {
    for (const sensors::SettingsField& field : sensors::SettingsFields())
        std::visit(
            [&](auto member) {
                auto& value = settings.*member;
                if constexpr (std::is_same_v<decltype(value), bool&>)
                    value = !value;
                else
                    value = static_cast<std::remove_reference_t<decltype(value)>>(
                        value > 1000 ? 1 : value + 1);
            },
            field.member);
}

// A file in the folder of a benchmark's argument: 0 the temporary one, 1 the one in memory.
std::string PathIn(const benchmark::State& state, const test::TempFolder& folder) {
    if (state.range(0) == 0) return folder.Path("Kelvra.INI");
    return std::string(MemoryFolder) + "/" +
           std::filesystem::path(folder.Path()).filename().string() + ".INI";
}

void Transferred(benchmark::State& state) {
    const auto files = platform::NativeFiles();
    const test::TempFolder folder;
    const std::string path = PathIn(state, folder);
    if (platform::ReplaceFile(*files, path, FileText())) state.SkipWithError("no file");
    sensors::SensorSettings settings = sensors::DefaultSettings();
    sensors::SensorSettings back = settings;
    for (auto _ : state) {
        ChangeAll(settings);
        settings.ContMeas = false;
        const auto id = SensorId(SensorsInFile / 2);
        if (sensors::TransferSettings(settings, *files, path, id, Transfer::Write) ||
            sensors::TransferSettings(back, *files, path, id, Transfer::Read) || back != settings)
            state.SkipWithError("what was read is not what was written");
    }
    files->Remove(path);
}

void PlainFile(benchmark::State& state) {
    const auto files = platform::NativeFiles();
    const test::TempFolder folder;
    const std::string path = PathIn(state, folder);
    const std::string temporary = path + ".new";
    const std::string bytes = FileText();
    std::string back;
    for (auto _ : state) {
        Files::Handle handle = -1;
        std::size_t written = 0;
        const bool failed = files->Open(temporary, Files::Mode::Create, handle) ||
                            files->Write(handle, bytes, written) || files->Sync(handle) ||
                            files->Close(handle) || files->Rename(temporary, path) ||
                            platform::ReadWholeFile(*files, path, back);
        if (failed || back != bytes) state.SkipWithError("the file is not what was written");
    }
    files->Remove(path);
}

}  // namespace

BENCHMARK(PlainFile)
    ->ArgName("inMemory")
    ->DenseRange(0, 1)
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Transferred)
    ->ArgName("inMemory")
    ->DenseRange(0, 1)
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
