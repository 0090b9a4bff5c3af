// SPDX-License-Identifier: GPL-3.0-or-later
// What a measurement tells: the windows, later a recorder or a remote client, subscribe to it.
// Listeners show or note what has happened and return; the measurement goes on by itself.
#pragma once

#include <string>

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
    // Which displays are wanted (MeasureState) has been decided anew.
    virtual void ModesChanged() {}
    // A sensor could not be opened and has been switched off.
    virtual void SwitchedOff(int /*slot*/) {}
    // Nothing will be measured. The program is as if measuring until Stop.
    virtual void StartFailed(StartFailure /*why*/) {}
    // All sensors are open and have their settings: passes follow.
    virtual void Prepared() {}

    // The sensors of a pass have been started.
    virtual void PassStarted() {}
    // The slot's sensor is not complete yet, about once a second; `complaint` has the driver's
    // words when asking it failed, else it is empty.
    virtual void Awaited(int /*slot*/, const std::string& /*complaint*/) {}
    // All results of the pass are there.
    virtual void PassMeasured() {}
    // Events have run since; no sensor is waited for any more. The time is the monotonic clock's;
    // the pass has lasted so long, from its preparation on.
    virtual void PassSeen(platform::Duration /*now*/, platform::Duration /*lasted*/) {}
    // The pass waits for its deadline, which is so far away; about every millisecond.
    virtual void PassWaits(platform::Duration /*left*/) {}
    virtual void PassEnded() {}

    // Stop was pressed, or the measurement has ended by itself.
    virtual void Stopped() {}
    // The slot's sensor had lost its session, and the measurement has ended.
    virtual void SessionLost(const LostSession& /*lost*/) {}
};

// What happens at one slot in a pass. Many thousands a second: who needs only the course of a
// measurement listens to that.
class SlotListener {
public:
    virtual ~SlotListener() = default;

    virtual void SlotStarted(int slot) = 0;
    virtual void SlotComplete(int slot) = 0;
    // The sensor's entry has a new scalar reading, or a new array.
    virtual void ReadingArrived(int slot) = 0;
    virtual void ArrayArrived(int slot) = 0;
};

struct News {
    util::Listeners<MeasurementListener> measurement;
    util::Listeners<SlotListener> slot;
};

}  // namespace kelvra::measure
