// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/cell_editor.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QTextCharFormat>
#include <algorithm>

#include "desktop/grid_measures.h"
#include "desktop/qt_text.h"
#include "desktop/schemes.h"

namespace kelvra::desktop {

namespace {

// The record counts characters, the toolkit units of its encoding.
int UnitsBefore(const QString& text, int characters) {
    int units = 0;
    for (; characters > 0 && units < text.size(); --characters)
        units += text[units].isHighSurrogate() ? 2 : 1;
    return units;
}

}  // namespace

CellEditor::CellEditor(controls::Grid& grid, int row, int column, QWidget* parent)
    : QLineEdit(parent), grid_(grid), row_(row), column_(column) {
    setFrame(false);
    setTextMargins(CellMargin / 2, 0, 0, 0);
    setAutoFillBackground(true);
    connect(this, &QLineEdit::textChanged, [this] { Report(); });
}

void CellEditor::Report() {
    grid_.EditCell(row_, column_, Bytes(text()));
    MarkFault(grid_.remark->place);
}

// The toolkit has no other way to format a part of a line edit's text: the word at the place.
void CellEditor::MarkFault(int place) {
    QList<QInputMethodEvent::Attribute> attributes;
    if (place >= 0 && !text().isEmpty()) {
        const int start = std::min(UnitsBefore(text(), place), static_cast<int>(text().size()) - 1);
        int end = start + 1;
        while (end < text().size() && text()[end].isLetterOrNumber()) ++end;
        QTextCharFormat fault;
        fault.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        fault.setUnderlineColor(PaintColour(OwnColour::Fault));
        fault.setForeground(PaintColour(OwnColour::Fault));
        attributes.append(
            {QInputMethodEvent::TextFormat, start - cursorPosition(), end - start, fault});
    }
    QInputMethodEvent event({}, attributes);
    QCoreApplication::sendEvent(this, &event);
}

}  // namespace kelvra::desktop
