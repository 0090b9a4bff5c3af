// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/session.h"

#include <array>
#include <chrono>

#include "driver/call_log.h"
#include "driver/driver_library.h"
#include "driver/text_buffer.h"
#include "util/text.h"

namespace kelvra::driver {

namespace {

// The driver needs a pause after it has opened a sensor.
constexpr auto OpeningPause = std::chrono::milliseconds(100);

constexpr std::int32_t CheckIdentity = 1;
constexpr std::int32_t ResetDevice = 1;

}  // namespace

void Session::OpenSensor(int slot) {
    sensors::SensorEntry& entry = table_[slot];
    if (table_.simulationMode) {
        entry.sessionOpen = true;
        entry.waitTicks = 0;
        state.sessionClosed = false;
        return;
    }
    entry.sessionOpen = false;
    entry.lastErrorText.clear();
    const std::string resource = entry.resourceName;
    if (util::TrimSpaces(resource).empty()) return;
    if (slot != 0 && state.instrumentHandle == 0) return;
    const CallResult result = slot == 0 ? OpenFirst(resource) : AddFurther(slot, resource);
    if (state.instrumentHandle != 0) state.sessionClosed = false;
    if (result.Failed()) {
        GiveUpOpening(slot, result);
        return;
    }
    state.reconnectPrompt = true;
    // Without a handle there is no session, even if the status is success.
    if (state.instrumentHandle == 0) return;
    table_[slot].sessionOpen = true;
    table_[slot].waitTicks = 0;
}

CallResult Session::OpenFirst(const std::string& resource) {
    const CallFrame frame(log, log_form::Opening, operations.psdrv_init, resource,
                          state.instrumentHandle);
    Handle opened = 0;
    const CallResult result =
        operations.psdrv_init(resource.c_str(), CheckIdentity, ResetDevice, &opened);
    if (!result.Failed()) state.instrumentHandle = opened;
    clock_.Sleep(OpeningPause);
    ReportError(result, 0, "psdrv_init");
    frame.Finish(state.instrumentHandle);
    return result;
}

CallResult Session::AddFurther(int slot, const std::string& resource) {
    const CallFrame frame(log, log_form::Adding, operations.psdrv_AddSensor, state.instrumentHandle,
                          ChannelOf(slot), resource);
    const CallResult result = operations.psdrv_AddSensor(
        state.instrumentHandle, ChannelOf(slot), resource.c_str(), CheckIdentity, ResetDevice);
    clock_.Sleep(OpeningPause);
    ReportError(result, slot, "psdrv_AddSensor");
    frame.Finish();
    if (result.Failed()) table_[slot].enabled = false;
    return result;
}

void Session::GiveUpOpening(int slot, const CallResult& failed) {
    const std::string message = MessageFor(failed);
    const CallFrame frame(log, log_form::General, operations.psdrv_error_query,
                          state.instrumentHandle, failed.status);
    const std::string query = CallQuery();
    frame.Finish();
    notices_.Tell(&SensorNotices::OpeningFailed, slot, message + "\r\n(" + query + ")");
    Close();
    state.reconnectPrompt = util::UpperCase(message).find("DESCRIPTOR") == std::string::npos;
}

void Session::Close() {
    Close(log_form::General);
}

void Session::Close(const LogForm& form) {
    if (!state.sessionClosed && state.instrumentHandle != 0)
        FramedCall(log, form, operations.psdrv_close, state.instrumentHandle);
    state.sessionClosed = true;
    state.instrumentHandle = 0;
    for (sensors::SensorEntry& entry : table_.entries) entry.sessionOpen = false;
}

std::string Session::MessageFor(const CallResult& failed) {
    const CallFrame frame(log, log_form::General, operations.psdrv_error_message,
                          state.instrumentHandle, failed.status);
    std::string message = CallMessage(failed);
    frame.Finish();
    return message;
}

std::string Session::CallMessage(const CallResult& failed) {
    TextBuffer message;
    operations.psdrv_error_message(state.instrumentHandle, failed.status, message.Data());
    if (failed.missing != nullptr) return MissingText(operations, *failed.missing);
    const std::string text = message.Text();
    return text.empty() ? util::TrimmedNumberText(std::int64_t{failed.status}) : text;
}

std::string Session::CallQuery() {
    TextBuffer query;
    std::int32_t code = 0;
    operations.psdrv_error_query(state.instrumentHandle, &code, query.Data());
    return query.Text();
}

Session::Words Session::LogFailure(const CallResult& failed) {
    if (log.enabled)
        log.Write("   ERROR: Session " + util::NumberText(std::int64_t{state.instrumentHandle}) +
                  ", Code " + util::NumberText(std::int64_t{failed.status}) + "=0x" +
                  util::HexText(static_cast<std::uint32_t>(failed.status)));
    Words words;
    words.message = CallMessage(failed);
    log.Write("   error_message: " + words.message);
    words.query = CallQuery();
    log.Write("   error_query: '" + words.query + "'");
    return words;
}

void Session::ReportError(const CallResult& result, int slot, const char* context) {
    if (!result.Failed()) return;
    const Words words = LogFailure(result);
    table_[slot].lastErrorText +=
        std::string(context) + "\r\n  " + words.message + "\r\n  " + words.query + "\r\n";
    TellFailed(slot);
}

void Session::ReportInitiate(const CallResult& result) {
    ReportCall(result, 0, "Initiate: ", &sensors::SensorPresence::initiateError);
}

void Session::ReportFetch(const CallResult& result, int slot) {
    ReportCall(result, slot, "Fetch: ", &sensors::SensorPresence::fetchError);
}

void Session::ReportCall(const CallResult& result, int slot, const char* what, ErrorMember error) {
    if (result.Failed()) {
        table_[slot].*error = what + LogFailure(result).message;
        TellFailed(slot);
    } else if (!(table_[slot].*error).empty()) {
        (table_[slot].*error).clear();
        notices_.Tell(&SensorNotices::SensorIsWell, slot);
    }
}

void Session::TellFailed(int slot) {
    notices_.Tell(&SensorNotices::SensorFailed, slot, sensors::ErrorOf(table_[slot]));
}

}  // namespace kelvra::driver
