// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/script_dialogs.h"

namespace kelvra::console {

namespace {
constexpr const char* ProgramName = "Kelvra";
}  // namespace

void ScriptDialogs::Write(const char* kind, const std::string& what, const std::string& answer) {
    output_.Line(std::string(kind) + ": " + OneLine(what) + " | " + OneLine(answer));
}

std::optional<std::string> ScriptDialogs::NextAnswer() {
    if (answers_.empty()) return std::nullopt;
    std::optional<std::string> answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

void ScriptDialogs::Message(const std::string& title, const std::string& text,
                            platform::MessageIcon) {
    Write("message", title.empty() ? ProgramName : title, text);
}

std::optional<std::string> ScriptDialogs::Prompt(const std::string& text, const std::string&) {
    auto answer = NextAnswer();
    Write("prompt", text, answer.value_or(""));
    return answer;
}

std::optional<std::string> ScriptDialogs::AskFile(const platform::FileQuestion& question) {
    auto answer = NextAnswer();
    Write("dialog", question.title, answer.value_or(""));
    return answer;
}

void ScriptDialogs::OpenHelp(const std::string& file, int topic) {
    Write("help", file, std::to_string(topic));
}

}  // namespace kelvra::console
