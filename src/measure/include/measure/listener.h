// SPDX-License-Identifier: GPL-3.0-or-later
// What a measurement publishes: the windows, later a recorder or a remote client, subscribe to it.
// Listeners show or note what has happened and return; the measurement does not depend on them.
#pragma once

#include <string>

#include "measure/command_listener.h"
#include "platform/clock.h"
#include "util/listeners.h"

namespace kelvra::measure {

enum class StartFailure {
    NoSensor,          // no enabled sensor
    Opening,           // a sensor could not be opened
    OpeningReconnect,  // the same, and plugging it in again may help
};

struct LostSession {
    int slot = 0;
    bool answersAgain = false;
    bool wasRecording = false;
};

// The course of a measurement, in this order.
class MeasurementListener {
public:
    virtual ~MeasurementListener() = default;

    // The enabled sensors have the lowest slots now; none is open yet.
    virtual void Started() {}
    // The wanted displays (MeasureState) have been determined again.
    virtual void ModesChanged() {}
    // A sensor could not be opened and has been switched off.
    virtual void SwitchedOff(int /*slot*/) {}
    // Nothing will be measured. The program stays as if measuring until Stop.
    virtual void StartFailed(StartFailure /*why*/) {}
    // All sensors are open and have their settings; the passes follow.
    virtual void Prepared() {}

    // The slot's sensor is not complete yet; sent about once a second. `complaint` has the driver's
    // message if asking the sensor failed, else it is empty.
    virtual void Awaited(int /*slot*/, const std::string& /*complaint*/) {}
    // Stop was pressed, or the measurement has ended by itself.
    virtual void Stopped() {}
    // The slot's sensor had lost its session, and the measurement has ended.
    virtual void SessionLost(const LostSession& /*lost*/) {}
};

// The course of each pass, in this order: thousands of times a second, so that only those who need
// it listen.
class PassListener {
public:
    virtual ~PassListener() = default;

    // The sensors of a pass have been started.
    virtual void PassStarted() {}
    // All results of the pass are there.
    virtual void PassMeasured() {}
    // Events have run since PassMeasured, and no sensor is waited for. `now` is the monotonic
    // clock's time; `lasted` counts from the pass's preparation.
    virtual void PassSeen(platform::Duration /*now*/, platform::Duration /*lasted*/) {}
    // The pass waits until `left` has passed; sent about every millisecond.
    virtual void PassWaits(platform::Duration /*left*/) {}
    virtual void PassEnded() {}
};

// What happens at one slot in a pass.
class SlotListener {
public:
    virtual ~SlotListener() = default;

    virtual void SlotStarted(int /*slot*/) {}
    virtual void SlotComplete(int /*slot*/) {}
    // The sensor's entry has a new scalar reading, or a new array.
    virtual void ReadingArrived(int /*slot*/) {}
    virtual void ArrayArrived(int /*slot*/) {}
};

struct News {
    util::Listeners<MeasurementListener> measurement;
    util::Listeners<PassListener> pass;
    util::Listeners<SlotListener> slot;
    util::Listeners<CommandListener> command;
};

}  // namespace kelvra::measure
