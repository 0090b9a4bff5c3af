// SPDX-License-Identifier: GPL-3.0-or-later
// Recovers from a lost driver session. When the driver has refused the session's handle during a
// transfer, it opens the session again, sends the sensor its settings again, and ends the
// measurement. Runs once in a measurement, after the transfer, and never inside itself.
#pragma once

#include <cstdint>
#include <string>

#include "driver/notices.h"
#include "driver/session.h"
#include "driver/transfer.h"
#include "measure/cycle.h"
#include "measure/listener.h"
#include "measure/state.h"
#include "platform/events.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

class SessionRecovery final : public driver::SensorNotices, public driver::TransferMarks {
public:
    struct Parts {
        sensors::SensorTable& table;
        const MeasureState& state;
        platform::Events& events;
        driver::Session& session;
        driver::ConfigurationTransfer& transfer;
        Cycle& cycle;
        const News& news;
        const util::Listeners<driver::SensorNotices>& notices;
    };

    explicit SessionRecovery(const Parts& parts) : p_(parts) {}

    void SensorFailed(int slot, const std::string& text) override;
    void TransferBegins(int /*slot*/) override { handleRefused_ = false; }
    void TransferEnds(int slot) override;

private:
    bool Reopen(int slot);

    Parts p_;
    bool handleRefused_ = false;  // in the current or latest transfer
    std::int64_t recoveredInStart_ = 0;
};

}  // namespace kelvra::measure
