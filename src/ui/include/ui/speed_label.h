// SPDX-License-Identifier: GPL-3.0-or-later
// What is beside the Stop button: the busy picture, which moves about once a second during a
// measurement; the speed figure (passes per second, not counting pauses between them), visible from
// its first value to the end of the measurement; and the hint to press Stop after a failed start.
#pragma once

#include <cstdint>

#include "forms/main_window.h"
#include "measure/listener.h"
#include "platform/host.h"

namespace kelvra::ui {

class SpeedLabel final : public measure::MeasurementListener, public measure::PassListener {
public:
    SpeedLabel(forms::MDIMain& window, platform::Host& host) : window_(window), host_(host) {}

    void Started() override;
    void StartFailed(measure::StartFailure why) override;
    void Stopped() override { Hide(); }
    void Awaited(int /*slot*/, const std::string& /*complaint*/) override;
    void PassSeen(platform::Duration now, platform::Duration lasted) override;
    void PassWaits(platform::Duration left) override;

private:
    struct Counted {
        platform::Duration time{};
        std::int32_t passes = 0;
    };

    void Hide();
    void MoveBusyPicture(platform::Duration now);

    forms::MDIMain& window_;
    platform::Host& host_;
    bool running_ = false;
    Counted counted_;
    platform::Duration lastMove_{};
    platform::Duration lastPass_{};    // its end
    platform::Duration lastLasted_{};  // its length
};

}  // namespace kelvra::ui
