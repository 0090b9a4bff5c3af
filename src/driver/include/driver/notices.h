// SPDX-License-Identifier: GPL-3.0-or-later
// The driver's news of its sensors. Whoever shows them plugs in here.
#pragma once

#include <string>

namespace kelvra::driver {

class SensorNotices {
public:
    virtual ~SensorNotices() = default;

    // A call for the slot's sensor has failed; `text` has all that the sensor's current transfer
    // (or opening) has met so far, without a line break at its end.
    virtual void SensorFailed(int slot, const std::string& text) = 0;
    // Its settings were sent without an error, or it has gone: what was reported of it is over.
    virtual void SensorIsWell(int slot) = 0;
    // Its channel could not be opened, and the session will be closed; the driver's words.
    virtual void OpeningFailed(int slot, const std::string& text) = 0;
};

class TransferMarks {
public:
    virtual ~TransferMarks() = default;

    virtual void TransferBegins(int slot) = 0;
    virtual void TransferEnds(int slot) = 0;
};

}  // namespace kelvra::driver
