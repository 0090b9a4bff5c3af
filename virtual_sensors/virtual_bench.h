// SPDX-License-Identifier: GPL-3.0-or-later
// The bench that both libraries share: sensors, sessions, device list, error queue and time. The
// exported functions call it; they handle arguments and results themselves.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "bench_clock.h"
#include "faults.h"
#include "scenario.h"
#include "session.h"

namespace kelvra::virtual_sensors {

struct QueuedError {
    int32_t status = 0;
    std::string text;
};

class VirtualBench {
public:
    static constexpr std::size_t MaxSessions = 16;
    static constexpr std::size_t MaxQueuedErrors = 16;

    struct ListEntry {
        const SensorPlan* sensor = nullptr;  // null: no sensor at this index
        bool connected = false;
    };

    explicit VirtualBench(Scenario scenario);
    VirtualBench(const VirtualBench&) = delete;
    VirtualBench& operator=(const VirtualBench&) = delete;

    // Called at the beginning and at the end of every exported function.
    Twist BeginCall(Operation operation, int64_t channel);
    int32_t EndCall(Operation operation, int64_t channel, int32_t status,
                    const std::string& detail);

    double Now() const { return clock_.Now(); }
    const Scenario& Plan() const { return scenario_; }

    // Opens a session with channel 1 and empties the error queue.
    Outcome Init(std::string_view resource, uint32_t& handle);
    Outcome AddSensor(uint32_t handle, int32_t channel, std::string_view resource);
    Outcome Close(uint32_t handle);
    Outcome Find(uint32_t handle, int32_t number, Channel*& channel);

    // Starts every connected channel, then fails if one is not connected.
    Outcome Initiate(uint32_t handle);

    std::string Message(int32_t status) const;
    // Takes the oldest error out of the queue.
    QueuedError NextError();

    // The device list as of its last lock; empty before the first lock and after the release.
    void LockList();
    void ReleaseList() { list_.clear(); }
    const std::vector<ListEntry>& List() const { return list_; }

private:
    Scenario scenario_;
    BenchClock clock_;
    Faults faults_;
    std::vector<VirtualSensor> sensors_;
    std::map<uint32_t, Session> sessions_;
    uint32_t lastHandle_ = 0;
    std::deque<QueuedError> errors_;
    std::vector<ListEntry> list_;
};

// The scenario that the environment variable KELVRA_BENCH names, or the built-in one. An error in
// it is written to standard error, and then there are no sensors.
Scenario ScenarioFromEnvironment();

}  // namespace kelvra::virtual_sensors
