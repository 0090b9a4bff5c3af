// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/transfer.h"
#include "driver/catalogue.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "driver/settings_sender.h"
#include "util/levels.h"
#include "util/number_reading.h"
#include "util/number_text.h"

namespace kelvra::driver {

namespace {

using sensors::SensorSettings;

constexpr double DefaultFrequencyHz = 50e6;
constexpr std::size_t HeaderWidth = 20;
constexpr Switch Off = 0;
constexpr Switch On = 1;
constexpr std::int32_t TypeNormal = 0;
constexpr std::int32_t TypeNoise = 1;

Switch SwitchOf(bool on) {
    return on ? On : Off;
}

// How results are delivered while averaging goes on.
std::int32_t TerminalControl(bool moving) {
    return moving ? 0 : 1;
}

// The resolution as the driver's whole number. A value too large for it becomes the largest, which
// the driver refuses.
std::int32_t Resolution(double value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return util::RoundToInt32(value).value_or(value > 0 ? Limits::max() : Limits::min());
}

void SendAveraging(SettingsSender& send, InstrumentOperations& op, const SensorSettings& s) {
    send(op.psdrv_avg_setEnabled, Unchecked, SwitchOf(s.AvgEnable));
    if (!s.AvgEnable) return;
    const auto sendReferenceSlot = [&] {
        if (s.Mode == sensors::TimeSlot)
            send(op.psdrv_avg_setSlot, "Average Time Slot", std::int32_t{s.AvgSlotNum});
    };
    switch (s.AvgMode) {
        case sensors::ByResolution:
            send(op.psdrv_avg_setAutoEnabled, "Average Auto Enabled", On);
            send.Send(log_form::TypeNormal, op.psdrv_avg_setAutoType, "Average Type Normal",
                      TypeNormal);
            send(op.psdrv_avg_setAutoResolution, "Average Resolution", Resolution(s.AvgNormVal));
            send.Send(log_form::SpaceAfterName, op.psdrv_avg_setAutoMaxMeasuringTime,
                      "Average Max MeasTime", s.AvgMaxSetTime);
            sendReferenceSlot();
            break;
        case sensors::ByNoise:
            send(op.psdrv_avg_setAutoEnabled, "Average Auto Enabled", On);
            send.Send(log_form::TypeNoise, op.psdrv_avg_setAutoType, "Average Type SN", TypeNoise);
            send(op.psdrv_avg_setAutoNoiseSignalRatio, "Average SN Value", s.AvgSNVal);
            send(op.psdrv_avg_setAutoMaxMeasuringTime, "Average Max MeasTime", s.AvgMaxSetTime);
            sendReferenceSlot();
            break;
        case sensors::ByCount:
            send(op.psdrv_avg_setAutoEnabled, "Average Auto Disable", Off);
            send(op.psdrv_avg_setCount, "Average Count", s.AvgManCount);
            break;
        default:
            break;
    }
    send(op.psdrv_avg_setTerminalControl, "Average Terminal Control", TerminalControl(s.AvgMoving));
}

void SendCorrections(SettingsSender& send, InstrumentOperations& op, const SensorSettings& s) {
    send(op.psdrv_chan_setCorrectionFrequency, "Correction Frequency",
         s.CorrFreq ? s.CorrFreqVal : DefaultFrequencyHz);
    if (s.CorrOffset) {
        send(op.psdrv_corr_setOffsetEnabled, "Correction Offset ON", On);
        send(op.psdrv_corr_setOffset, "Correction Offset VALUE", s.CorrOffsetVal);
    } else {
        send(op.psdrv_corr_setOffsetEnabled, "Correction Offset OFF", Off);
    }
    send.Send(log_form::ArgumentsAgain, op.psdrv_corr_setSParamDeviceEnabled,
              "Correction S parameter", SwitchOf(s.CorrSParaCor));
    if (s.CorrGamma) {
        send(op.psdrv_chan_setSourceGammaCorrEnabled, "Correction Gamma ON", On);
        send(op.psdrv_chan_setSourceGammaMagnitude, "Correction Gamma Amp", s.CorrGammaAmp);
        send(op.psdrv_chan_setSourceGammaPhase, "Correction Gamma Pha", s.CorrGammaPha);
    } else {
        send(op.psdrv_chan_setSourceGammaCorrEnabled, "Correction Gamma OFF", Off);
    }
    if (s.CorrDuty) {
        send(op.psdrv_corr_setDutyCycleEnabled, "Correction Duty Cycle ON", On);
        send(op.psdrv_corr_setDutyCycle, "Correction Duty Cycle Value", s.CorrDutyVal);
    } else {
        send(op.psdrv_corr_setDutyCycleEnabled, "Correction Duty Cycle OFF", Off);
    }
}

void SendRange(SettingsSender& send, InstrumentOperations& op, const SensorSettings& s) {
    constexpr std::int32_t highFrequency = 1;
    constexpr std::int32_t lowFrequency = 2;
    if (s.RangeAuto) {
        send(op.psdrv_range_setAutoEnabled, "Range Auto ON", On);
        send(op.psdrv_range_setCrossoverLevel, "Range Crossover Level", s.RangeCross);
    } else {
        send(op.psdrv_range_setAutoEnabled, "Range Auto OFF", Off);
        send(op.psdrv_range_setRange, "Range Path Selection", std::int32_t{s.RangePath});
    }
    send(op.psdrv_chan_setSamplingFrequency, "Sampling Frequency",
         s.FreqHigh ? highFrequency : lowFrequency);
    send(op.psdrv_chan_setInitContinuousEnabled, "Continuous Mode", SwitchOf(s.ContMeas));
}

void SendTrigger(SettingsSender& send, InstrumentOperations& op, const SensorSettings& s) {
    send(op.psdrv_trigger_setSource, "Trigger Source", std::int32_t{s.TrigSource});
    send(op.psdrv_trigger_setSlope, "Trigger Slope", std::int32_t{s.TrigSlope});
    send.Send(log_form::NameAlone, op.psdrv_trigger_setDelay, "Trigger Delay", s.TrigDelay);
    send(op.psdrv_trigger_setCount, "Trigger Count", s.TrigCount);
    send(op.psdrv_trigger_setLevel, "Trigger Level", util::DbmToW(s.TrigLevel));
    send(op.psdrv_trigger_setHysteresis, "Trigger Hysteresis", s.TrigHyster);
    send(op.psdrv_trigger_setHoldoff, "Trigger HoldOff", s.TrigHoldOff);
}

// The trace's own averaging; its parameters are sent whether it is on or off.
void SendTraceAveraging(SettingsSender& send, InstrumentOperations& op, const SensorSettings& s) {
    send(op.psdrv_scope_setAverageEnabled, "Scope Average", SwitchOf(s.ScopeAVGEnable));
    switch (s.ScopeAvgMode) {
        case sensors::ByResolution:
            send(op.psdrv_scope_setAutoEnabled, "Scope Average Auto ON", On);
            send.Send(log_form::TypeNormal, op.psdrv_scope_setAutoType, "Scope Average Type Normal",
                      TypeNormal);
            send(op.psdrv_scope_setAutoResolution, "Scope Average Normal Resolution",
                 Resolution(s.ScopeAVGNormVal));
            send(op.psdrv_scope_setAutoMaxMeasuringTime, "Scope Average Max MeasTime",
                 s.ScopeAVGMaxSetTime);
            break;
        case sensors::ByNoise:
            send(op.psdrv_scope_setAutoEnabled, Unchecked, On);
            send.Send(log_form::TypeNoise, op.psdrv_scope_setAutoType, Unchecked, TypeNoise);
            send(op.psdrv_scope_setAutoNoiseSignalRatio, Unchecked, s.ScopeAVGSNVal);
            send(op.psdrv_scope_setAutoMaxMeasuringTime, Unchecked, s.ScopeAVGMaxSetTime);
            break;
        case sensors::ByCount:
            send(op.psdrv_scope_setAutoEnabled, Unchecked, Off);
            send(op.psdrv_scope_setAverageCount, Unchecked, s.ScopeAVGManCount);
            break;
        default:
            break;
    }
}

void SendTrace(SettingsSender& send, InstrumentOperations& op, const SensorSettings& s) {
    SendTraceAveraging(send, op, s);
    send(op.psdrv_scope_setAverageTerminalControl, Unchecked, TerminalControl(s.ScopeAVGMoving));
    send(op.psdrv_scope_setPoints, Unchecked, std::int32_t{s.ScopePoints});
    send(op.psdrv_scope_setTime, Unchecked, s.ScopeTime);
    send(op.psdrv_scope_setOffsetTime, Unchecked, s.ScopeOffset);
    send(op.psdrv_scope_setRealtimeEnabled, Unchecked, SwitchOf(s.ScopeRealtime));
}

void SendMode(SettingsSender& send, InstrumentOperations& op, const SensorSettings& s) {
    send(op.psdrv_chan_mode, "Mode", s.Mode);
    send(op.psdrv_chan_setContAvBufferedEnabled, "ContAV Buffered OFF", Off);
    switch (s.Mode) {
        case sensors::ContinuousAverage:
            send(op.psdrv_chan_setContAvAperture, "ContAV aperture", s.ContAVAper);
            send(op.psdrv_chan_setContAvSmoothingEnabled, "ContAV smoothing",
                 SwitchOf(s.ContAvSmooth));
            break;
        case sensors::BufferedAverage:
            send(op.psdrv_chan_setContAvBufferedEnabled, "BufferedAV", On);
            send(op.psdrv_chan_setContAvBufferSize, "BufferedAV Size",
                 std::int32_t{s.BuffAVBuffer});
            break;
        case sensors::TimeSlot:
            send(op.psdrv_tslot_configureTimeSlot, "Time Slot Configuration",
                 std::int32_t{s.TSlotCount}, s.TSlotWidth);
            send(op.psdrv_timing_configureExclude, "Time Slot Exclude Configuration",
                 s.TSlotExclStart, s.TSlotExclStop);
            break;
        case sensors::Burst:
            send(op.psdrv_chan_setBurstDropoutTolerance, "Burst Dropout Tolerance",
                 s.BurstAVDropTol);
            break;
        case sensors::Trace:
            SendTrace(send, op, s);
            break;
        default:
            break;
    }
}

// "12, 1", left-aligned in a field of 20 characters.
std::string LogHeader(Handle handle, int slot) {
    std::string header = util::TrimmedNumberText(std::int64_t{handle}) + ", " +
                         util::TrimmedNumberText(std::int64_t{ChannelOf(slot)});
    header.resize(HeaderWidth, ' ');
    return header;
}

}  // namespace

void ConfigurationTransfer::ConfigureSensor(int slot) {
    {
        const sensors::TableLock lock(table_);
        session_.state.configRunning = true;
        news_.marks.Tell(&TransferMarks::TransferBegins, slot);
        FramedCall(session_.log, log_form::Reset, session_.operations.psdrv_chan_reset,
                   session_.state.instrumentHandle, ChannelOf(slot));
        sensors::SensorEntry& entry = table_[slot];
        entry.lastErrorText.clear();
        entry.settingsChanged = false;  // an edit during the transfer sets it again
        const bool complete = Send(slot);
        if (complete)
            ReportOutcome(slot);
        else
            entry.settingsChanged = true;
        session_.state.configRunning = false;
    }
    news_.marks.Tell(&TransferMarks::TransferEnds, slot);
}

// The sensor's type decides which settings it takes, not the name that the user has given it.
bool ConfigurationTransfer::Send(int slot) {
    SettingsSender send(session_, slot, LogHeader(session_.state.instrumentHandle, slot), pace_);
    InstrumentOperations& op = session_.operations;
    const sensors::SensorSettings& settings = table_[slot].settings;
    const std::string_view type = sensors::TypeOf(table_[slot]);
    SendAveraging(send, op, settings);
    SendCorrections(send, op, settings);
    if (TakesAdvanced(type)) SendRange(send, op, settings);
    if (TakesTriggerAndMode(type)) {
        SendTrigger(send, op, settings);
        SendMode(send, op, settings);
    }
    return send.Complete();
}

void ConfigurationTransfer::ReportOutcome(int slot) {
    sensors::SensorEntry& entry = table_[slot];
    if (entry.lastErrorText.empty()) {
        entry.initiateError.clear();
        entry.fetchError.clear();
        news_.notices.Tell(&SensorNotices::SensorIsWell, slot);
    } else {
        news_.notices.Tell(&SensorNotices::SensorFailed, slot, sensors::ErrorOf(entry));
    }
}

}  // namespace kelvra::driver
