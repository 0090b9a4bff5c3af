// SPDX-License-Identifier: GPL-3.0-or-later
// A sensor's settings in INI files: the application's own, with a group of sections for each
// sensor, and the files that a user saves and loads. Values are texts without regard to the locale.
#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <variant>

#include "platform/files.h"
#include "platform/profile_file.h"
#include "sensors/sensor_settings.h"

namespace kelvra::sensors {

enum class Transfer { Reset = 0, Read = 1, Write = 2 };

// The types of values that files keep.
using SettingValue = std::variant<bool, std::int16_t, std::int32_t, double, std::string>;

// One key, converted to the type of the fallback, which stands in for a missing key. A number out
// of its type's range, or not finite, reads as the fallback; a boolean is true for "1", "WAHR" and
// "TRUE" in any case; whatever else is no number reads as 0.
SettingValue IniRead(const platform::ProfileText& file, std::string_view section,
                     std::string_view key, const SettingValue& fallback);

// Numbers with a period, no zero before it, and as many digits as reading them back takes; booleans
// "1" and "0"; texts as they are.
void IniWrite(platform::ProfileText& file, std::string_view section, std::string_view key,
              const SettingValue& value);

// The whole block under sections STEM_MODE .. STEM_ADVA of an open file. ContMeas becomes false
// whatever the transfer.
void TransferSettings(SensorSettings& settings, platform::ProfileText& file, std::string_view stem,
                      Transfer transfer);

// Whether the file has any section of a block.
bool HasSettings(const platform::ProfileText& file, std::string_view stem);

// Writes the fields that are no longer as `known`, which was read from this file or written to it
// before, and those that the file has no value for. The others keep what others may have written
// meanwhile.
void WriteChanges(const SensorSettings& settings, const SensorSettings& known,
                  platform::ProfileText& file, std::string_view stem);

// A whole block on disk, with one pass over the file. A file that is missing reads as defaults. An
// error (also of reading: the defaults are there then) leaves the file as it was.
std::error_code TransferSettings(SensorSettings& settings, platform::Files& files,
                                 const std::string& path, std::string_view stem, Transfer transfer);

}  // namespace kelvra::sensors
