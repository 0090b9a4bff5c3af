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
    bool confirmed = false;
    const QString answer =
        QInputDialog::getText(parent_, QCoreApplication::applicationName(), Shown(text),
                              QLineEdit::Normal, Shown(proposed), &confirmed);
    if (!confirmed) return std::nullopt;
    return Bytes(answer);
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
    const QString filter = ToolkitFilter(question.filter);
    QString selected = filter.split(";;").value(question.filterIndex - 1);
    const QString title = Shown(question.title);
    const QString proposed = Shown(question.proposed);
    const QString path =
        question.save ? QFileDialog::getSaveFileName(parent_, title, proposed, filter, &selected)
                      : QFileDialog::getOpenFileName(parent_, title, proposed, filter, &selected);
    if (path.isEmpty()) return std::nullopt;
    return Bytes(path);
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
