// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/form_rows.h"

#include <QHBoxLayout>

#include "desktop/common.h"

namespace kelvra::desktop {

namespace {

enum Column { CaptionColumn, EditorColumn, UnitColumn, MoreColumn, ColumnCount };

constexpr int CaptionCharacters = 26;
constexpr int EditorCharacters = 14;

// A list is as wide as its entries.
void Limit(QWidget* editor) {
    if (qobject_cast<QLineEdit*>(editor) != nullptr) SizeAsNumber(*editor);
}

}  // namespace

FormRows::FormRows(QWidget& frame, WidgetMaker& maker)
    : maker_(maker), grid_(*new QGridLayout(&frame)) {
    grid_.setContentsMargins(Margin, Margin, Margin, Margin);
    grid_.setHorizontalSpacing(Margin);
    grid_.setVerticalSpacing(Margin / 2);
    grid_.setColumnMinimumWidth(CaptionColumn,
                                CaptionCharacters * frame.fontMetrics().averageCharWidth());
    grid_.setColumnStretch(MoreColumn, 1);
}

void SizeAsNumber(QWidget& box) {
    box.setFixedWidth(EditorCharacters * box.fontMetrics().averageCharWidth());
}

void FormRows::Add(std::initializer_list<controls::Control*> fields) {
    for (controls::Control* field : fields) Limit(maker_.AddRow(grid_, *field));
}

void FormRows::Add(QWidget* lead, controls::Control& field) {
    Limit(maker_.AddRow(grid_, field, lead));
}

void FormRows::AddLine(std::initializer_list<controls::Control*> controls) {
    auto* line = new QHBoxLayout;
    line->setSpacing(2 * Margin);
    for (controls::Control* control : controls) line->addWidget(maker_.MakeAny(*control));
    line->addStretch();
    grid_.addLayout(line, grid_.rowCount(), 0, 1, ColumnCount);
}

void FormRows::AddWide(QWidget* widget) {
    grid_.addWidget(widget, grid_.rowCount(), 0, 1, ColumnCount);
}

void FormRows::AddOptions(controls::OptionField& group) {
    const auto& label = group.captionLabel;
    auto* caption = maker_.Make(*label);
    QWidget* options = maker_.Make(group, OptionLook::Row);
    caption->setBuddy(options);
    AddCaptioned(caption, options);
}

void FormRows::AddCaptioned(QWidget* caption, QWidget* widget) {
    const int row = grid_.rowCount();
    grid_.addWidget(caption, row, CaptionColumn);
    grid_.addWidget(widget, row, EditorColumn, 1, ColumnCount - EditorColumn);
}

void FormRows::Append(QWidget* widget) {
    grid_.addWidget(widget, grid_.rowCount() - 1, MoreColumn, Qt::AlignLeft);
}

void FormRows::End() {
    grid_.setRowStretch(grid_.rowCount(), 1);
}

}  // namespace kelvra::desktop
