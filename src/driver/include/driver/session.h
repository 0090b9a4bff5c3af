// SPDX-License-Identifier: GPL-3.0-or-later
// The one driver session for all sensors: opens a slot's channel, closes everything, and handles
// failed statuses. The settings are sent elsewhere (transfer.h).
#pragma once

#include <string>

#include "driver/debug_log.h"
#include "driver/notices.h"
#include "driver/operations.h"
#include "platform/clock.h"
#include "sensors/sensor_table.h"

namespace kelvra::driver {

struct LogForm;

struct SessionState {
    Handle instrumentHandle = 0;   // 0: no session
    bool configRunning = false;    // a transfer of settings runs
    bool reconnectPrompt = false;  // reconnecting may mend the last failed opening
    bool sessionClosed = true;     // there is no session to close
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

    // Opens the slot's channel. Slot 0 opens the session; the others are added to it and stay
    // closed until there is one. A failure is reported and ends the session. In simulation mode the
    // slot is open at once. The entry's sessionOpen has the outcome.
    void OpenSensor(int slot);

    // Ends the session, if there is one, and clears the handle, the flag and every slot's
    // sessionOpen.
    void Close();
    void Close(const LogForm& form);

    // If the call has failed: logs it, adds it to the sensor's error text, and reports the text.
    // The context is a short label of the call.
    void ReportError(const CallResult& result, int slot, const char* context);

    // The outcome of starting the measurements, or of fetching the slot's result. A failure stays
    // the sensor's error until the same call succeeds.
    void ReportInitiate(const CallResult& result);
    void ReportFetch(const CallResult& result, int slot);

    // The driver's message for a failed call, logged. Kelvra's own message for a missing function;
    // the status as a number if the driver has no message for it.
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
    // The oldest message of the driver's error queue.
    std::string CallQuery();

    sensors::SensorTable& table_;
    platform::Clock& clock_;
    const util::Listeners<SensorNotices>& notices_;
};

constexpr Channel ChannelOf(int slot) {
    return slot + 1;
}

}  // namespace kelvra::driver
