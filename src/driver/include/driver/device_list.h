// SPDX-License-Identifier: GPL-3.0-or-later
// The connected sensors as the device-list library reports them, with their resource descriptors.
#pragma once

#include <string>
#include <vector>

#include "driver/operations.h"
#include "sensors/sensor_table.h"

namespace kelvra::driver {

struct DeviceListEntry {
    std::string resourceName;  // empty: no connected device at this index
    std::string type;
    std::string serial;
    std::string name;  // may be empty
};

class DeviceCatalogue {
public:
    explicit DeviceCatalogue(DeviceListOperations& operations) : operations_(operations) {}

    // Up to the last index with a connected device; a single empty element if there is none.
    std::vector<DeviceListEntry> deviceList = std::vector<DeviceListEntry>(1);

    // Reads the library's list (at most 256 entries), sizes the display limits, and sets
    // deviceTableChanged when fewer sensors are connected than the last time. Discovery sizes the
    // sensor table, because it first saves the settings of sensors that have gone.
    void BuildDeviceList(sensors::SensorTable& table);

    int Connected() const;

    // Ends the use of the library.
    void Close() { operations_.TeskCloseDriver(); }

private:
    void ReadEntry(int index);

    DeviceListOperations& operations_;
    int lastConnected_ = 0;
};

}  // namespace kelvra::driver
