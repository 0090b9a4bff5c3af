// SPDX-License-Identifier: GPL-3.0-or-later
// What a sensor command publishes: zeroing, a self test, or a look at a sensor's information
// entries. Listeners show it and return.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kelvra::measure {

enum class SensorCommand { Zero, SelfTest, Information };

enum class CommandOutcome {
    Done,
    NotOpened,  // a sensor could not be opened
    Failed,     // the driver has refused a call
    TimedOut,   // zeroing
    Stopped,    // zeroing, by the user
    Exiting,    // the exit routine has run
};

struct InfoEntry {
    std::string name;
    std::string value;
    bool operator==(const InfoEntry&) const = default;
};

struct CommandEnd {
    SensorCommand command{};
    CommandOutcome outcome{};
    int slot = 0;             // of the sensor that it worked on last
    int sensors = 0;          // how many it was to work on
    int begun = 0, done = 0;  // how many of them it has begun with, and completed
    bool reported = false;    // NotOpened: the driver's message has been reported
    std::string message{};    // Failed: the driver's
    std::string report{};     // of a self test, as the driver wrote it
    std::vector<InfoEntry> entries{};
};

class CommandListener {
public:
    virtual ~CommandListener() = default;

    virtual void CommandBegins(SensorCommand /*command*/) {}
    // Power at the sensors would spoil zeroing. Call `goOn` when the user has confirmed that it is
    // disconnected; it does nothing if the command has ended by then.
    virtual void PowerMustBeOff(const std::function<void()>& /*goOn*/) {}
    // A sensor is being zeroed or tested: the `number`-th (from 1) of `sensors`.
    virtual void SensorBegins(SensorCommand /*command*/, int /*slot*/, int /*number*/,
                              int /*sensors*/) {}
    virtual void SensorEnds(int /*slot*/) {}
    // The session is closed, and other commands can run again.
    virtual void CommandEnded(const CommandEnd& /*end*/) {}
};

}  // namespace kelvra::measure
