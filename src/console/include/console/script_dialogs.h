// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes, prompts and file dialogs of a run without a user: written as lines, and answered
// from a queue that the script fills. A dialog without an answer counts as cancelled.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "console/output.h"
#include "platform/dialogs.h"

namespace kelvra::console {

class ScriptDialogs final : public platform::Dialogs {
public:
    explicit ScriptDialogs(Output& output) : output_(output) {}

    // An answer of nothing cancels.
    void Queue(std::optional<std::string> answer) { answers_.push_back(std::move(answer)); }

    void Message(const std::string& title, const std::string& text,
                 platform::MessageIcon icon) override;
    void Confirm(const std::string& title, const std::string& text, platform::MessageIcon icon,
                 std::function<void()> confirmed) override;
    void LastMessage(const std::string& text) override;
    void Prompt(const std::string& text, const std::string& proposed, Answer answer) override;
    // The filter's pair is the one whose pattern ends the path with the most characters; the
    // preselected one if no other is better.
    void AskFile(const platform::FileQuestion& question, FileAnswer answer) override;
    void CopyText(const std::string& text) override;
    void OpenHelp(const platform::HelpPage& page) override;
    void OpenAddress(const std::string& address) override;
    void OpenFolder(const std::string& path) override { OpenAddress(path); }
    const std::string& Clipboard() const { return clipboard_; }  // the text that was copied last
    // Always the same, so that a script gives the same output everywhere.
    platform::ScreenSize Screen() override;

private:
    std::optional<std::string> NextAnswer();
    void Ask(const char* kind, const std::string& what, const Answer& answer);
    void Write(const char* kind, const std::string& what, const std::string& answer);

    Output& output_;
    std::deque<std::optional<std::string>> answers_;
    std::string clipboard_;
};

}  // namespace kelvra::console
