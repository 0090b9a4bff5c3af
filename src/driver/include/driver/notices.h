// SPDX-License-Identifier: GPL-3.0-or-later
// What the driver room tells upwards: how sensors are, and when one gets its settings.
#pragma once

#include <string>

#include "util/listeners.h"

namespace kelvra::driver {

class SensorNotices {
public:
    virtual ~SensorNotices() = default;

    // A call for the slot's sensor has failed; `text` is all that is wrong with the sensor now,
    // without a line break at its end.
    virtual void SensorFailed(int /*slot*/, const std::string& /*text*/) {}
    // Something that was wrong with it is over, or it has gone.
    virtual void SensorIsWell(int /*slot*/) {}
    // Its channel could not be opened, and the session will be closed; the driver's words.
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

// Who gives way during a transfer, which may take many slow calls.
class TransferPace {
public:
    virtual ~TransferPace() = default;

    // Asked after each call; may let events run. False ends the transfer before its end.
    virtual bool GoesOn() = 0;
};

}  // namespace kelvra::driver
