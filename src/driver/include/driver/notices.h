// SPDX-License-Identifier: GPL-3.0-or-later
// What the driver room tells upwards: how sensors are, and when one gets its settings.
#pragma once

#include <string>

#include "util/listeners.h"

namespace kelvra::driver {

class SensorNotices {
public:
    virtual ~SensorNotices() = default;

    // A call for the slot's sensor has failed. The text has all that its current transfer, or
    // opening, has met so far.
    virtual void SensorFailed(int /*slot*/, const std::string& /*text*/) {}
    // What was reported of the slot's sensor is over.
    virtual void SensorIsWell(int /*slot*/) {}
    // Its channel could not be opened; the driver's words. The session ends.
    virtual void OpeningFailed(int /*slot*/, const std::string& /*text*/) {}
};

class TransferMarks {
public:
    virtual ~TransferMarks() = default;

    virtual void TransferBegins(int slot) = 0;
    virtual void TransferEnds(int slot) = 0;
};

struct SessionNews {
    util::Listeners<SensorNotices> notices;
    util::Listeners<TransferMarks> marks;
};

}  // namespace kelvra::driver
