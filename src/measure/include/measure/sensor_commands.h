// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that act on sensors outside a measurement: zeroing, self test, and reading the
// information entries. Each opens a session of its own and closes it again, however it ends. It
// publishes its course (command_listener.h) and shows nothing.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

#include "driver/session.h"
#include "measure/event_rounds.h"
#include "measure/listener.h"
#include "measure/state.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

class SensorCommands {
public:
    // Zeroing takes seconds; a sensor that is not done by then has failed.
    static constexpr auto LongestZero = std::chrono::seconds(60);

    struct Parts {
        sensors::SensorTable& table;
        MeasureState& state;
        platform::Host& host;
        driver::Session& session;
        const News& news;
    };

    explicit SensorCommands(const Parts& parts);
    ~SensorCommands();
    SensorCommands(const SensorCommands&) = delete;
    SensorCommands& operator=(const SensorCommands&) = delete;

    // Each lets events run, and does nothing in simulation mode, without a sensor, and while
    // another command or a measurement runs. Zeroing goes on when its listener has had the power
    // disconnected, which may be after the return.
    void ZeroCurrent();
    void ZeroAll();  // the present sensors, one after the other
    void TestCurrent();
    void ReadCurrent();  // the information entries

    // Ends zeroing: at once while it waits for the user, else after the present poll. The sensor
    // itself goes on zeroing. Other commands can't be ended. False if no command runs.
    bool Stop();

private:
    struct Run;

    bool Begin(SensorCommand command, std::vector<int> slots);
    void End(CommandOutcome outcome);
    std::vector<int> Current() const;

    // These return Done if the command goes on.
    CommandOutcome LetEventsRun();
    CommandOutcome Interruption() const;
    CommandOutcome Open(int slot);
    CommandOutcome Judge(const driver::CallResult& result);

    void AskForPowerOff();
    void ZeroSlots();
    CommandOutcome Zero(int slot);
    CommandOutcome WaitForZero(int slot);
    driver::CallResult AskWhetherZeroed(int slot, driver::Switch& complete);
    CommandOutcome Pause();
    CommandOutcome Test(int slot);
    CommandOutcome ReadEntries(int slot);
    CommandOutcome ReadEntry(int slot, std::int32_t entry);

    Parts p_;
    EventRounds rounds_;
    std::unique_ptr<Run> run_;  // null: none runs
    std::int64_t runs_ = 0;
};

}  // namespace kelvra::measure
