// SPDX-License-Identifier: GPL-3.0-or-later
// Limits for the sensors' levels, and the readings outside them: counted, and marked in the result
// table by colour, a corner and what the cells say. A sensor keeps its limits in any slot, and for
// the next run.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "controls/grid.h"
#include "measure/listener.h"
#include "platform/computer.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

// dBm, of either sign: no power is beyond it.
constexpr double HighestLevel = 1000;

// In dBm. Without a limit on one side, every level is inside on that side.
struct LevelLimits {
    std::optional<double> low, high;
    bool Any() const { return low || high; }
    bool operator==(const LevelLimits&) const = default;
};

class TrendLimits final : public measure::MeasurementListener {
public:
    TrendLimits(controls::Grid& results, const sensors::SensorTable& table,
                const util::NumberForm& numbers)
        : grid_(results), table_(table), numbers_(numbers) {}

    // Where the limits of a sensor are kept from run to run; by what the sensor is known by.
    // Loading gives nothing if that has failed; saving writes what differs from `before`, and gives
    // false if that has failed.
    std::function<std::optional<LevelLimits>(const std::string& key)> load;
    std::function<bool(const std::string& key, const LevelLimits& before,
                       const LevelLimits& limits)>
        save;
    // Saves again what could not be saved before.
    void SaveUnsaved();

    const LevelLimits& Of(const std::string& key) { return Kept(key).limits; }
    void Set(const std::string& key, const LevelLimits& limits);

    // Readings outside since the start of the program, or since the counts began anew.
    std::int64_t Outside(const std::string& key) { return Kept(key).outside; }
    void ResetCounts();

    void Started() override;

    // The result table calls it with each reading, which costs less than listening. Gives the
    // colour of the reading's cells.
    controls::Colour Judge(int slot);
    // The slot's cells have no reading that counts.
    void Forget(int slot);

private:
    enum class Verdict { None, Inside, Below, Above };
    struct Sensor {
        LevelLimits limits;
        LevelLimits stored;  // as last loaded or saved
        bool loaded = false;
        std::int64_t outside = 0;
    };
    struct Slot {
        Sensor* sensor = nullptr;
        Verdict verdict = Verdict::None;
    };

    Sensor& Kept(const std::string& key);
    void Load(const std::string& key, Sensor& sensor) const;
    void Save(const std::string& key, Sensor& sensor) const;
    static Verdict VerdictOf(const LevelLimits& limits, double level);
    static controls::Colour ColourOf(Verdict verdict);
    bool ShowsReadingOf(int slot, const Sensor& sensor) const;
    void JudgeAgain(int slot);
    void Show(int slot, Verdict verdict);
    std::string TextOf(int slot) const;

    controls::Grid& grid_;
    const sensors::SensorTable& table_;
    const util::NumberForm& numbers_;
    std::map<std::string, Sensor> sensors_;  // by key
    std::vector<Slot> slots_;                // of the measurement that runs, or has run
};

}  // namespace kelvra::ui
