// SPDX-License-Identifier: GPL-3.0-or-later
// The speed figure (passes in a second) and the busy picture, both moved on about once a second.
#pragma once

#include <cstdint>

#include "forms/main_window.h"
#include "measure/listener.h"
#include "platform/host.h"

namespace kelvra::ui {

class SpeedLabel final : public measure::MeasurementListener {
public:
    SpeedLabel(forms::MDIMain& window, platform::Host& host) : window_(window), host_(host) {}

    void Started() override { counted_ = {}; }
    void PassStarted(platform::Duration now) override { startedAt_ = now; }
    void PassComplete() override;

private:
    struct Counted {
        platform::Duration time{};
        std::int32_t passes = 0;
    };

    void AdvanceBusyPicture();

    forms::MDIMain& window_;
    platform::Host& host_;
    platform::Duration startedAt_{};
    Counted counted_;
};

}  // namespace kelvra::ui
