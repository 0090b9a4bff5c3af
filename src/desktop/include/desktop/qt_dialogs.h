// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes, prompts and file dialogs of the toolkit, over the main window.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs.h"

namespace kelvra::desktop {

class QtDialogs final : public platform::Dialogs {
public:
    // The window that dialogs stand over; none before it is there.
    void SetParent(QWidget* parent) { parent_ = parent; }

    void Message(const std::string& title, const std::string& text,
                 platform::MessageIcon icon) override;
    std::optional<std::string> Prompt(const std::string& text,
                                      const std::string& proposed) override;
    std::optional<std::string> AskFile(const platform::FileQuestion& question) override;
    void OpenHelp(const std::string& file, int topic) override;

private:
    QPointer<QWidget> parent_;
};

// "Text (*.txt)|*.txt|All files (*.*)|*.*" as the toolkit has it: "Text (*.txt);;All files (*)".
QString ToolkitFilter(const std::string& filter);

}  // namespace kelvra::desktop
