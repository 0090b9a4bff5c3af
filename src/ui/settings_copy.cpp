// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings_copy.h"

#include <algorithm>
#include <optional>

#include "driver/catalogue.h"
#include "driver/session.h"
#include "ui/sensor_text.h"
#include "util/number_text.h"

namespace kelvra::ui {

using controls::Align;

namespace {

enum Column { NumberColumn, NameColumn, TypeColumn, ObstacleColumn };

struct ColumnText {
    const char* heading;
    const char* longest;  // empty: not known
};
constexpr ColumnText ColumnTexts[] = {
    {"Sensor", "256"},
    {"Name", ""},
    {"Type", "PS-000"},
    {"Remark", "has no continuous average mode"},
};

// By the mode's number.
constexpr const char* ModeNames[] = {"continuous average", "buffered average", "time slot", "burst",
                                     "scope"};

}  // namespace

SettingsCopy::SettingsCopy(const Parts& parts) : p_(parts), form_(parts.forms.copyForm) {
    p_.selection.listeners.Add(*this);
    p_.forms.mdiMain.CopySettings.click.Connect([this] { Open(); });
    p_.forms.setupForm.cmdCopySettings.click.Connect([this] { Open(); });
    form_.CopyTargets.click.Connect([this](int row, int) { Toggle(row); });
    form_.cmdCopyAll.click.Connect([this] { MarkAll(); });
    form_.cmdCopy.click.Connect([this] { Copy(); });
    form_.cmdCopyCancel.click.Connect([this] { form_.visible = false; });
    for (const Column column : {NumberColumn, NameColumn, TypeColumn, ObstacleColumn}) {
        SetGridCell(form_.CopyTargets, 0, column, ColumnTexts[column].heading, Align::Left, true,
                    false);
        form_.CopyTargets.SetSample(column, ColumnTexts[column].longest);
    }
}

void SettingsCopy::Open() {
    if (!form_.visible) marked_.clear();
    form_.Present();
    Refresh();
}

bool SettingsCopy::IsOther(int slot) const {
    return p_.table[slot].present && slot != p_.table.currentSensor;
}

std::string SettingsCopy::Obstacle(int slot) const {
    const std::int32_t mode = p_.table[p_.table.currentSensor].settings.Mode;
    if (driver::HasMode(sensors::TypeOf(p_.table[slot]), mode)) return {};
    const bool known = mode >= 0 && mode < static_cast<std::int32_t>(std::size(ModeNames));
    return known ? std::string("has no ") + ModeNames[mode] + " mode" : "does not have the mode";
}

bool SettingsCopy::IsMarked(int slot) const {
    return IsOther(slot) && marked_.contains(sensors::KeyOf(p_.table[slot])) &&
           Obstacle(slot).empty();
}

void SettingsCopy::Refresh() {
    if (!form_.visible) return;
    rows_.clear();
    bool anyMarked = false;
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        if (!IsOther(slot)) continue;
        rows_.push_back({sensors::KeyOf(p_.table[slot]), Obstacle(slot).empty()});
        ShowRow(static_cast<int>(rows_.size()), slot);
        anyMarked = anyMarked || IsMarked(slot);
    }
    form_.CopyTargets.SetRows(static_cast<int>(rows_.size()) + 1);
    const std::string from = SensorText(p_.table, p_.table.currentSensor);
    form_.lblCopyFrom.caption = rows_.empty()
                                    ? "There is no sensor besides " + from + "."
                                    : "Gives all settings of " + from + " to the marked sensors.";
    form_.cmdCopyAll.enabled =
        std::any_of(rows_.begin(), rows_.end(), [](const Row& row) { return row.canBeMarked; });
    form_.cmdCopy.enabled = anyMarked;
}

void SettingsCopy::ShowRow(int row, int slot) {
    const sensors::SensorEntry& entry = p_.table[slot];
    const std::string obstacle = Obstacle(slot);
    const bool marked = IsMarked(slot);
    const auto show = [&](Column column, std::string_view text) {
        SetGridCell(form_.CopyTargets, row, column, text, Align::Left, false, false);
    };
    show(NumberColumn, util::TrimmedNumberText(driver::ChannelOf(slot)));
    show(NameColumn, entry.logicalName);
    show(TypeColumn, sensors::TypeOf(entry));
    show(ObstacleColumn, obstacle);
    const std::string text = SensorText(p_.table, slot);
    if (obstacle.empty())
        form_.CopyTargets.SetMark(row, NumberColumn, marked,
                                  (marked ? "marked, " : "not marked, ") + text);
    else
        form_.CopyTargets.SetMark(row, NumberColumn, std::nullopt, text + " " + obstacle);
}

void SettingsCopy::Toggle(int row) {
    if (row < 1 || row > static_cast<int>(rows_.size())) return;
    const Row& target = rows_[static_cast<std::size_t>(row) - 1];
    if (!target.canBeMarked) return;
    if (marked_.erase(target.key) == 0) marked_.insert(target.key);
    Refresh();
}

void SettingsCopy::MarkAll() {
    for (const Row& row : rows_)
        if (row.canBeMarked) marked_.insert(row.key);
    Refresh();
}

void SettingsCopy::Copy() {
    form_.visible = false;
    std::vector<int> targets;
    for (int slot = 0; slot < p_.table.Slots(); ++slot)
        if (IsMarked(slot)) targets.push_back(slot);
    const sensors::SensorSettings settings = p_.table[p_.table.currentSensor].settings;
    for (const int slot : targets) p_.edits.Replace(slot, "copied settings", settings);
    const std::string to = targets.size() == 1
                               ? SensorText(p_.table, targets.front())
                               : util::TrimmedNumberText(targets.size()) + " sensors";
    p_.notice.ShowDone("Settings of " + SensorText(p_.table, p_.table.currentSensor) +
                       " copied to " + to);
}

}  // namespace kelvra::ui
