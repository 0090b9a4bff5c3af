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

void ScriptDialogs::Confirm(const std::string& title, const std::string& text,
                            platform::MessageIcon icon, std::function<void()> confirmed) {
    Message(title, text, icon);
    confirmed();
}

void ScriptDialogs::LastMessage(const std::string& text) {
    Write("message", ProgramName, text);
}

void ScriptDialogs::Ask(const char* kind, const std::string& what, const Answer& answer) {
    auto text = NextAnswer();
    Write(kind, what, text.value_or(""));
    answer(std::move(text));
}

void ScriptDialogs::Prompt(const std::string& text, const std::string&, Answer answer) {
    Ask("prompt", text, answer);
}

void ScriptDialogs::AskFile(const platform::FileQuestion& question, Answer answer) {
    Ask("dialog", question.title, answer);
}

void ScriptDialogs::CopyText(const std::string& text) {
    clipboard_ = text;
    output_.Line("clipboard: " + OneLine(text));
}

platform::ScreenSize ScriptDialogs::Screen() {
    constexpr int twipsPerPixel = 15;
    return {1280 * twipsPerPixel, 800 * twipsPerPixel};
}

void ScriptDialogs::OpenHelp(const platform::HelpPage& page) {
    Write("help", page.compiledFile, std::to_string(page.topic));
}

void ScriptDialogs::OpenAddress(const std::string& address) {
    output_.Line("open: " + OneLine(address));
}

}  // namespace kelvra::console
