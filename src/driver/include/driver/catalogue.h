// SPDX-License-Identifier: GPL-3.0-or-later
// The sensor models: the USB product id by which the driver knows each, and the measurement modes
// that it offers. One table; a new model is a line of it.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kelvra::driver {

// The sensors' USB vendor id, as resource descriptors write it.
constexpr std::string_view SensorUsbVendorId = "0x1c5b";

enum class Capabilities {
    TimeResolving,  // continuous average, time slot, burst, trace
    AverageOnly,    // continuous average
    Unknown,        // an unknown model: the lists stay as they are
};

struct ModeEntry {
    const char* text;
    int mode;
};

// Product id as text, "0x003"; "0x004" for a type that is not in the table.
std::string_view ProductIdOf(std::string_view type);

// Found by the model designation in a sensor's id ("PS-101;12345").
Capabilities CapabilitiesOf(std::string_view sensorId);

// Entries of the mode list; none for Unknown.
std::span<const ModeEntry> ModesOf(Capabilities capabilities);
// Whether a sensor of that type offers the mode. A type that is not known offers all.
bool HasMode(std::string_view type, int mode);

// Whether a sensor of that type is sent these settings: trigger, mode and what belongs to it; and
// range, sampling, continuous measurement.
bool TakesTriggerAndMode(std::string_view type);
bool TakesAdvanced(std::string_view type);

// "USB::" vendor "::" product "::" serial.
std::string ResourceDescriptor(std::string_view type, std::string_view serial);

}  // namespace kelvra::driver
