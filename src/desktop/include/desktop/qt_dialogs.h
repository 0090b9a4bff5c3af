// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes, prompts and file dialogs of the toolkit, over the main window. None of them blocks
// the program, except for the last message before its end.
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
    QtDialogs() = default;
    ~QtDialogs() override { Drop(); }
    QtDialogs(const QtDialogs&) = delete;
    QtDialogs& operator=(const QtDialogs&) = delete;

    // The window that dialogs are shown over. Messages wait until it is set.
    void SetParent(QWidget& parent);

    // Closes all dialogs; their answers are no longer needed.
    void Drop();

    // One box at a time: a message waits until the user has confirmed the one before.
    void Message(const std::string& title, const std::string& text,
                 platform::MessageIcon icon) override;
    void LastMessage(const std::string& text) override;
    void Prompt(const std::string& text, const std::string& proposed, Answer answer) override;
    void AskFile(const platform::FileQuestion& question, Answer answer) override;
    void OpenHelp(const std::string& file, int topic) override;
    platform::ScreenSize Screen() override;

private:
    struct WaitingMessage {
        std::string title, text;
        platform::MessageIcon icon;
    };

    void ShowNext();
    // Shows the dialog. It reports its result and then deletes itself.
    void Open(QDialog& dialog, std::function<void(bool accepted)> finished);

    QPointer<QWidget> parent_;
    std::vector<QPointer<QDialog>> open_;
    std::deque<WaitingMessage> waiting_;
    bool showsMessage_ = false;
};

// Turns "Text (*.txt)|*.txt|All files (*.*)|*.*" into the toolkit's form: "Text (*.txt);;All files
// (*)".
QString ToolkitFilter(const std::string& filter);

}  // namespace kelvra::desktop
