// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes, prompts and file dialogs of the toolkit, over the main window. None of them keeps
// the program waiting, but for the last message before its end.
#pragma once

#include <QPointer>
#include <QWidget>
#include <deque>

#include "platform/dialogs.h"

class QMessageBox;

namespace kelvra::desktop {

class QtDialogs final : public platform::Dialogs {
public:
    // The window that dialogs stand over; none before it is there.
    void SetParent(QWidget* parent) { parent_ = parent; }

    // One box at a time: a message waits until the one before has been confirmed.
    void Message(const std::string& title, const std::string& text,
                 platform::MessageIcon icon) override;
    void LastMessage(const std::string& text) override;
    void Prompt(const std::string& text, const std::string& proposed, Answer answer) override;
    void AskFile(const platform::FileQuestion& question, Answer answer) override;
    void OpenHelp(const std::string& file, int topic) override;
    platform::ScreenSize Screen() override;

private:
    void ShowNext();

    QPointer<QWidget> parent_;
    QPointer<QMessageBox> shown_;
    std::deque<QMessageBox*> waiting_;  // their parent's
};

// "Text (*.txt)|*.txt|All files (*.*)|*.*" as the toolkit has it: "Text (*.txt);;All files (*)".
QString ToolkitFilter(const std::string& filter);

}  // namespace kelvra::desktop
