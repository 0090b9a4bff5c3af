// SPDX-License-Identifier: GPL-3.0-or-later
// The sensor models: under which USB product id the driver knows each, and which measurement modes
// it offers. One table; a new model is a line of it.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kelvra::driver {

// The sensors' USB vendor id as resource descriptors have it.
constexpr std::string_view SensorUsbVendorId = "0x1c5b";

enum class Capabilities {
    TimeResolving,  // continuous average, time slot, burst, trace; trigger and advanced settings
    AverageOnly,    // continuous average
    Unknown,        // nothing is known; the lists stay as they are
};

struct ModeEntry {
    const char* text;
    int mode;
};

// Product id as text, "0x003"; "0x004" for a type that is not in the table.
std::string_view ProductIdOf(std::string_view type);

// By the model designation that a sensor's id ("PS-101;12345") contains.
Capabilities CapabilitiesOf(std::string_view sensorId);

// Entries of the mode list; none for Unknown.
std::span<const ModeEntry> ModesOf(Capabilities capabilities);

// "USB::" vendor "::" product "::" serial.
std::string ResourceDescriptor(std::string_view type, std::string_view serial);

}  // namespace kelvra::driver
