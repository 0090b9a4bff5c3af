// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/options.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <string_view>

#include "options/version.h"
#include "util/number_reading.h"
#include "util/text.h"

namespace kelvra::options {

namespace {

// "2005-03-07 12:00:00"
std::optional<platform::LocalTime> ParseClock(const std::string& text) {
    constexpr std::string_view pattern = "dddd-dd-dd dd:dd:dd";
    if (text.size() != pattern.size()) return std::nullopt;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (pattern[i] == 'd' ? !digit : text[i] != pattern[i]) return std::nullopt;
    }
    const auto number = [&](std::size_t at, std::size_t length) {
        return static_cast<int>(*util::ReadWholeNumber(text.substr(at, length)));
    };
    const platform::LocalTime time{
        number(0, 4), number(5, 2), number(8, 2), number(11, 2), number(14, 2), number(17, 2), 0};
    using namespace std::chrono;
    const year_month_day date{year{time.year}, month(static_cast<unsigned>(time.month)),
                              day(static_cast<unsigned>(time.day))};
    const bool valid = date.ok() && time.hour < 24 && time.minute < 60 && time.second < 60;
    return valid ? std::optional(time) : std::nullopt;
}

std::optional<std::uint64_t> ParseSeed(const std::string& text) {
    std::uint64_t seed = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, seed);
    return result.ec == std::errc{} && result.ptr == end ? std::optional(seed) : std::nullopt;
}

Parsed Wrong(const Program& program, const std::string& why) {
    const std::string name = program.name;
    return {std::nullopt, WrongUsage, name + ": " + why + "; see " + name + " --help"};
}

// "kelvra 1.2.3"
std::string VersionText(const Program& program) {
    const platform::ProgramVersion version = Version();
    return std::string(program.name) + ' ' + std::to_string(version.major) + '.' +
           std::to_string(version.minor) + '.' + std::to_string(version.revision);
}

}  // namespace

Parsed Parse(int argc, const char* const* argv, const Program& program) {
    Options options;
    std::string clock;
    std::string seed;
    CLI::App app(program.description, program.name);
    app.add_option("--driver-dir", options.driverDir, "folder with the two driver libraries")
        ->type_name("DIR");
    app.add_option("--data-dir", options.dataDir, "folder for settings, log and names")
        ->type_name("DIR");
    auto* clockOption =
        app.add_option("--clock", clock, "start of Kelvra's own clock: \"YYYY-MM-DD HH:MM:SS\"");
    clockOption->type_name("START");
    auto* seedOption = app.add_option("--seed", seed, "seed for the random numbers");
    seedOption->type_name("N");
    if (program.hasScript)
        app.add_flag("--echo", options.echo, "write each command before it runs");
    app.allow_extras();
    app.set_version_flag("--version", VersionText(program), "print the version and exit");
    app.footer(program.footer);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& version) {
        return {std::nullopt, 0, version.what()};
    } catch (const CLI::Success&) {
        return {std::nullopt, 0, app.help()};
    } catch (const CLI::ParseError& error) {
        return Wrong(program, error.what());
    }
    if (clockOption->count() > 0) {
        options.clock = ParseClock(clock);
        if (!options.clock) return Wrong(program, "--clock needs \"YYYY-MM-DD HH:MM:SS\"");
    }
    if (seedOption->count() > 0) {
        options.seed = ParseSeed(seed);
        if (!options.seed) return Wrong(program, "--seed needs a whole number, 0 or more");
    }
    options.words = app.remaining();
    for (const std::string& word : options.words)
        if (word.starts_with("--")) return Wrong(program, "unknown option " + word);
    return {std::move(options), 0, {}};
}

int Report(const Parsed& ended) {
    std::FILE* file = ended.exitStatus == 0 ? stdout : stderr;
    const std::string line = util::ShownText(ended.message) + "\n";
    const bool written =
        std::fwrite(line.data(), 1, line.size(), file) == line.size() && std::fflush(file) == 0;
    return written || ended.exitStatus != 0 ? ended.exitStatus : NotWritten;
}

}  // namespace kelvra::options
