// SPDX-License-Identifier: GPL-3.0-or-later
// A sensor's settings in INI files: the application's own, with a group of sections for each
// sensor, and the files that a user saves and loads. Values do not depend on the locale.
#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <variant>

#include "platform/files.h"
#include "platform/profile_file.h"
#include "sensors/sensor_settings.h"

namespace kelvra::sensors {

enum class Transfer { Read, Write };

// The types of values that files keep.
using SettingValue = std::variant<bool, std::int16_t, std::int32_t, double, std::string>;

// One key, converted to the type of the fallback, which replaces a missing key. A number that is
// out of its type's range or not finite reads as the fallback. A boolean is true for "1", "WAHR"
// and "TRUE" in any case. Other text that is no number reads as 0.
SettingValue IniRead(const platform::ProfileText& file, std::string_view section,
                     std::string_view key, const SettingValue& fallback);

// Numbers with a period, no zero before it, and as many digits as are needed to read them back;
// booleans as "1" and "0"; texts unchanged.
void IniWrite(platform::ProfileText& file, std::string_view section, std::string_view key,
              const SettingValue& value);

// The whole block in sections STEM_MODE .. STEM_ADVA of an open file. ContMeas becomes false in
// either direction.
void TransferSettings(SensorSettings& settings, platform::ProfileText& file, std::string_view stem,
                      Transfer transfer);

// Whether the file has any section of the block.
bool HasSettings(const platform::ProfileText& file, std::string_view stem);

// Writes the fields that differ from `known`, which was last read from or written to this file, and
// the fields that the file has no value for. Leaves the others, which another program may have
// changed meanwhile.
void WriteChanges(const SensorSettings& settings, const SensorSettings& known,
                  platform::ProfileText& file, std::string_view stem);

// A whole block on disk, with one pass over the file. A missing file reads as defaults. An error
// leaves the file as it was; if it was an error of reading, the settings are the defaults.
std::error_code TransferSettings(SensorSettings& settings, platform::Files& files,
                                 const std::string& path, std::string_view stem, Transfer transfer);

}  // namespace kelvra::sensors
