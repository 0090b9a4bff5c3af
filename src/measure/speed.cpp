// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/speed.h"

#include <chrono>

#include "util/number_reading.h"
#include "util/number_text.h"

namespace kelvra::measure {

namespace {
constexpr double UpdateIntervalMs = 1000;
constexpr int BusyPictures = 8;
}  // namespace

void Speed::Reset() {
    cycleTimeSum_ = 0;
    cycleCount_ = 0;
}

void Speed::UpdateSpeedAndBusy() {
    const auto elapsed = host_.clock.Monotonic() - startedAt_;
    cycleTimeSum_ += std::chrono::duration<double, std::milli>(elapsed).count();
    ++cycleCount_;
    if (cycleTimeSum_ <= UpdateIntervalMs) return;
    const double passesPerSecond = 1 / ((cycleTimeSum_ / cycleCount_) / 1000);
    window_.MeasSpeedInfo.caption =
        util::FixedText(passesPerSecond, 0, host_.computer.Numbers()) + " /s";
    Reset();
    AdvanceBusyPicture();
}

void Speed::AdvanceBusyPicture() {
    const auto shown = util::ReadWholeNumber(window_.BusySign.tag.Get()).value_or(0);
    const auto next = shown >= BusyPictures || shown < 0 ? 1 : shown + 1;
    const std::string number = util::TrimmedNumberText(next);
    window_.BusySign.tag = number;
    window_.BusySign.image = "busy" + number;
}

}  // namespace kelvra::measure
