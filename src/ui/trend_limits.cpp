// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trend_limits.h"

#include "ui/result_columns.h"
#include "util/number_text.h"

namespace kelvra::ui {

namespace {
constexpr ResultColumn ReadingColumns[] = {WattColumn, DbmColumn};

// Cells that have their text already.
void ColourCells(controls::Grid& grid, int slot, controls::Colour colour) {
    for (const ResultColumn column : ReadingColumns) {
        controls::Grid::Look look = grid.At(RowOf(slot), column).look;
        look.back = colour;
        grid.SetLook(RowOf(slot), column, look);
    }
}

}  // namespace

TrendLimits::Sensor& TrendLimits::Kept(const std::string& key) {
    const auto [place, added] = sensors_.try_emplace(key);
    if (added) Load(key, place->second);
    return place->second;
}

void TrendLimits::Load(const std::string& key, Sensor& sensor) const {
    if (sensor.loaded || !load) return;
    const auto found = load(key);
    if (!found) return;
    sensor.loaded = true;
    // What has been typed while the limits could not be loaded counts.
    if (sensor.limits.low == sensor.stored.low) sensor.limits.low = found->low;
    if (sensor.limits.high == sensor.stored.high) sensor.limits.high = found->high;
    sensor.stored = *found;
}

void TrendLimits::Save(const std::string& key, Sensor& sensor) const {
    if (sensor.limits == sensor.stored || !save) return;
    if (save(key, sensor.stored, sensor.limits)) sensor.stored = sensor.limits;
}

void TrendLimits::SaveUnsaved() {
    for (auto& [key, sensor] : sensors_) Save(key, sensor);
}

// Cells with a reading are judged again, which counts nothing.
void TrendLimits::Set(const std::string& key, const LevelLimits& limits) {
    Sensor& sensor = Kept(key);
    sensor.limits = limits;
    Save(key, sensor);
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (ShowsReadingOf(slot, sensor)) JudgeAgain(slot);
}

// Not if another sensor has come into the slot since the measurement.
bool TrendLimits::ShowsReadingOf(int slot, const Sensor& sensor) const {
    const auto index = static_cast<std::size_t>(slot);
    if (index >= slots_.size() || slots_[index].sensor != &sensor) return false;
    return slots_[index].verdict != Verdict::None && table_[slot].history.Index() >= 0;
}

void TrendLimits::JudgeAgain(int slot) {
    const Slot& own = slots_[static_cast<std::size_t>(slot)];
    Show(slot, VerdictOf(own.sensor->limits, table_[slot].history.LastLevel()));
    ColourCells(grid_, slot, ColourOf(own.verdict));
}

void TrendLimits::ResetCounts() {
    for (auto& [key, sensor] : sensors_) sensor.outside = 0;
}

// The enabled sensors have their slots for this measurement.
void TrendLimits::Started() {
    for (int slot = 0; slot < static_cast<int>(slots_.size()); ++slot) Forget(slot);
    slots_.assign(static_cast<std::size_t>(table_.Slots()), {});
    for (int slot = 0; slot < table_.Slots(); ++slot) {
        if (!table_[slot].present || !table_[slot].enabled) continue;
        const std::string key = sensors::KeyOf(table_[slot]);
        Sensor& sensor = Kept(key);
        Load(key, sensor);  // again, if that has failed before
        slots_[static_cast<std::size_t>(slot)].sensor = &sensor;
    }
}

TrendLimits::Verdict TrendLimits::VerdictOf(const LevelLimits& limits, double level) {
    if (limits.low && level < *limits.low) return Verdict::Below;
    if (limits.high && level > *limits.high) return Verdict::Above;
    return Verdict::Inside;
}

controls::Colour TrendLimits::ColourOf(Verdict verdict) {
    return verdict == Verdict::Below || verdict == Verdict::Above ? controls::Rose
                                                                  : controls::White;
}

controls::Colour TrendLimits::Judge(int slot) {
    const auto index = static_cast<std::size_t>(slot);
    const sensors::SensorEntry& entry = table_[slot];
    if (index >= slots_.size() || slots_[index].sensor == nullptr) return controls::White;
    Verdict verdict = Verdict::None;
    if (entry.fetchError.empty()) {
        Sensor& sensor = *slots_[index].sensor;
        verdict = VerdictOf(sensor.limits, entry.history.LastLevel());
        if (verdict != Verdict::Inside) ++sensor.outside;
    }
    if (slots_[index].verdict != verdict) Show(slot, verdict);
    return ColourOf(verdict);
}

void TrendLimits::Forget(int slot) {
    const auto index = static_cast<std::size_t>(slot);
    if (index >= slots_.size() || slots_[index].verdict == Verdict::None) return;
    Show(slot, Verdict::None);
    ColourCells(grid_, slot, controls::White);
}

void TrendLimits::Show(int slot, Verdict verdict) {
    slots_[static_cast<std::size_t>(slot)].verdict = verdict;
    const std::string text = TextOf(slot);
    for (const ResultColumn column : ReadingColumns) {
        grid_.SetFaulty(RowOf(slot), column, !text.empty());
        grid_.SetCellTooltip(RowOf(slot), column, text);
    }
}

std::string TrendLimits::TextOf(int slot) const {
    const Slot& own = slots_[static_cast<std::size_t>(slot)];
    const bool below = own.verdict == Verdict::Below;
    if (!below && own.verdict != Verdict::Above) return {};
    const double limit = below ? *own.sensor->limits.low : *own.sensor->limits.high;
    return std::string(below ? "Below the low" : "Above the high") + " limit of " +
           util::GeneralText(limit, numbers_) + " dBm";
}

}  // namespace kelvra::ui
