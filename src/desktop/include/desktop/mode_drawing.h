// SPDX-License-Identifier: GPL-3.0-or-later
// Small drawings of what the times of a measurement mode mean, one for each mode, with the names
// that the page has for them.
#pragma once

#include <QWidget>
#include <cstdint>

namespace kelvra::desktop {

class ModeDrawing final : public QWidget {
public:
    explicit ModeDrawing(std::int32_t mode);  // sensors::Mode

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::int32_t mode_;
};

}  // namespace kelvra::desktop
