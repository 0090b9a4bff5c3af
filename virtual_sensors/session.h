// SPDX-License-Identifier: GPL-3.0-or-later
// A driver session: the sensor and the settings of each channel. Handles, errors and faults are
// left to the bench.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "measurement.h"
#include "status.h"
#include "virtual_sensor.h"

namespace kelvra::virtual_sensors {

// How a call ended. The detail, if any, replaces the message in the error queue.
struct Outcome {
    Status status = Status::Ok;
    std::string detail{};
};

struct Channel {
    explicit Channel(VirtualSensor& of) : sensor(&of), plugging(of.Plugging()) {}

    // False once the sensor has been unplugged, even if it is plugged in again.
    bool Connected() const { return sensor->Plugged() && sensor->Plugging() == plugging; }

    // Changes one setting within its limits and the model's modes.
    Outcome Set(Setting setting, double value);

    void Reset();

    VirtualSensor* sensor;
    int64_t plugging;
    SettingValues settings;
    Measurement measurement;
    double zeroEnd = 0;  // the bench's time
};

// The sensor named by a resource text "USB::vendor::product::serial". The vendor may be anything,
// the product is a hexadecimal number with "0x", the serial must match exactly.
VirtualSensor* FindResource(std::vector<VirtualSensor>& sensors, std::string_view resource);

class Session {
public:
    static constexpr int32_t MaxChannel = 256;

    // Opens the channel; an open channel is opened again, with this sensor.
    Outcome Open(int32_t channel, VirtualSensor* sensor);

    // Finds an open, connected channel; the outcome says why there is none.
    Outcome Find(int32_t number, Channel*& channel);

    std::map<int32_t, Channel>& Channels() { return channels_; }

private:
    std::map<int32_t, Channel> channels_;
};

}  // namespace kelvra::virtual_sensors
