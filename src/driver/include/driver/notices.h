// SPDX-License-Identifier: GPL-3.0-or-later
// What the driver room tells upwards. The windows' rules plug in here.
#pragma once

#include <string>

namespace kelvra::driver {

class SensorNotices {
public:
    virtual ~SensorNotices() = default;

    // Shows an error text of a slot's sensor, or clears what is shown. A general message is one of
    // the program's own and gets no sensor name in front.
    virtual void ShowSensorError(bool isError, int slot, const std::string& text,
                                 bool isGeneral) = 0;
};

class TransferMarks {
public:
    virtual ~TransferMarks() = default;

    virtual void TransferBegins(int slot) = 0;
    virtual void TransferEnds(int slot) = 0;
};

}  // namespace kelvra::driver
