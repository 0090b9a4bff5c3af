// SPDX-License-Identifier: GPL-3.0-or-later
// A rich text in a panel that scrolls, where a reader can select and copy. Its font is that of the
// document, or the system's of fixed width; its size is the user's.
#pragma once

#include <QTextEdit>
#include <string>

#include "controls/kinds.h"
#include "controls/rtf_reader.h"
#include "desktop/schemes.h"
#include "desktop/widget_adapter.h"

namespace kelvra::desktop {

// Writes the document in colours that can be read on this ground: those of the document, or the
// nearest to them.
void WriteDocument(QTextDocument& written, const controls::RichDocument& document,
                   const QColor& ground);

// A panel that begins at its top whenever it is shown, wherever its caret is.
class RichTextPanel final : public QTextEdit {
public:
    RichTextPanel();
    QSize sizeHint() const override;  // for the lines of a report

protected:
    void showEvent(QShowEvent* event) override;
};

class RichTextAdapter final : public WidgetAdapter {
public:
    RichTextAdapter(const controls::RichText& text, QTextEdit& widget);
    void Update() override;

private:
    void Write();

    const controls::RichText& text_;
    QTextEdit& widget_;
    std::string shown_;
    Scheme scheme_ = Scheme::Classic;
};

}  // namespace kelvra::desktop
