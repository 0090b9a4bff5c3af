// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/rich_text_adapter.h"

#include <QApplication>
#include <QFontDatabase>
#include <QScrollBar>
#include <QTextCursor>
#include <utility>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr double Readable = 4.5;  // contrast, WCAG 2.1
constexpr int Steps = 20;
constexpr controls::Colour Black = 0;
constexpr int Columns = 90;  // of a panel
constexpr int Lines = 24;

QColor ToolkitColour(controls::Colour colour) {
    return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
            static_cast<int>(colour >> 16 & 0xFF)};
}

// The colour, or the nearest on the way to black or white that is readable.
QColor ReadableOn(const QColor& ground, const QColor& colour) {
    const bool light = Contrast(Qt::white, ground) > Contrast(Qt::black, ground);
    const QColor best(light ? Qt::white : Qt::black);
    for (int step = 0; step < Steps; ++step) {
        const auto mixed = [&](int from, int to) { return from + (to - from) * step / Steps; };
        const QColor tried(mixed(colour.red(), best.red()), mixed(colour.green(), best.green()),
                           mixed(colour.blue(), best.blue()));
        if (Contrast(tried, ground) >= Readable) return tried;
    }
    return best;
}

QFont FontOf(const controls::RichDocument& document) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString named = Shown(document.font);
    if (QFontDatabase::hasFamily(named)) font.setFamilies({named});
    font.setPointSizeF(QApplication::font().pointSizeF());
    return font;
}

QTextCharFormat FormatOf(const controls::RichLook& look, const QColor& ground) {
    QTextCharFormat format;
    if (look.bold) format.setFontWeight(QFont::Bold);
    format.setFontItalic(look.italic);
    format.setFontUnderline(look.underline);
    const QColor back = look.highlight ? ToolkitColour(*look.highlight) : ground;
    if (look.highlight) format.setBackground(back);
    // Black is the colour of text that has no colour: on a dark ground it is light.
    const bool coloured = look.text && *look.text != Black;
    if (coloured || look.highlight)
        format.setForeground(ReadableOn(back, coloured ? ToolkitColour(*look.text) : TextOn(back)));
    return format;
}

Qt::Alignment ToolkitAlignment(controls::RichAlign align) {
    switch (align) {
        case controls::RichAlign::Right:
            return Qt::AlignRight;
        case controls::RichAlign::Centre:
            return Qt::AlignHCenter;
        case controls::RichAlign::Left:
            break;
    }
    return Qt::AlignLeft;
}

}  // namespace

void WriteDocument(QTextDocument& written, const controls::RichDocument& document,
                   const QColor& ground) {
    written.clear();
    written.setDefaultFont(FontOf(document));
    QTextCursor cursor(&written);
    bool first = true;
    for (const controls::RichParagraph& paragraph : document.paragraphs) {
        QTextBlockFormat block;
        block.setAlignment(ToolkitAlignment(paragraph.align));
        if (std::exchange(first, false))
            cursor.setBlockFormat(block);
        else
            cursor.insertBlock(block, {});
        for (const controls::RichRun& run : paragraph.runs)
            cursor.insertText(Shown(run.text), FormatOf(run.look, ground));
    }
}

RichTextPanel::RichTextPanel() {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
}

QSize RichTextPanel::sizeHint() const {
    const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return {Columns * metrics.averageCharWidth(), Lines * metrics.lineSpacing()};
}

// The toolkit brings the caret into sight when it first shows a text.
void RichTextPanel::showEvent(QShowEvent* event) {
    QTextEdit::showEvent(event);
    verticalScrollBar()->setValue(0);
}

RichTextAdapter::RichTextAdapter(const controls::RichText& text, QTextEdit& widget)
    : text_(text), widget_(widget) {}

void RichTextAdapter::Update() {
    if (shown_ != text_.rtf.Get() || scheme_ != CurrentScheme()) Write();
    UpdateCommon(widget_, text_);
}

void RichTextAdapter::Write() {
    shown_ = text_.rtf.Get();
    scheme_ = CurrentScheme();
    WriteDocument(*widget_.document(), controls::ReadRtf(shown_),
                  QApplication::palette().color(QPalette::Base));
    widget_.moveCursor(QTextCursor::End);
    widget_.verticalScrollBar()->setValue(0);
}

}  // namespace kelvra::desktop
