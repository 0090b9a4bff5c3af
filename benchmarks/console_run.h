// SPDX-License-Identifier: GPL-3.0-or-later
// The whole console in this process, on the computer's clock, with lines from a function instead of
// a file, and with sensors that cost nothing.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "console/script.h"
#include "instant_sensors.h"
#include "platform/native.h"
#include "support/temp_folder.h"

namespace kelvra::benchmarks {

// Gives the next line. Nothing if there is none yet; then it has waited as standard input does.
using NextLine = std::function<std::optional<std::string>(platform::Duration patience)>;

class Lines final : public platform::LineInput {
public:
    explicit Lines(NextLine next) : next_(std::move(next)) {}
    Result Read(std::string& line, platform::Duration patience) override {
        const auto next = next_(patience);
        if (!next) return Result::NotYet;
        line = *next;
        return line.empty() ? Result::End : Result::Line;
    }

private:
    NextLine next_;
};

// The computer's clock without sleeping: instant sensors need no pauses.
class SleeplessClock final : public platform::Clock {
public:
    platform::LocalTime Now() override { return inner_->Now(); }
    platform::LocalTime At(platform::Duration moment) override { return inner_->At(moment); }
    platform::Duration Monotonic() override { return inner_->Monotonic(); }
    void Sleep(platform::Duration) override {}

private:
    std::unique_ptr<platform::Clock> inner_ = platform::NativeClock();
};

class ConsoleRun {
public:
    // An empty line ends the run.
    ConsoleRun(platform::Clock& clock, NextLine next)
        : clock_(clock),
          lines_(std::move(next)),
          script_({kelvra, lines_, dialogs_, output_, output_, clock_, false, false}) {
        events_.Connect(script_);
        kelvra.Start();
    }

    // True when no command failed.
    bool Run() {
        events_.Run();
        return !script_.Failed();
    }

private:
    test::TempFolder folder_;
    std::error_code noFolder_;
    platform::Clock& clock_;
    std::unique_ptr<platform::Files> files_ = platform::NativeFiles();
    std::unique_ptr<platform::Computer> computer_ = platform::NativeComputer(
        *files_, {folder_.Path(), folder_.Path(), {}, {"Kelvra", 1, 0, 0}}, noFolder_);
    console::Output output_{stderr};
    console::ScriptDialogs dialogs_{output_};
    console::ScriptEvents events_{clock_, nullptr};
    util::Random random_{1};
    platform::Host host_{events_, dialogs_, clock_, *files_, *computer_, random_};
    Lines lines_;

public:
    app::Kelvra kelvra{host_};

private:
    console::Script script_;
};

}  // namespace kelvra::benchmarks
