// SPDX-License-Identifier: GPL-3.0-or-later
// The bench's own time in seconds from its first use. It follows the computer's clock, or it
// advances by a fixed step at each poll and at each lock of the device list, so that runs repeat
// exactly.
#pragma once

#include <chrono>

#include "scenario.h"

namespace kelvra::virtual_sensors {

class BenchClock {
public:
    explicit BenchClock(const Scenario& scenario)
        : computer_(scenario.computerTime),
          pollStep_(scenario.pollStep),
          lockStep_(scenario.lockStep) {}

    double Now() const {
        if (!computer_) return polls_ * pollStep_ + locks_ * lockStep_;
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    }

    // Call for every function call; some of them advance the counted time.
    void Meet(Operation operation) {
        if (operation == Operation::psdrv_chan_isMeasurementComplete ||
            operation == Operation::psdrv_chan_isZeroComplete) {
            ++polls_;
        } else if (operation == Operation::TeskLockDeviceList) {
            ++locks_;
        }
    }

private:
    bool computer_;
    double pollStep_;
    double lockStep_;
    double polls_ = 0;  // counted, because adding up steps would drift
    double locks_ = 0;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace kelvra::virtual_sensors
