// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/speed_label.h"

#include <algorithm>
#include <chrono>

#include "util/number_reading.h"
#include "util/number_text.h"

namespace kelvra::ui {

namespace {
constexpr auto UpdateInterval = std::chrono::seconds(1);
constexpr int BusyPictures = 8;
}  // namespace

void SpeedLabel::Started() {
    Hide();
    running_ = true;
    counted_ = {};
    lastLasted_ = {};
    lastPass_ = lastMove_ = host_.clock.Monotonic();
}

void SpeedLabel::Hide() {
    running_ = false;
    window_.MeasSpeedInfo.visible = false;
    window_.NotMeasuring.visible = false;
}

void SpeedLabel::StartFailed(measure::StartFailure /*why*/) {
    Hide();
    window_.NotMeasuring.visible = true;
}

// A figure that no pass has confirmed for some time says nothing any more.
void SpeedLabel::Awaited(int /*slot*/, const std::string& /*complaint*/) {
    const platform::Duration now = host_.clock.Monotonic();
    MoveBusyPicture(now);
    if (now - lastPass_ > std::max<platform::Duration>(2 * UpdateInterval, 2 * lastLasted_))
        window_.MeasSpeedInfo.visible = false;
}

void SpeedLabel::PassWaits(platform::Duration /*left*/) {
    MoveBusyPicture(host_.clock.Monotonic());
}

void SpeedLabel::PassSeen(platform::Duration now, platform::Duration lasted) {
    MoveBusyPicture(now);
    lastPass_ = now;
    lastLasted_ = lasted;
    counted_.time += lasted;
    ++counted_.passes;
    if (counted_.time <= UpdateInterval) return;
    const double seconds = std::chrono::duration<double>(counted_.time).count();
    window_.MeasSpeedInfo.caption =
        util::FixedText(counted_.passes / seconds, 0, host_.computer.Numbers()) + " /s";
    window_.MeasSpeedInfo.visible = running_;
    counted_ = {};
}

void SpeedLabel::MoveBusyPicture(platform::Duration now) {
    if (now - lastMove_ <= UpdateInterval) return;
    lastMove_ = now;
    const auto shown = util::ReadWholeNumber(window_.BusySign.tag.Get()).value_or(0);
    const auto next = shown >= BusyPictures || shown < 0 ? 1 : shown + 1;
    const std::string number = util::TrimmedNumberText(next);
    window_.BusySign.tag = number;
    window_.BusySign.image = "busy" + number;
}

}  // namespace kelvra::ui
