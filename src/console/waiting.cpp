// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/waiting.h"

namespace kelvra::console {

std::optional<std::string> Waiting::ForPasses(std::int64_t passes) {
    if (!MeasurementRuns()) return "no measurement runs";
    kind_ = Kind::Passes;
    passes_ = state_.passes + passes;
    return std::nullopt;
}

void Waiting::ForTime(platform::Duration time) {
    kind_ = Kind::Time;
    until_ = clock_.Monotonic() + time;
}

Waiting::Look Waiting::At() {
    bool reached = true;
    switch (kind_) {
        case Kind::Nothing:
            break;
        case Kind::Passes:
            reached = state_.passes >= passes_;
            if (!reached && !MeasurementRuns()) {
                kind_ = Kind::Nothing;
                return Look::Failed;
            }
            break;
        case Kind::Time:
            reached = clock_.Monotonic() >= until_;
            break;
        case Kind::Idle:
            reached = !state_.commandRuns;
            break;
    }
    if (!reached) return Look::Wait;
    kind_ = Kind::Nothing;
    return Look::GoOn;
}

std::optional<platform::Duration> Waiting::WakesAt() const {
    return kind_ == Kind::Time ? std::optional(until_) : std::nullopt;
}

}  // namespace kelvra::console
