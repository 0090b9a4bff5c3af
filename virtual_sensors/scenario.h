// SPDX-License-Identifier: GPL-3.0-or-later
// What a scenario says about the bench: its sensors, what they see, and what goes wrong when. Plain
// data: scenario_reader reads it, the bench applies it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "operations.h"
#include "waveform.h"

namespace kelvra::virtual_sensors {

struct Source {
    std::string name;
    double levelDbm = 0;
    std::shared_ptr<const Waveform> waveform;  // null: a continuous wave
};

struct Sight {
    std::size_t source = 0;  // index in Scenario::sources
    double couplingDb = 0;
};

struct SensorPlan {
    std::string type;
    std::string serial;
    std::string name;
    std::size_t index = 0;  // in the device list
    std::vector<Sight> sees;
    double noiseDb = 0;  // standard deviation of a single measurement
    double noiseW = 0;
    bool plugged = true;
};

// Plugging or unplugging a sensor, at a time or at the n-th call of a function.
struct Event {
    std::optional<Operation> operation;
    int64_t call = 0;
    double time = 0;  // s, used without an operation
    bool plug = false;
    std::size_t sensor = 0;  // index in Scenario::sensors
};

// The fault of some calls of a function. With a channel, only that channel's calls count.
struct Fault {
    enum class Effect : uint8_t { Status, Unended, Count, Value };

    Operation operation = Operation::psdrv_init;
    int64_t first = 1;
    int64_t last = std::numeric_limits<int64_t>::max();
    int32_t channel = 0;  // 0: every channel
    Effect effect = Effect::Status;
    int32_t number = 0;   // status or count
    double value = 0;     // reading
    std::string message;  // of the status; empty: the driver's own
};

struct Scenario {
    uint64_t seed = 1;
    bool computerTime = true;
    double pollStep = 0.001;              // s, unless computerTime
    double lockStep = 1;                  // s, likewise
    std::optional<double> fixedDuration;  // s, of every measurement
    double durationFactor = 1;
    double zeroDuration = 3;               // s
    std::optional<double> externalPeriod;  // s; nothing: no external trigger comes
    std::vector<Source> sources;
    std::vector<SensorPlan> sensors;
    std::vector<Event> events;
    std::vector<Fault> faults;
};

// Six sensors of different kinds: two at the two arms of a coupler, one that sees a pulse train,
// one that sees a frame of slots.
std::string_view BuiltInScenario();

}  // namespace kelvra::virtual_sensors
