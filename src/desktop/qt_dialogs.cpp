// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/qt_dialogs.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "desktop/common.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr int PromptWidth = 480;  // logical pixels; a formula is longer than a usual answer

QString ProgramName() {
    return QCoreApplication::applicationName();
}

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

void QtDialogs::SetParent(QWidget& parent) {
    parent_ = &parent;
    ShowNext();
}

void QtDialogs::Drop() {
    waiting_.clear();
    shown_.reset();
    for (const QPointer<QDialog>& dialog : std::exchange(open_, {})) {
        if (dialog == nullptr) continue;
        dialog->disconnect();
        if (dialog->isHidden()) continue;  // its handler is running, and removes it
        dialog->hide();
        dialog->deleteLater();
    }
}

// The dialog is removed only when what follows has returned: that may let events run for a long
// time, while the toolkit's handler of the button that was pressed is still under way.
void QtDialogs::Open(QDialog& dialog, std::function<void(bool accepted)> finished) {
    std::erase(open_, nullptr);
    open_.emplace_back(&dialog);
    QObject::connect(&dialog, &QDialog::finished,
                     [finished = std::move(finished), own = QPointer(&dialog)](int result) {
                         finished(result == QDialog::Accepted);
                         if (own != nullptr) own->deleteLater();
                     });
    dialog.setModal(false);  // Stop stays within reach
    dialog.show();
}

void QtDialogs::Message(const std::string& title, const std::string& text,
                        platform::MessageIcon icon) {
    WaitingMessage message{title, text, icon};
    const auto same = [&](const WaitingMessage& other) { return other.SaysTheSame(message); };
    if (shown_ && same(*shown_)) return;
    if (std::any_of(waiting_.begin(), waiting_.end(), same)) return;
    waiting_.push_back(std::move(message));
    ShowNext();
}

void QtDialogs::Confirm(const std::string& title, const std::string& text,
                        platform::MessageIcon icon, std::function<void()> confirmed) {
    waiting_.push_back({title, text, icon, std::move(confirmed)});
    ShowNext();
}

void QtDialogs::ShowNext() {
    if (shown_ || waiting_.empty() || parent_ == nullptr) return;
    shown_ = std::move(waiting_.front());
    waiting_.pop_front();
    auto* box = new QMessageBox(
        ToolkitIcon(shown_->icon), shown_->title.empty() ? ProgramName() : Shown(shown_->title),
        Shown(shown_->text).replace("\r\n", "\n"), QMessageBox::Ok, parent_);
    box->setTextFormat(Qt::PlainText);
    Open(*box, [this](bool) {
        const auto confirmed = std::move(shown_->confirmed);
        shown_.reset();
        ShowNext();
        if (confirmed) confirmed();
    });
}

void QtDialogs::LastMessage(const std::string& text) {
    QMessageBox box(QMessageBox::Warning, ProgramName(), Shown(text).replace("\r\n", "\n"),
                    QMessageBox::Ok, parent_);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void QtDialogs::Prompt(const std::string& text, const std::string& proposed, Answer answer) {
    auto* dialog = new QInputDialog(parent_);
    dialog->setWindowTitle(ProgramName());
    dialog->setLabelText(Shown(text));
    dialog->setTextValue(Shown(proposed));
    dialog->resize(PromptWidth, dialog->sizeHint().height());
    Open(*dialog, [dialog, answer](bool accepted) {
        answer(accepted ? std::optional(Bytes(dialog->textValue())) : std::nullopt);
    });
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

// "csv" of "Name (*.csv)"; none of "All files (*)".
QString SuffixOf(const QString& filter) {
    return filter.section("(*.", 1).section(')', 0, 0);
}

void QtDialogs::AskFile(const platform::FileQuestion& question, FileAnswer answer) {
    const QStringList filters = ToolkitFilter(question.filter).split(";;");
    const QString proposed = Shown(question.proposed);
    const QString title =
        Shown(question.title) + (question.about.empty() ? "" : " - " + Shown(question.about));
    auto* dialog = new QFileDialog(parent_, title, QFileInfo(proposed).path());
    dialog->setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setNameFilters(filters);
    dialog->selectNameFilter(filters.value(question.filterIndex - 1));
    dialog->selectFile(proposed);
    // A name without a suffix gets the suffix of the proposed name, or of the filter that is chosen
    // later, so that the filter lists it.
    dialog->setDefaultSuffix(QFileInfo(proposed).suffix());
    QObject::connect(dialog, &QFileDialog::filterSelected, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(SuffixOf(filter));
    });
    Open(*dialog, [dialog, answer](bool accepted) {
        if (!accepted) return answer(std::nullopt);
        const auto filter = dialog->nameFilters().indexOf(dialog->selectedNameFilter());
        answer(platform::ChosenFile{Bytes(dialog->selectedFiles().value(0)),
                                    static_cast<int>(filter) + 1});
    });
}

platform::ScreenSize QtDialogs::Screen() {
    const QSize size = QGuiApplication::primaryScreen()->availableSize();
    return {Twips(size.width()), Twips(size.height())};
}

void QtDialogs::CopyText(const std::string& text) {
    QGuiApplication::clipboard()->setText(Shown(text));
}

void QtDialogs::OpenHelp(const platform::HelpPage& page) {
    const std::string& file = page.opensCompiled ? page.compiledFile : page.path;
    const QString path = Shown(file);
    if (!QFileInfo::exists(path))
        Message({}, "The page of help is missing:\n" + file, platform::MessageIcon::Exclamation);
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        Message({}, "No program could be started to show the page of help:\n" + file,
                platform::MessageIcon::Exclamation);
}

void QtDialogs::OpenUrl(const QUrl& url, const std::string& shown) {
    if (!QDesktopServices::openUrl(url))
        Message({}, "No program could be started to open this address:\n" + shown,
                platform::MessageIcon::Exclamation);
}

void QtDialogs::OpenAddress(const std::string& address) {
    OpenUrl(QUrl(Shown(address)), address);
}

void QtDialogs::OpenFolder(const std::string& path) {
    OpenUrl(QUrl::fromLocalFile(Shown(path)), path);
}

}  // namespace kelvra::desktop
