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

// The toolkit has no other way to format a part of a line edit's text. Places count characters
// beyond the first plane once, the toolkit twice.
void CellEditor::MarkFault(int place) {
    QList<QInputMethodEvent::Attribute> attributes;
    if (place >= 0 && !text().isEmpty()) {
        const auto before =
            text().toUcs4().first(std::min<qsizetype>(place, text().toUcs4().size()));
        const auto start = std::min(
            QString::fromUcs4(reinterpret_cast<const char32_t*>(before.data()), before.size())
                .size(),
            text().size() - 1);
        QTextCharFormat fault;
        fault.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        fault.setUnderlineColor(PaintColour(OwnColour::Fault));
        fault.setForeground(PaintColour(OwnColour::Fault));
        attributes.append(
            {QInputMethodEvent::TextFormat, static_cast<int>(start) - cursorPosition(), 1, fault});
    }
    QInputMethodEvent event({}, attributes);
    QCoreApplication::sendEvent(this, &event);
}

}  // namespace kelvra::desktop
