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

std::string Trimmed(std::int64_t number) { return util::TrimmedNumberText(number); }

}  // namespace

void Session::OpenSensor(int slot) {
    sensors::SensorEntry& entry = table_[slot];
    if (table_.SimulationMode) {
        entry.SessionOpen = true;
        entry.WaitTicks = 0;
        return;
    }
    entry.SessionOpen = false;
    const std::string resource = entry.ResourceName;
    if (util::TrimSpaces(resource).empty()) return;
    if (slot != 0 && state.instrumentHandle == 0) return;
    const Status status = slot == 0 ? OpenFirst(resource) : AddFurther(slot, resource);
    if (state.instrumentHandle != 0) state.SessionClosed = false;
    if (CheckStatus(status, true)) return;
    table_[slot].SessionOpen = true;
    table_[slot].WaitTicks = 0;
}

Status Session::OpenFirst(const std::string& resource) {
    if (log.STAT)
        log.OutputDebug("psdrv_init(" + resource + ", 1, 1," +
                        util::NumberText(std::int64_t{state.instrumentHandle}) + ") STARTING");
    Handle opened = 0;
    const Status status =
        operations.psdrv_init(resource.c_str(), CheckIdentity, ResetDevice, &opened);
    if (status == 0) state.instrumentHandle = opened;
    host_.clock.Sleep(OpeningPause);
    ReportError(status, 0, "psdrv_init");
    if (log.STAT)
        log.OutputDebug("psdrv_init FINISHED -> instrumentHandle: " +
                        util::NumberText(std::int64_t{state.instrumentHandle}));
    return status;
}

Status Session::AddFurther(int slot, const std::string& resource) {
    if (log.STAT)
        log.OutputDebug("psdrv_AddSensor(" + Trimmed(state.instrumentHandle) + ", " +
                        Trimmed(ChannelOf(slot)) + ", " + resource + ", 1, 1) STARTING");
    const Status status = operations.psdrv_AddSensor(state.instrumentHandle, ChannelOf(slot),
                                                     resource.c_str(), CheckIdentity, ResetDevice);
    host_.clock.Sleep(OpeningPause);
    ReportError(status, slot, "psdrv_AddSensor");
    log.OutputDebug("psdrv_AddSensor FINISHED");
    if (status != 0) table_[slot].Enabled = false;
    return status;
}

void Session::Close() {
    if (!state.SessionClosed && state.instrumentHandle != 0)
        FramedCall(log, LogForm::General, operations.psdrv_close, state.instrumentHandle);
    state.SessionClosed = true;
    state.instrumentHandle = 0;
    for (sensors::SensorEntry& entry : table_.Sensors) entry.SessionOpen = false;
}

Session::ErrorWords Session::WordsFor(Status status, bool logged) {
    const OperationBase* missing = status == MissingFunction ? operations.missing : nullptr;
    const auto framed = [&](const OperationBase& operation, auto call) {
        const bool write = logged && log.STAT;
        const std::string name(operation.name);
        if (write)
            log.OutputDebug(name + "( " + ArgumentText(state.instrumentHandle, status) +
                            " ) STARTING");
        call();
        if (write) log.OutputDebug(name + " -> FINISHED");
    };
    TextBuffer message;
    framed(operations.psdrv_error_message, [&] {
        operations.psdrv_error_message(state.instrumentHandle, status, message.Data());
    });
    TextBuffer query;
    std::int32_t code = 0;
    framed(operations.psdrv_error_query, [&] {
        operations.psdrv_error_query(state.instrumentHandle, &code, query.Data());
    });
    ErrorWords words{missing != nullptr ? MissingText(operations, *missing) : message.Text(),
                     query.Text()};
    if (words.message.empty()) words.message = Trimmed(status);
    operations.missing = missing;  // who shows the same status next has to name it too
    return words;
}

bool Session::CheckStatus(Status status, bool closeOnError) {
    std::string message;
    if (status != 0) {
        const ErrorWords words = WordsFor(status, true);
        message = words.message;
        host_.dialogs.Message({}, words.message + "\r\n(" + words.query + ")",
                              platform::MessageIcon::Exclamation);
        if (closeOnError) Close();
    }
    state.ReconnectPrompt = util::UpperCase(message).find("DESCRIPTOR") == std::string::npos;
    return status != 0;
}

void Session::ReportError(Status status, int slot, const char* context) {
    if (status == 0) return;
    const ErrorWords words = WordsFor(status, false);
    if (log.STAT) {
        log.OutputDebug("   ERROR: Session " +
                        util::NumberText(std::int64_t{state.instrumentHandle}) + ", Code " +
                        util::NumberText(std::int64_t{status}) + "=0x" +
                        util::HexText(static_cast<std::uint32_t>(status)));
        log.OutputDebug("   error_message: " + words.message);
        log.OutputDebug("   error_query: '" + words.query + "'");
    }
    std::string& text = table_[slot].LastErrorText;
    text += std::string(context) + "\r\n  " + words.message + "\r\n  " + words.query + "\r\n";
    notices_.ShowSensorError(true, slot, text, false);
}

}  // namespace kelvra::driver
