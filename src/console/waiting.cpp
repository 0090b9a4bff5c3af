// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/waiting.h"

namespace kelvra::console {

std::optional<std::string> Waiting::ForPasses(std::int64_t passes,
                                              std::optional<platform::Duration> limit) {
    if (!MeasurementRuns()) return "no measurement runs";
    kind_ = Kind::Passes;
    passes_ = state_.passes + passes;
    until_ = limit ? std::optional(clock_.Monotonic() + *limit) : std::nullopt;
    return std::nullopt;
}

void Waiting::ForTime(platform::Duration time) {
    kind_ = Kind::Time;
    until_ = clock_.Monotonic() + time;
}

void Waiting::ForIdle() {
    kind_ = Kind::Idle;
    until_.reset();
}

Waiting::Look Waiting::At() {
    Look look = Look::GoOn;
    switch (kind_) {
        case Kind::Nothing:
            break;
        case Kind::Passes:
            look = AtPasses();
            break;
        case Kind::Time:
            if (!TimeIsUp()) look = Look::Wait;
            break;
        case Kind::Idle:
            if (state_.commandRuns) look = Look::Wait;
            break;
    }
    if (look == Look::Wait) return look;
    kind_ = Kind::Nothing;
    until_.reset();
    return look;
}

Waiting::Look Waiting::AtPasses() const {
    if (state_.passes >= passes_) return Look::GoOn;
    if (!MeasurementRuns()) return Look::Ended;
    return TimeIsUp() ? Look::TimedOut : Look::Wait;
}

bool Waiting::TimeIsUp() const {
    return until_ && clock_.Monotonic() >= *until_;
}

}  // namespace kelvra::console
