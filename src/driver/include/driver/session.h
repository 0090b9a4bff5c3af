// SPDX-License-Identifier: GPL-3.0-or-later
// The one driver session for all sensors: opening a slot's channel, closing everything, and what is
// done with a failed status. The settings are sent elsewhere (transfer.h).
#pragma once

#include <string>

#include "driver/debug_log.h"
#include "driver/notices.h"
#include "driver/operations.h"
#include "platform/clock.h"
#include "sensors/sensor_table.h"

namespace kelvra::driver {

struct SessionState {
    Handle instrumentHandle = 0;   // 0: no session
    bool configRunning = false;    // a transfer of settings runs
    bool reconnectPrompt = false;  // the last failed opening is one that reconnecting may mend
    bool sessionClosed = true;     // no session is left to be closed
};

class Session {
public:
    Session(SessionState& sessionState, InstrumentOperations& driver, DebugLog& debugLog,
            sensors::SensorTable& table, platform::Clock& clock,
            const util::Listeners<SensorNotices>& notices)
        : state(sessionState),
          operations(driver),
          log(debugLog),
          table_(table),
          clock_(clock),
          notices_(notices) {}

    SessionState& state;
    InstrumentOperations& operations;
    DebugLog& log;

    // Opens the slot's channel: slot 0 opens the session, the others are added to it and stay
    // closed until there is one. A failure is shown in a message box and ends the session. In
    // simulation mode the slot is open at once. The entry's SessionOpen says how it went.
    void OpenSensor(int slot);

    // Ends the session, if there is one: handle, flag and every slot's SessionOpen together.
    void Close();

    // Adds a failed status of a call to the sensor's error text, logs it, and shows the text. The
    // context is a short label of what was called.
    void ReportError(Status status, int slot, const char* context);

    // The driver's words for the status of the last call. A driver that lacks the function that was
    // called gets Kelvra's words, one without messages the number of the status.
    std::string MessageFor(Status status) { return Message(status, true); }

private:
    Status OpenFirst(const std::string& resource);
    Status AddFurther(int slot, const std::string& resource);
    std::string Message(Status status, bool logged);
    // The sensor's own words, an entry of its error queue.
    std::string Query(Status status, bool logged);
    template <class Call>
    void Framed(bool logged, const OperationBase& operation, Status status, Call call);
    // Shows a failed status to the user; true when it was one. ReconnectPrompt follows from the
    // words.
    bool CheckStatus(Status status, int slot);

    sensors::SensorTable& table_;
    platform::Clock& clock_;
    const util::Listeners<SensorNotices>& notices_;
};

constexpr Channel ChannelOf(int slot) {
    return slot + 1;
}

}  // namespace kelvra::driver
