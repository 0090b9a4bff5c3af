// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/settings_file.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "sensors/settings_fields.h"
#include "util/number_reading.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::sensors {

namespace {

std::string FileText(const SettingValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "1" : "0";
    if (const auto* real = std::get_if<double>(&value)) return util::ExactNumberText(*real);
    if (const auto* word = std::get_if<std::int16_t>(&value))
        return util::TrimmedNumberText(std::int64_t{*word});
    return util::TrimmedNumberText(std::int64_t{std::get<std::int32_t>(value)});
}

bool MeansTrue(std::string_view text) {
    const std::string word = util::UpperCase(text);
    return word == "1" || word == "WAHR" || word == "TRUE";
}

SettingValue Parse(std::string_view text, bool) {
    return MeansTrue(text);
}
SettingValue Parse(std::string_view text, const std::string&) {
    return std::string(text);
}
SettingValue Parse(std::string_view text, double fallback) {
    const double value = util::ReadNumber(text);
    return std::isfinite(value) ? value : fallback;
}
SettingValue Parse(std::string_view text, std::int16_t fallback) {
    return util::RoundToInt16(util::ReadNumber(text)).value_or(fallback);
}
SettingValue Parse(std::string_view text, std::int32_t fallback) {
    return util::RoundToInt32(util::ReadNumber(text)).value_or(fallback);
}

// Transfers one field between the record and a file.
void IniSetting(platform::ProfileText& file, const std::string& section, const SettingsField& field,
                SensorSettings& settings, const SensorSettings& defaults, Transfer transfer) {
    std::visit(
        [&](auto member) {
            using Value = std::remove_reference_t<decltype(settings.*member)>;
            if (transfer == Transfer::Read)
                settings.*member =
                    std::get<Value>(IniRead(file, section, field.key, defaults.*member));
            else
                IniWrite(file, section, field.key, settings.*member);
        },
        field.member);
}

std::string SectionOf(std::string_view stem, const SettingsField& field) {
    return std::string(stem) + field.suffix;
}

}  // namespace

SettingValue IniRead(const platform::ProfileText& file, std::string_view section,
                     std::string_view key, const SettingValue& fallback) {
    const auto text = file.Find(section, key);
    if (!text) return fallback;
    return std::visit([&](const auto& value) { return Parse(*text, value); }, fallback);
}

void IniWrite(platform::ProfileText& file, std::string_view section, std::string_view key,
              const SettingValue& value) {
    file.Write(section, key, FileText(value));
}

void TransferSettings(SensorSettings& settings, platform::ProfileText& file, std::string_view stem,
                      Transfer transfer) {
    const SensorSettings defaults = DefaultSettings();
    for (const SettingsField* field : FileFields())
        IniSetting(file, SectionOf(stem, *field), *field, settings, defaults, transfer);
    settings.ContMeas = false;
}

bool HasSettings(const platform::ProfileText& file, std::string_view stem) {
    const auto fields = FileFields();
    return std::any_of(fields.begin(), fields.end(), [&](const SettingsField* field) {
        return file.HasSection(SectionOf(stem, *field));
    });
}

void WriteChanges(const SensorSettings& settings, const SensorSettings& known,
                  platform::ProfileText& file, std::string_view stem) {
    for (const SettingsField* field : FileFields()) {
        const std::string section = SectionOf(stem, *field);
        std::visit(
            [&](auto member) {
                if (settings.*member != known.*member || !file.Find(section, field->key))
                    IniWrite(file, section, field->key, settings.*member);
            },
            field->member);
    }
}

std::error_code TransferSettings(SensorSettings& settings, platform::Files& files,
                                 const std::string& path, std::string_view stem,
                                 Transfer transfer) {
    platform::ProfileFile file(files, path);
    TransferSettings(settings, file.Text(), stem, transfer);
    return transfer == Transfer::Write ? file.Save() : file.LoadError();
}

}  // namespace kelvra::sensors
