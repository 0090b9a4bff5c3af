// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of driver operations: each is a member here, and a member is all it takes to have it
// loaded by name, called, and named in the log. The libraries behind them are plugged in by
// driver_library.h, or by a test.
//
// What an operation is given or gives back is typed by the libraries' C interface: statuses and
// whole numbers of 32 bits, booleans of 16 (0 or 1), texts of 8-bit characters. On 32-bit Windows
// the functions are called by __stdcall.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelvra::driver {

#if defined(_WIN32) && !defined(_WIN64)
#define KELVRA_DRIVER_CALL __stdcall
#else
#define KELVRA_DRIVER_CALL
#endif

using Status = std::int32_t;   // 0: success
using Handle = std::uint32_t;  // of a session; 0: none
using Channel = std::int32_t;  // slot index + 1
using Switch = std::uint16_t;  // 0 or 1
constexpr Status MissingFunction = -1;

class OperationList;

class OperationBase {
public:
    OperationBase(OperationList& list, const char* name);

    const char* const name;
    void* address = nullptr;  // null: not there

protected:
    // Notes which function the last call missed, if any.
    bool IsThere() const;

private:
    OperationList& list_;
};

// The operations of one library.
class OperationList {
public:
    std::vector<OperationBase*> all;
    std::string libraryFile;  // as it was looked for
    bool libraryLoaded = false;
    std::string whyNotLoaded;
    const OperationBase* missing = nullptr;  // set while the last call was of one that isn't there
};

inline OperationBase::OperationBase(OperationList& list, const char* operationName)
    : name(operationName), list_(list) {
    list.all.push_back(this);
}

inline bool OperationBase::IsThere() const {
    list_.missing = address == nullptr ? this : nullptr;
    return address != nullptr;
}

template <class... Arguments>
class Operation : public OperationBase {
public:
    using OperationBase::OperationBase;

    Status operator()(Arguments... arguments) const {
        using Function = Status(KELVRA_DRIVER_CALL*)(Arguments...);
        if (!IsThere()) return MissingFunction;
        return reinterpret_cast<Function>(address)(arguments...);
    }
};

// What most operations are given: session, channel, and one value.
template <class Value>
using Setter = Operation<Handle, Channel, Value>;
using SwitchSetter = Setter<Switch>;
using IntSetter = Setter<std::int32_t>;
using DoubleSetter = Setter<double>;

// NOLINTBEGIN(readability-identifier-naming): the names are the functions' own
struct InstrumentOperations : OperationList {
    template <class... A>
    using Op = Operation<A...>;
    using Int = std::int32_t;

    // session
    Op<const char*, Int, Int, Handle*> psdrv_init{*this, "psdrv_init"};
    Op<Handle, Channel, const char*, Int, Int> psdrv_AddSensor{*this, "psdrv_AddSensor"};
    Op<Handle> psdrv_close{*this, "psdrv_close"};
    Op<Handle, Status, char*> psdrv_error_message{*this, "psdrv_error_message"};
    Op<Handle, Int*, char*> psdrv_error_query{*this, "psdrv_error_query"};

    // measuring
    Op<Handle, Channel> psdrv_chan_reset{*this, "psdrv_chan_reset"};
    IntSetter psdrv_chan_mode{*this, "psdrv_chan_mode"};
    Op<Handle> psdrv_chans_initiate{*this, "psdrv_chans_initiate"};
    Op<Handle, Channel> psdrv_meass_sendSoftwareTrigger{*this, "psdrv_meass_sendSoftwareTrigger"};
    Op<Handle, Channel, Switch*> psdrv_chan_isMeasurementComplete{
        *this, "psdrv_chan_isMeasurementComplete"};
    Op<Handle, Channel, double*> psdrv_meass_fetchMeasurement{*this,
                                                              "psdrv_meass_fetchMeasurement"};
    Op<Handle, Channel, Int, double*, Int*> psdrv_meass_fetchBufferMeasurement{
        *this, "psdrv_meass_fetchBufferMeasurement"};
    Op<Handle, Channel, Int*> psdrv_avg_getCount{*this, "psdrv_avg_getCount"};

    // averaging
    SwitchSetter psdrv_avg_setEnabled{*this, "psdrv_avg_setEnabled"};
    SwitchSetter psdrv_avg_setAutoEnabled{*this, "psdrv_avg_setAutoEnabled"};
    IntSetter psdrv_avg_setAutoType{*this, "psdrv_avg_setAutoType"};
    IntSetter psdrv_avg_setAutoResolution{*this, "psdrv_avg_setAutoResolution"};
    DoubleSetter psdrv_avg_setAutoMaxMeasuringTime{*this, "psdrv_avg_setAutoMaxMeasuringTime"};
    DoubleSetter psdrv_avg_setAutoNoiseSignalRatio{*this, "psdrv_avg_setAutoNoiseSignalRatio"};
    IntSetter psdrv_avg_setSlot{*this, "psdrv_avg_setSlot"};
    IntSetter psdrv_avg_setCount{*this, "psdrv_avg_setCount"};
    IntSetter psdrv_avg_setTerminalControl{*this, "psdrv_avg_setTerminalControl"};

    // corrections
    DoubleSetter psdrv_chan_setCorrectionFrequency{*this, "psdrv_chan_setCorrectionFrequency"};
    SwitchSetter psdrv_corr_setOffsetEnabled{*this, "psdrv_corr_setOffsetEnabled"};
    DoubleSetter psdrv_corr_setOffset{*this, "psdrv_corr_setOffset"};
    SwitchSetter psdrv_corr_setSParamDeviceEnabled{*this, "psdrv_corr_setSParamDeviceEnabled"};
    SwitchSetter psdrv_chan_setSourceGammaCorrEnabled{*this,
                                                      "psdrv_chan_setSourceGammaCorrEnabled"};
    DoubleSetter psdrv_chan_setSourceGammaMagnitude{*this, "psdrv_chan_setSourceGammaMagnitude"};
    DoubleSetter psdrv_chan_setSourceGammaPhase{*this, "psdrv_chan_setSourceGammaPhase"};
    SwitchSetter psdrv_corr_setDutyCycleEnabled{*this, "psdrv_corr_setDutyCycleEnabled"};
    DoubleSetter psdrv_corr_setDutyCycle{*this, "psdrv_corr_setDutyCycle"};

    // range and sampling
    SwitchSetter psdrv_range_setAutoEnabled{*this, "psdrv_range_setAutoEnabled"};
    DoubleSetter psdrv_range_setCrossoverLevel{*this, "psdrv_range_setCrossoverLevel"};
    IntSetter psdrv_range_setRange{*this, "psdrv_range_setRange"};
    IntSetter psdrv_chan_setSamplingFrequency{*this, "psdrv_chan_setSamplingFrequency"};
    SwitchSetter psdrv_chan_setInitContinuousEnabled{*this, "psdrv_chan_setInitContinuousEnabled"};

    // trigger
    IntSetter psdrv_trigger_setSource{*this, "psdrv_trigger_setSource"};
    IntSetter psdrv_trigger_setSlope{*this, "psdrv_trigger_setSlope"};
    DoubleSetter psdrv_trigger_setDelay{*this, "psdrv_trigger_setDelay"};
    IntSetter psdrv_trigger_setCount{*this, "psdrv_trigger_setCount"};
    DoubleSetter psdrv_trigger_setLevel{*this, "psdrv_trigger_setLevel"};
    DoubleSetter psdrv_trigger_setHysteresis{*this, "psdrv_trigger_setHysteresis"};
    DoubleSetter psdrv_trigger_setHoldoff{*this, "psdrv_trigger_setHoldoff"};

    // measurement modes
    SwitchSetter psdrv_chan_setContAvBufferedEnabled{*this, "psdrv_chan_setContAvBufferedEnabled"};
    DoubleSetter psdrv_chan_setContAvAperture{*this, "psdrv_chan_setContAvAperture"};
    SwitchSetter psdrv_chan_setContAvSmoothingEnabled{*this,
                                                      "psdrv_chan_setContAvSmoothingEnabled"};
    IntSetter psdrv_chan_setContAvBufferSize{*this, "psdrv_chan_setContAvBufferSize"};
    Op<Handle, Channel, Int, double> psdrv_tslot_configureTimeSlot{*this,
                                                                   "psdrv_tslot_configureTimeSlot"};
    Op<Handle, Channel, double, double> psdrv_timing_configureExclude{
        *this, "psdrv_timing_configureExclude"};
    DoubleSetter psdrv_chan_setBurstDropoutTolerance{*this, "psdrv_chan_setBurstDropoutTolerance"};
    SwitchSetter psdrv_scope_setAverageEnabled{*this, "psdrv_scope_setAverageEnabled"};
    SwitchSetter psdrv_scope_setAutoEnabled{*this, "psdrv_scope_setAutoEnabled"};
    IntSetter psdrv_scope_setAutoType{*this, "psdrv_scope_setAutoType"};
    IntSetter psdrv_scope_setAutoResolution{*this, "psdrv_scope_setAutoResolution"};
    DoubleSetter psdrv_scope_setAutoMaxMeasuringTime{*this, "psdrv_scope_setAutoMaxMeasuringTime"};
    DoubleSetter psdrv_scope_setAutoNoiseSignalRatio{*this, "psdrv_scope_setAutoNoiseSignalRatio"};
    IntSetter psdrv_scope_setAverageCount{*this, "psdrv_scope_setAverageCount"};
    IntSetter psdrv_scope_setAverageTerminalControl{*this, "psdrv_scope_setAverageTerminalControl"};
    IntSetter psdrv_scope_setPoints{*this, "psdrv_scope_setPoints"};
    DoubleSetter psdrv_scope_setTime{*this, "psdrv_scope_setTime"};
    DoubleSetter psdrv_scope_setOffsetTime{*this, "psdrv_scope_setOffsetTime"};
    SwitchSetter psdrv_scope_setRealtimeEnabled{*this, "psdrv_scope_setRealtimeEnabled"};
};

struct DeviceListOperations : OperationList {
    Operation<> TeskLockDeviceList{*this, "TeskLockDeviceList"};
    Operation<std::int32_t*> TeskGetDeviceListLength{*this, "TeskGetDeviceListLength"};
    Operation<std::int32_t, char*, char*, char*, std::int32_t*> TeskGetDeviceInfo{
        *this, "TeskGetDeviceInfo"};
    Operation<> TeskCloseDriver{*this, "TeskCloseDriver"};
};
// NOLINTEND(readability-identifier-naming)

}  // namespace kelvra::driver
