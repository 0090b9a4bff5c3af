// SPDX-License-Identifier: GPL-3.0-or-later
// All adapters, and when they update: changes are painted at most 60 times a second, so that a fast
// measurement never waits for painting. While nothing changes, nothing runs. Changes made by the
// user's click or key are painted at once.
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

    // From here on the adapter shows its control.
    void Add(const controls::Control& control, std::unique_ptr<Adapter> adapter);

    // Shows all changes now.
    void Flush();
    // Shows every control again: what widgets look like has changed.
    void ShowAll();
    // The same, and paints them without delivering input; for long work that delivers no events.
    void PaintNow();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    controls::Changes& changes_;
    std::unordered_map<const controls::Control*, std::unique_ptr<Adapter>> adapters_;
    QTimer timer_;
};

}  // namespace kelvra::desktop
