// SPDX-License-Identifier: GPL-3.0-or-later
// A ring around the focused widget of a frame: the toolkit's own is hardly visible on a dark
// background. Tables draw their own.
#pragma once

#include <QPointer>
#include <QWidget>

namespace kelvra::desktop {

class FocusRing final : public QWidget {
public:
    explicit FocusRing(QWidget* frame);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Follow(QWidget* focused);
    void Place();

    QPointer<QWidget> followed_;
};

}  // namespace kelvra::desktop
