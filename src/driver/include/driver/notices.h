// SPDX-License-Identifier: GPL-3.0-or-later
// What the driver room reports upwards: how sensors are, and when one gets its settings.
#pragma once

#include <string>

#include "util/listeners.h"

namespace kelvra::driver {

class SensorNotices {
public:
    virtual ~SensorNotices() = default;

    // A call for the slot's sensor has failed. `text` has all of the sensor's current errors,
    // without a line break at its end.
    virtual void SensorFailed(int /*slot*/, const std::string& /*text*/) {}
    // One of the sensor's errors is over, or the sensor has gone.
    virtual void SensorIsWell(int /*slot*/) {}
    // The sensor's channel could not be opened, and the session will be closed. `text` is the
    // driver's message.
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

// Called during a transfer, which may take many slow calls.
class TransferPace {
public:
    virtual ~TransferPace() = default;

    // Called after each call of a transfer; may let events run. False ends the transfer early.
    virtual bool GoesOn() = 0;
};

}  // namespace kelvra::driver
