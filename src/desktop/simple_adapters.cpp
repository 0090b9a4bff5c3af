// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/simple_adapters.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/common.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

LabelAdapter::LabelAdapter(const controls::Label& label, QLabel& widget,
                           const controls::Control* named)
    : label_(label), widget_(widget), named_(named) {
    widget_.setTextFormat(Qt::PlainText);
}

void LabelAdapter::Update() {
    const QString caption = Shown(label_.caption.Get()).replace("\r\n", "\n");
    if (shown_ != caption) {
        shown_ = caption;
        widget_.setText(named_ == nullptr ? caption : MarkedText(*named_, label_.caption));
        widget_.setAccessibleName(caption);
    }
    UpdateCommon(widget_, label_);
}

LinkAdapter::LinkAdapter(controls::Label& label, QPushButton& widget)
    : label_(label), widget_(widget) {
    QObject::connect(&widget_, &QPushButton::clicked, [this] { label_.Press(); });
}

void LinkAdapter::Update() {
    widget_.setText(MarkedText(label_, label_.caption));
    UpdateCommon(widget_, label_);
}

LongLabelAdapter::LongLabelAdapter(const controls::Label& label, QPlainTextEdit& widget)
    : label_(label), widget_(widget) {
    widget_.setReadOnly(true);
    widget_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    widget_.setTabChangesFocus(true);
    widget_.setFrameShape(QFrame::NoFrame);
    widget_.viewport()->setAutoFillBackground(false);
    widget_.document()->setDocumentMargin(0);
}

void LongLabelAdapter::Update() {
    const QString text = Shown(label_.caption.Get()).replace("\r\n", "\n");
    if (widget_.toPlainText() != text) widget_.setPlainText(text);
    UpdateCommon(widget_, label_);
}

ButtonAdapter::ButtonAdapter(controls::Button& button, QPushButton& widget)
    : button_(button), widget_(widget) {
    QObject::connect(&widget_, &QPushButton::clicked, [this] { button_.Press(); });
}

void ButtonAdapter::Update() {
    // Only for a different text: the toolkit sets up the mnemonic's key again each time.
    const QString text = MarkedText(button_, button_.caption);
    if (widget_.text() != text) widget_.setText(text);
    if (!button_.picture->empty()) widget_.setIcon(Icon(button_.picture));
    UpdateCommon(widget_, button_);
}

MenuItemAdapter::MenuItemAdapter(controls::MenuItem& item, QAction& action)
    : item_(item), action_(action) {
    QObject::connect(&action_, &QAction::triggered, [this] {
        item_.Press();
        Update();  // shows the record's mark: the action has changed its own by itself
    });
}

void MenuItemAdapter::Update() {
    const QSignalBlocker quiet(action_);
    const bool opens = item_.opensDialog && !item_.caption->ends_with("...");
    action_.setText(MarkedText(item_, item_.caption) + (opens ? "..." : ""));
    action_.setEnabled(item_.enabled);
    action_.setVisible(item_.visible);
    if (action_.isCheckable()) action_.setChecked(item_.checked);
}

template <class Own>
EntryAdapter<Own>::EntryAdapter(Own& own, QAction& action) : own_(own), action_(action) {
    constexpr bool isMark = std::is_same_v<Own, controls::CheckBox>;
    action_.setCheckable(isMark);
    QObject::connect(&action_, &QAction::triggered, [this] {
        if constexpr (isMark)
            own_.Toggle();
        else
            own_.Press();
        Update();  // shows the record's mark: the action has changed its own by itself
    });
}

template <class Own>
void EntryAdapter<Own>::Update() {
    action_.setText(MarkedText(own_, own_.caption));
    action_.setToolTip(Shown(own_.tooltip.Get()));
    action_.setEnabled(own_.enabled);
    action_.setVisible(own_.visible);
    if constexpr (std::is_same_v<Own, controls::CheckBox>) action_.setChecked(own_.Checked());
}

template class EntryAdapter<controls::CheckBox>;
template class EntryAdapter<controls::Button>;

ListWidget::ListWidget() {
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(AdjustToContents);
    view()->setTextElideMode(Qt::ElideMiddle);
}

QSize ListWidget::Bounded(const QSize& size, int characters) const {
    const int most = characters * fontMetrics().averageCharWidth() +
                     style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * CellMargin;
    return {std::min(size.width(), most), size.height()};
}

void ListWidget::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect place =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, place.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

// The whole text of the chosen entry, before what the list is.
bool ListWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || currentText().isEmpty()) return QComboBox::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QString about = accessibleDescription();
    const QString text = currentText() + (about.isEmpty() ? "" : "\n\n" + about);
    QToolTip::showText(help.globalPos(), TooltipText(text), this);
    return true;
}

void ListWidget::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

ListAdapter::ListAdapter(controls::List& list, QComboBox& widget) : list_(list), widget_(widget) {
    QObject::connect(&widget_, &QComboBox::activated, [this](int index) { list_.Choose(index); });
}

void ListAdapter::Update() {
    const QSignalBlocker quiet(widget_);
    if (shown_ != list_.Items()) Fill();
    if (widget_.currentIndex() != list_.Index()) widget_.setCurrentIndex(list_.Index());
    UpdateCommon(widget_, list_);
}

void ListAdapter::Fill() {
    shown_ = list_.Items();
    widget_.clear();
    for (const controls::List::Item& item : shown_) {
        widget_.addItem(Shown(item.text));
        widget_.setItemData(widget_.count() - 1, TooltipText(Shown(item.text)), Qt::ToolTipRole);
    }
    widget_.updateGeometry();
}

ListBoxAdapter::ListBoxAdapter(controls::List& list, QListWidget& widget)
    : list_(list), widget_(widget) {
    QObject::connect(&widget_, &QListWidget::currentRowChanged,
                     [this](int index) { list_.Choose(index); });
}

void ListBoxAdapter::Update() {
    const QSignalBlocker quiet(widget_);
    if (shown_ != list_.Items()) {
        shown_ = list_.Items();
        widget_.clear();
        for (const controls::List::Item& item : shown_) widget_.addItem(Shown(item.text));
    }
    // The focus makes an entry the current one without selecting it.
    widget_.setCurrentRow(list_.Index(), QItemSelectionModel::ClearAndSelect);
    UpdateCommon(widget_, list_);
}

void PictureAdapter::Update() {
    if (shown_ != picture_.image.Get() || scheme_ != CurrentScheme()) {
        shown_ = picture_.image.Get();
        scheme_ = CurrentScheme();
        widget_.setPixmap(PictureOf(shown_, size_, widget_.devicePixelRatioF()));
    }
    UpdateCommon(widget_, picture_);
}

void FrameAdapter::Update() {
    UpdateCommon(widget_, frame_);
}

}  // namespace kelvra::desktop
