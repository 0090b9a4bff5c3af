// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <chrono>

#include "util/number_reading.h"

namespace kelvra::console {

namespace {

constexpr int WrongUsage = 2;

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
    const platform::LocalTime time{number(0, 4),  number(5, 2),  number(8, 2), number(11, 2),
                                   number(14, 2), number(17, 2), 0};
    using namespace std::chrono;
    const year_month_day date{year{time.year}, month(static_cast<unsigned>(time.month)),
                              day(static_cast<unsigned>(time.day))};
    const bool valid = date.ok() && time.hour < 24 && time.minute < 60 && time.second < 60;
    return valid ? std::optional(time) : std::nullopt;
}

// Words that no option took: the command line, and the script as the last of them.
std::string TakeWords(std::vector<std::string> words, Options& options) {
    for (const std::string& word : words)
        if (word.rfind("--", 0) == 0) return "unknown option " + word;
    if (words.empty()) return {};
    options.script = words.back();
    words.pop_back();
    options.commandLine = std::move(words);
    return {};
}

}  // namespace

ParsedOptions ParseOptions(int argc, const char* const* argv) {
    Options options;
    std::string clock;
    std::uint64_t seed = 0;
    CLI::App app("Kelvra without a display, driven by a script.", "kelvra-console");
    app.add_option("--driver-dir", options.driverDir, "folder with the two driver libraries");
    app.add_option("--data-dir", options.dataDir, "folder of settings, log and registry");
    auto* clockOption = app.add_option("--clock", clock, "own clock: \"YYYY-MM-DD HH:MM:SS\"");
    auto* seedOption = app.add_option("--seed", seed, "seed of the random numbers");
    app.add_flag("--echo", options.echo, "write each command before it is carried out");
    app.allow_extras();
    app.footer("[words of the command line...] [SCRIPT | -]");
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success&) {
        return {std::nullopt, 0, app.help()};
    } catch (const CLI::ParseError& error) {
        return {std::nullopt, WrongUsage, error.what()};
    }
    if (clockOption->count() > 0) {
        options.clock = ParseClock(clock);
        if (!options.clock)
            return {std::nullopt, WrongUsage, "--clock wants \"YYYY-MM-DD HH:MM:SS\""};
    }
    if (seedOption->count() > 0) options.seed = seed;
    if (std::string wrong = TakeWords(app.remaining(), options); !wrong.empty())
        return {std::nullopt, WrongUsage, std::move(wrong)};
    return {std::move(options), 0, {}};
}

}  // namespace kelvra::console
