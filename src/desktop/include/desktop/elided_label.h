// SPDX-License-Identifier: GPL-3.0-or-later
// A text in a place of fixed height: what does not fit is cut off with "...", and the tooltip has
// the whole.
#pragma once

#include <QLabel>

namespace kelvra::desktop {

class ElidedLabel final : public QLabel {
public:
    explicit ElidedLabel(int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // Without line breaks: each is shown as a space.
    QString Line() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QStringList Parts() const;  // as many lines as there is room for

    int lines_;
};

}  // namespace kelvra::desktop
