// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/script.h"

#include <chrono>

#include "platform/native.h"
#include "util/number_text.h"

namespace kelvra::console {

using platform::LineInput;

namespace {

// Comments and empty lines are not commands and take no round.
bool IsRemark(const std::string& line) {
    const auto start = line.find_first_not_of(' ');
    return start == std::string::npos || line[start] == '#';
}

}  // namespace

Script::Script(const ScriptParts& parts)
    : p_(parts),
      waiting_(parts.kelvra.state, parts.clock),
      context_{parts.kelvra, parts.dialogs, parts.output, waiting_} {}

bool Script::Step(platform::Duration patience) {
    if (ended_) return false;
    switch (waiting_.At()) {
        case Waiting::Look::Wait:
            if (!p_.ownClock) p_.clock.Sleep(patience);
            return false;
        case Waiting::Look::Ended:
            Fail("the measurement ended before the passes were complete");
            return true;
        case Waiting::Look::TimedOut:
            Fail("the time ran out before the passes were complete");
            return true;
        case Waiting::Look::GoOn:
            break;
    }
    std::string line;
    LineInput::Result result = LineInput::Result::Line;
    do {
        result = ReadLine(line, patience);
        if (result == LineInput::Result::Line) ++lineNumber_;
    } while (result == LineInput::Result::Line && IsRemark(line));
    switch (result) {
        case LineInput::Result::Line:
            Run(line);
            return true;
        case LineInput::Result::NotYet:
            return false;
        case LineInput::Result::End:
            End();
            return true;
        case LineInput::Result::TooLong:
            ++lineNumber_;
            Fail("the line is longer than " +
                 util::TrimmedNumberText(std::int64_t{LineInput::LongestLine >> 20}) + " MiB");
            return true;
        case LineInput::Result::Failed:
            ++lineNumber_;
            Fail("the line could not be read");
            return true;
    }
    return false;
}

LineInput::Result Script::ReadLine(std::string& line, platform::Duration patience) {
    constexpr platform::Duration untilItComes = std::chrono::hours(1);
    if (!p_.ownClock) return p_.input.Read(line, patience);
    LineInput::Result result = LineInput::Result::NotYet;
    while (result == LineInput::Result::NotYet && !EndRequested())
        result = p_.input.Read(line, untilItComes);
    return result;
}

void Script::Run(const std::string& line) {
    if (p_.echo) p_.output.Line("> " + line);
    const int number = lineNumber_;
    if (const CommandError error = RunCommand(context_, line)) {
        lineNumber_ = number;  // the command may have run others
        Fail(*error);
    }
}

void Script::Fail(const std::string& why) {
    if (failed_) return;
    failed_ = true;
    p_.errors.Line("error: " + util::TrimmedNumberText(std::int64_t{lineNumber_}) + ": " + why);
    End();
}

bool Script::EndRequested() const {
    return platform::TerminationRequested() || !p_.output.Good();
}

void Script::End() {
    if (ended_) return;
    ended_ = true;
    interrupted_ = EndRequested();
    if (context_.typedInto != nullptr) std::exchange(context_.typedInto, nullptr)->Leave();
    p_.kelvra.Exit();
}

}  // namespace kelvra::console
