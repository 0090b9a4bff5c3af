// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/speed_label.h"

#include <chrono>

#include "util/number_reading.h"
#include "util/number_text.h"

namespace kelvra::ui {

namespace {
constexpr auto UpdateInterval = std::chrono::seconds(1);
constexpr int BusyPictures = 8;
}  // namespace

void SpeedLabel::PassComplete() {
    counted_.time += host_.clock.Monotonic() - startedAt_;
    ++counted_.passes;
    if (counted_.time <= UpdateInterval) return;
    const double seconds = std::chrono::duration<double>(counted_.time).count();
    window_.MeasSpeedInfo.caption =
        util::FixedText(counted_.passes / seconds, 0, host_.computer.Numbers()) + " /s";
    counted_ = {};
    AdvanceBusyPicture();
}

void SpeedLabel::AdvanceBusyPicture() {
    const auto shown = util::ReadWholeNumber(window_.BusySign.tag.Get()).value_or(0);
    const auto next = shown >= BusyPictures || shown < 0 ? 1 : shown + 1;
    const std::string number = util::TrimmedNumberText(next);
    window_.BusySign.tag = number;
    window_.BusySign.image = "busy" + number;
}

}  // namespace kelvra::ui
