// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes, prompts and file dialogs of the toolkit, over the main window. None of them keeps
// the program waiting, but for the last message before its end.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QWidget>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace kelvra::desktop {

class QtDialogs final : public platform::Dialogs {
public:
    // The window that dialogs are shown over. Messages wait until it is there.
    void SetParent(QWidget& parent);

    // Takes all dialogs away: nobody is there any more to hear their answers.
    void Drop();

    // One box at a time: a message waits until the one before has been confirmed. A message that is
    // shown or waits is not said twice.
    void Message(const std::string& title, const std::string& text,
                 platform::MessageIcon icon) override;
    // A box with a continuation is always shown.
    void Confirm(const std::string& title, const std::string& text, platform::MessageIcon icon,
                 std::function<void()> confirmed) override;
    void LastMessage(const std::string& text) override;
    void Prompt(const std::string& text, const std::string& proposed, Answer answer) override;
    void AskFile(const platform::FileQuestion& question, FileAnswer answer) override;
    void CopyText(const std::string& text) override;
    // In the system's browser, or in its viewer for compiled help.
    void OpenHelp(const platform::HelpPage& page) override;
    void OpenAddress(const std::string& address) override;
    void OpenFolder(const std::string& path) override;
    platform::ScreenSize Screen() override;

private:
    struct WaitingMessage {
        std::string title, text;
        platform::MessageIcon icon{};
        std::function<void()> confirmed{};

        bool SaysTheSame(const WaitingMessage& other) const {
            return title == other.title && text == other.text && icon == other.icon;
        }
    };

    void ShowNext();
    // Deletes itself when it is finished, which is reported before.
    void Open(QDialog& dialog, std::function<void(bool accepted)> finished);
    void OpenUrl(const QUrl& url, const std::string& shown);

    QPointer<QWidget> parent_;
    std::vector<QPointer<QDialog>> open_;
    std::deque<WaitingMessage> waiting_;
    std::optional<WaitingMessage> shown_;
};

// "Text (*.txt)|*.txt|All files (*.*)|*.*" as the toolkit has it: "Text (*.txt);;All files (*)".
QString ToolkitFilter(const std::string& filter);

}  // namespace kelvra::desktop
