// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/script_dialogs.h"

#include <string_view>

#include "util/text.h"

namespace kelvra::console {

namespace {
constexpr const char* ProgramName = "Kelvra";

int FilterOf(const platform::FileQuestion& question, std::string_view path) {
    int best = question.filterIndex;
    std::size_t length = 0;
    std::string_view rest = question.filter;
    for (int index = 1; !rest.empty(); ++index) {
        const util::SplitText name = util::SplitAtFirst(rest, '|');
        const util::SplitText pattern = util::SplitAtFirst(name.after, '|');
        rest = pattern.after;
        const std::string_view suffix = util::SplitAtFirst(pattern.before, '*').after;
        if (!path.ends_with(suffix) || suffix.size() < length) continue;
        if (suffix.size() > length || index == question.filterIndex) best = index;
        length = suffix.size();
    }
    return best;
}

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

void ScriptDialogs::AskFile(const platform::FileQuestion& question, FileAnswer answer) {
    Ask("dialog", question.title, [&](std::optional<std::string> path) {
        if (!path) return answer(std::nullopt);
        const int filter = FilterOf(question, *path);
        answer(platform::ChosenFile{std::move(*path), filter});
    });
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
