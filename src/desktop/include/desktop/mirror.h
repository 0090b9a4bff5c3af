// SPDX-License-Identifier: GPL-3.0-or-later
// All adapters, and when they look: what has changed is painted at most 60 times a second, so that
// a fast measurement never waits for pixels; while nothing changes, nothing runs. What a person's
// click or key has changed is painted at once.
#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <memory>
#include <unordered_map>

#include "controls/changes.h"
#include "desktop/adapter.h"

namespace kelvra::desktop {

class Mirror final : public QObject {
public:
    explicit Mirror(controls::Changes& changes);
    ~Mirror() override;

    // The adapter shows its control from now on.
    void Add(const controls::Control& control, std::unique_ptr<Adapter> adapter);

    // Shows everything that has changed, now.
    void Flush();
    // The same, painted without delivering input, for what takes a while and delivers no events.
    void PaintNow();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    controls::Changes& changes_;
    std::unordered_map<const controls::Control*, std::unique_ptr<Adapter>> adapters_;
    QTimer timer_;
};

}  // namespace kelvra::desktop
