// SPDX-License-Identifier: GPL-3.0-or-later
// The speed figure (passes in a second) and the busy picture, both moved on about once a second.
#pragma once

#include <cstdint>

#include "forms/main_window.h"
#include "platform/host.h"

namespace kelvra::measure {

class Speed {
public:
    Speed(forms::MDIMain& window, platform::Host& host) : window_(window), host_(host) {}

    void Reset();
    // A pass starts measuring.
    void Restart(platform::Duration now) { startedAt_ = now; }
    // Its measurements are complete.
    void UpdateSpeedAndBusy();

private:
    void AdvanceBusyPicture();

    forms::MDIMain& window_;
    platform::Host& host_;
    platform::Duration startedAt_{};
    double cycleTimeSum_ = 0;  // ms
    std::int32_t cycleCount_ = 0;
};

}  // namespace kelvra::measure
