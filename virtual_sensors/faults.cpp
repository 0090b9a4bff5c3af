// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults.h"

namespace kelvra::virtual_sensors {

Twist Faults::Meet(Operation operation, int64_t channel) {
    ++calls_[static_cast<std::size_t>(operation)];
    Twist twist;
    for (std::size_t i = 0; i < faults_.size(); ++i) {
        const Fault& fault = faults_[i];
        if (fault.operation != operation) continue;
        if (fault.channel != 0 && fault.channel != channel) continue;
        const int64_t call = ++seen_[i];
        if (call < fault.first || call > fault.last) continue;
        switch (fault.effect) {
            case Fault::Effect::Status:
                twist.status = fault.number;
                break;
            case Fault::Effect::Count:
                twist.count = fault.number;
                break;
            case Fault::Effect::Value:
                twist.value = fault.value;
                break;
            case Fault::Effect::Unended:
                twist.unended = true;
                break;
        }
    }
    return twist;
}

std::vector<Event> Faults::TakeEvents(double now) {
    std::vector<Event> due;
    std::erase_if(events_, [&](const Event& event) {
        const bool isDue = event.operation
                               ? calls_[static_cast<std::size_t>(*event.operation)] >= event.call
                               : now >= event.time;
        if (isDue) due.push_back(event);
        return isDue;
    });
    return due;
}

}  // namespace kelvra::virtual_sensors
