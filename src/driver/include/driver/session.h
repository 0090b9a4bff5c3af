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
    // closed until there is one. A failure is reported and ends the session. In simulation mode the
    // slot is open at once. The entry's sessionOpen says how it went.
    void OpenSensor(int slot);

    // Ends the session, if there is one: handle, flag and every slot's sessionOpen together.
    void Close();

    // If the call has failed: logs it, adds it to the sensor's error text, and reports the text.
    // The context is a short label of what was called.
    void ReportError(const CallResult& result, int slot, const char* context);

    // What came of starting the measurements, or of fetching the slot's result: a failure is the
    // sensor's error until the same call succeeds.
    void ReportInitiate(const CallResult& result);
    void ReportFetch(const CallResult& result, int slot);

    // The driver's words for a failed call, logged. A function that is missing gets Kelvra's words,
    // a status that the driver has no words for is shown as a number.
    std::string MessageFor(const CallResult& failed);

private:
    using ErrorMember = std::string sensors::SensorPresence::*;
    struct Words {
        std::string message;
        std::string query;
    };

    CallResult OpenFirst(const std::string& resource);
    CallResult AddFurther(int slot, const std::string& resource);
    void GiveUpOpening(int slot, const CallResult& failed);
    Words LogFailure(const CallResult& failed);
    void ReportCall(const CallResult& result, int slot, const char* what, ErrorMember error);
    void TellFailed(int slot);
    std::string CallMessage(const CallResult& failed);
    // The sensor's own words, an entry of its error queue.
    std::string CallQuery();

    sensors::SensorTable& table_;
    platform::Clock& clock_;
    const util::Listeners<SensorNotices>& notices_;
};

constexpr Channel ChannelOf(int slot) {
    return slot + 1;
}

}  // namespace kelvra::driver
