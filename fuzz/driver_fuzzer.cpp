// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the whole program with a driver and a device list that take their answers from the input:
// sensors come and go; measurements start, run for a few rounds and end.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "app/kelvra.h"
#include "memory_files.h"
#include "support/fake_driver.h"
#include "support/fake_host.h"

namespace {

using namespace kelvra;

class Input {
public:
    explicit Input(std::string_view bytes) : bytes_(bytes) {}

    bool Empty() const { return bytes_.empty(); }

    std::string_view Take(std::size_t size) {
        const std::string_view taken = bytes_.substr(0, size);
        bytes_.remove_prefix(taken.size());
        return taken;
    }
    // 0 when the input is used up.
    template <class Number>
    Number Take() {
        Number number{};
        const std::string_view bytes = Take(sizeof number);
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }
    std::string Text() { return std::string(Take(Take<std::uint8_t>())); }

private:
    std::string_view bytes_;
};

class OddDriver {
public:
    explicit OddDriver(Input& input) : input_(input) {
        driver_.status = [this](std::string_view, int) { return Status(); };
        driver_.onCall = [this](std::string_view) { Change(); };
        driver_.complete = [this](int) {
            return input_.Empty() || input_.Take<std::uint8_t>() % 4;
        };
        for (int i = 0; i < 3; ++i) ChangeDevice(static_cast<std::size_t>(i));
    }

private:
    // Mostly success; always success once the input is used up.
    driver::Status Status() {
        return input_.Take<std::uint8_t>() % 16 == 1 ? input_.Take<driver::Status>() : 0;
    }
    void Change() {
        driver_.calls.clear();
        switch (input_.Take<std::uint8_t>() % 32) {
            case 1:
                driver_.reading = input_.Take<double>();
                break;
            case 2:
                driver_.averagingCount = input_.Take<std::int32_t>();
                break;
            case 3:
                driver_.arrayCount = input_.Take<std::int32_t>();
                break;
            case 4:
                driver_.array.assign(input_.Take<std::uint16_t>(), input_.Take<double>());
                break;
            case 5:
                driver_.message = input_.Text();
                break;
            case 6:
                driver_.query = input_.Text();
                break;
            case 7:
                driver_.terminated = !driver_.terminated;
                break;
            case 8:
                driver_.handle = input_.Take<driver::Handle>();
                break;
            case 9:
                driver_.listLength = input_.Take<std::int32_t>();
                break;
            case 10:
                driver_.listLength.reset();
                break;
            case 11:
                ChangeDevice(input_.Take<std::uint8_t>() % 5U);
                break;
            case 12:
                driver_.message = "Parameter 1 out of range";
                break;
            default:
                break;
        }
    }
    void ChangeDevice(std::size_t index) {
        constexpr const char* types[] = {"PS-101", "PS-102", "PS-118", "PS-110"};
        auto& devices = driver_.devices;
        if (index >= devices.size()) devices.resize(index + 1);
        const auto kind = input_.Take<std::uint8_t>();
        devices[index].connected = kind % 3 == 2 ? 0 : 1;
        devices[index].type = kind > 128 ? input_.Text() : types[kind % 4];
        devices[index].serial = kind > 128 ? input_.Text() : std::to_string(index);
        devices[index].name = kind % 5 == 0 ? input_.Text() : "name";
    }

    test::FakeDriver driver_;
    Input& input_;
};

// Does what a user might do, now and then.
void Act(app::Kelvra& kelvra, Input& input) {
    sensors::SensorTable& table = kelvra.table;
    sensors::SensorEntry& entry = table[input.Take<std::uint8_t>() % table.Slots()];
    forms::MDIMain& window = kelvra.forms.mdiMain;
    switch (input.Take<std::uint8_t>() % 8) {
        case 1:
            window.StopIt.Press();
            break;
        case 2:
            window.StartIt.Press();
            break;
        case 3:
            entry.settingsChanged = true;
            break;
        case 4:
            entry.triggerNowRequest = true;
            break;
        case 5:
            entry.settings.Mode = input.Take<std::int32_t>() % 6;
            break;
        case 6:
            entry.settings.TSlotCount = input.Take<std::int16_t>();
            break;
        case 7:
            kelvra.forms.statusForm.ResultGrid.click.Raise(input.Take<std::uint8_t>() % 12, 0);
            break;
        default:
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int mostRounds = 300;
    constexpr auto searchInterval = std::chrono::milliseconds(500);
    Input input({reinterpret_cast<const char*>(data), size});
    OddDriver driver(input);
    fuzz::MemoryFiles files;
    test::FakeHost fake(files);
    fake.computer.folder = "/folder";
    fake.computer.commandLine = input.Take<std::uint8_t>() % 4 == 0 ? "DEBUG" : "";
    fake.computer.libraries = {{"psdrv_32", test::FakeDriver::InstrumentFunctions()},
                               {"TeskControl2", test::FakeDriver::DeviceListFunctions()}};
    app::Kelvra kelvra(fake.host);
    kelvra.Start();
    forms::MDIMain& window = kelvra.forms.mdiMain;
    fake.events.onRound = [&](int round) {
        if (round > mostRounds)
            kelvra.Exit();
        else if (input.Empty())
            window.StopIt.Press();
        else
            Act(kelvra, input);
    };
    for (int start = 0; start < 3; ++start) {
        window.StartIt.Press();
        window.StopIt.Press();
        for (int tick = 0; tick < 2; ++tick) {
            fake.clock.Advance(searchInterval);
            fake.events.DoEvents({});
        }
    }
    kelvra.Exit();
    if (!kelvra.state.exiting || kelvra.state.commandRuns || kelvra.session.instrumentHandle != 0)
        std::abort();
    return 0;
}
