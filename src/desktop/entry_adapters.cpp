// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/entry_adapters.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include "desktop/common.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

TextBoxAdapter::TextBoxAdapter(controls::TextBox& box, QLineEdit& widget)
    : box_(box), widget_(widget) {
    QObject::connect(&widget_, &QLineEdit::textEdited,
                     [this](const QString& text) { box_.Type(Bytes(text)); });
    // Also raised after Enter, when nothing is left to commit.
    QObject::connect(&widget_, &QLineEdit::editingFinished, [this] { box_.Leave(); });
}

void TextBoxAdapter::Update() {
    ShowText(Shown(box_.Text()));
    UpdateCommon(widget_, box_, box_.fault);
    ShowFault();
}

// A text that the program puts where the user is typing is selected: the next key replaces it.
void TextBoxAdapter::ShowText(const QString& text) {
    if (widget_.text() == text) return;
    widget_.setText(text);
    if (widget_.hasFocus()) widget_.selectAll();
}

void TextBoxAdapter::ShowFault() {
    const bool faulty = !box_.fault->empty();
    if (sign_ == nullptr && !faulty) return;
    if (sign_ == nullptr)
        sign_ = widget_.addAction(Icon("inputFault"), QLineEdit::TrailingPosition);
    sign_->setVisible(faulty);
    sign_->setToolTip(Shown(box_.fault.Get()));
}

CheckBoxAdapter::CheckBoxAdapter(controls::CheckBox& box, QCheckBox& widget)
    : box_(box), widget_(widget) {
    QObject::connect(&widget_, &QCheckBox::clicked, [this] {
        box_.Toggle();
        Update();  // shows the record's mark: the widget has changed its own by itself
    });
}

void CheckBoxAdapter::Update() {
    if (shown_ != box_.caption.Get()) {
        shown_ = box_.caption.Get();
        widget_.setText(MarkedText(box_, *shown_));
    }
    widget_.setChecked(box_.Checked());
    UpdateCommon(widget_, box_);
}

OptionAdapter::OptionAdapter(controls::Option& option, QAbstractButton& widget)
    : option_(option), widget_(widget) {
    QObject::connect(&widget_, &QAbstractButton::clicked, [this] { option_.Press(); });
}

// Checking one option makes the toolkit uncheck the others. The Tab key goes to the checked one.
void OptionAdapter::Update() {
    if (shown_ != option_.caption.Get()) {
        shown_ = option_.caption.Get();
        widget_.setText(MarkedText(option_, *shown_));
    }
    if (option_.Checked()) widget_.setChecked(true);
    widget_.setFocusPolicy(option_.Checked() ? Qt::StrongFocus : Qt::ClickFocus);
    UpdateCommon(widget_, option_);
}

void OptionGroupAdapter::Update() {
    widget_.setFocusProxy(options_.value(group_.Selected()));
    UpdateCommon(widget_, group_);
}

namespace {

class KeyReporter final : public QObject {
public:
    KeyReporter(controls::Focusable& control, QWidget& widget)
        : QObject(&widget), control_(control) {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* widget, QEvent* event) override {
        if (event->type() == QEvent::KeyPress)
            control_.PressKey(Name(static_cast<const QKeyEvent&>(*event)));
        return QObject::eventFilter(widget, event);
    }

private:
    static controls::Key Name(const QKeyEvent& event) {
        if (event.key() == Qt::Key_Return) return "Enter";
        return Bytes(QKeySequence(event.key()).toString(QKeySequence::PortableText));
    }

    controls::Focusable& control_;
};

}  // namespace

void ReportKeys(controls::Focusable& control, QWidget& widget) {
    new KeyReporter(control, widget);
}

}  // namespace kelvra::desktop
