// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/qt_dialogs.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QUrl>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr int PromptWidth = 480;  // a formula is longer than a usual answer

QMessageBox::Icon ToolkitIcon(platform::MessageIcon icon) {
    switch (icon) {
        case platform::MessageIcon::Information:
            return QMessageBox::Information;
        case platform::MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case platform::MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void QtDialogs::Message(const std::string& title, const std::string& text,
                        platform::MessageIcon icon) {
    QMessageBox box(ToolkitIcon(icon),
                    title.empty() ? QCoreApplication::applicationName() : Shown(title),
                    Shown(text).replace("\r\n", "\n"), QMessageBox::Ok, parent_);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::optional<std::string> QtDialogs::Prompt(const std::string& text, const std::string& proposed) {
    QInputDialog dialog(parent_);
    dialog.setWindowTitle(QCoreApplication::applicationName());
    dialog.setLabelText(Shown(text));
    dialog.setTextValue(Shown(proposed));
    dialog.resize(PromptWidth, dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return Bytes(dialog.textValue());
}

QString ToolkitFilter(const std::string& filter) {
    const QStringList parts = Shown(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section('(', 0, 0).trimmed();
        const QString pattern = parts[i + 1] == "*.*" ? "*" : parts[i + 1];
        filters << name + " (" + pattern + ")";
    }
    return filters.join(";;");
}

std::optional<std::string> QtDialogs::AskFile(const platform::FileQuestion& question) {
    const QStringList filters = ToolkitFilter(question.filter).split(";;");
    const QString proposed = Shown(question.proposed);
    QFileDialog dialog(parent_, Shown(question.title), QFileInfo(proposed).path());
    dialog.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(question.filterIndex - 1));
    dialog.selectFile(proposed);
    // A name without a suffix gets that of the proposed one, as the filter lists it.
    dialog.setDefaultSuffix(QFileInfo(proposed).suffix());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return Bytes(dialog.selectedFiles().value(0));
}

void QtDialogs::OpenHelp(const std::string& file, int) {
    const QString path = Shown(file);
    if (!QFileInfo::exists(path)) {
        Message({}, "The help file is not there:\n" + file, platform::MessageIcon::Information);
        return;
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        Message({}, "No program opens the help file:\n" + file, platform::MessageIcon::Exclamation);
}

}  // namespace kelvra::desktop
