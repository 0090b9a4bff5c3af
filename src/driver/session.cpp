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

// The driver wants a pause after it has opened a sensor.
constexpr auto OpeningPause = std::chrono::milliseconds(100);

constexpr std::int32_t CheckIdentity = 1;
constexpr std::int32_t ResetDevice = 1;

std::string Trimmed(std::int64_t number) {
    return util::TrimmedNumberText(number);
}

}  // namespace

void Session::OpenSensor(int slot) {
    sensors::SensorEntry& entry = table_[slot];
    if (table_.simulationMode) {
        entry.sessionOpen = true;
        entry.waitTicks = 0;
        return;
    }
    entry.sessionOpen = false;
    entry.lastErrorText.clear();
    const std::string resource = entry.resourceName;
    if (util::TrimSpaces(resource).empty()) return;
    if (slot != 0 && state.instrumentHandle == 0) return;
    const Status status = slot == 0 ? OpenFirst(resource) : AddFurther(slot, resource);
    if (state.instrumentHandle != 0) state.sessionClosed = false;
    // Without a handle there is no session, whatever the status says.
    if (CheckStatus(status, slot) || state.instrumentHandle == 0) return;
    table_[slot].sessionOpen = true;
    table_[slot].waitTicks = 0;
}

Status Session::OpenFirst(const std::string& resource) {
    if (log.enabled)
        log.Write("psdrv_init(" + resource + ", 1, 1," +
                  util::NumberText(std::int64_t{state.instrumentHandle}) + ") STARTING");
    Handle opened = 0;
    const Status status =
        operations.psdrv_init(resource.c_str(), CheckIdentity, ResetDevice, &opened);
    if (status == 0) state.instrumentHandle = opened;
    clock_.Sleep(OpeningPause);
    ReportError(status, 0, "psdrv_init");
    if (log.enabled)
        log.Write("psdrv_init FINISHED -> instrumentHandle: " +
                  util::NumberText(std::int64_t{state.instrumentHandle}));
    return status;
}

Status Session::AddFurther(int slot, const std::string& resource) {
    if (log.enabled)
        log.Write("psdrv_AddSensor(" + Trimmed(state.instrumentHandle) + ", " +
                  Trimmed(ChannelOf(slot)) + ", " + resource + ", 1, 1) STARTING");
    const Status status = operations.psdrv_AddSensor(state.instrumentHandle, ChannelOf(slot),
                                                     resource.c_str(), CheckIdentity, ResetDevice);
    clock_.Sleep(OpeningPause);
    ReportError(status, slot, "psdrv_AddSensor");
    log.Write("psdrv_AddSensor FINISHED");
    if (status != 0) table_[slot].enabled = false;
    return status;
}

void Session::Close() {
    if (!state.sessionClosed && state.instrumentHandle != 0)
        FramedCall(log, LogForm::General, operations.psdrv_close, state.instrumentHandle);
    state.sessionClosed = true;
    state.instrumentHandle = 0;
    for (sensors::SensorEntry& entry : table_.entries) entry.sessionOpen = false;
}

template <class Call>
void Session::Framed(bool logged, const OperationBase& operation, Status status, Call call) {
    const bool write = logged && log.enabled;
    const std::string name(operation.name);
    if (write)
        log.Write(name + "( " + ArgumentText(state.instrumentHandle, status) + " ) STARTING");
    call();
    if (write) log.Write(name + " -> FINISHED");
}

std::string Session::Message(Status status, bool logged) {
    // Who shows the same status next has to name what is missing too.
    const OperationBase* missing = status == MissingFunction ? operations.missing : nullptr;
    TextBuffer message;
    Framed(logged, operations.psdrv_error_message, status,
           [&] { operations.psdrv_error_message(state.instrumentHandle, status, message.Data()); });
    operations.missing = missing;
    if (missing != nullptr) return MissingText(operations, *missing);
    const std::string text = message.Text();
    return text.empty() ? Trimmed(status) : text;
}

std::string Session::Query(Status status, bool logged) {
    const OperationBase* missing = operations.missing;
    TextBuffer query;
    std::int32_t code = 0;
    Framed(logged, operations.psdrv_error_query, status,
           [&] { operations.psdrv_error_query(state.instrumentHandle, &code, query.Data()); });
    operations.missing = missing;
    return query.Text();
}

bool Session::CheckStatus(Status status, int slot) {
    std::string message;
    if (status != 0) {
        message = Message(status, true);
        const std::string query = Query(status, true);
        notices_.Tell(&SensorNotices::OpeningFailed, slot, message + "\r\n(" + query + ")");
        Close();
    }
    state.reconnectPrompt = util::UpperCase(message).find("DESCRIPTOR") == std::string::npos;
    return status != 0;
}

void Session::ReportError(Status status, int slot, const char* context) {
    if (status == 0) return;
    if (log.enabled)
        log.Write("   ERROR: Session " + util::NumberText(std::int64_t{state.instrumentHandle}) +
                  ", Code " + util::NumberText(std::int64_t{status}) + "=0x" +
                  util::HexText(static_cast<std::uint32_t>(status)));
    const std::string message = Message(status, false);
    log.Write("   error_message: " + message);
    const std::string query = Query(status, false);
    log.Write("   error_query: '" + query + "'");
    std::string& text = table_[slot].lastErrorText;
    text += std::string(context) + "\r\n  " + message + "\r\n  " + query + "\r\n";
    notices_.Tell(&SensorNotices::SensorFailed, slot, text);
}

}  // namespace kelvra::driver
