// SPDX-License-Identifier: GPL-3.0-or-later
#include "virtual_sensor.h"

#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <numbers>

namespace kelvra::virtual_sensors {
namespace {

constexpr double DbPerNeper = 10 / std::numbers::ln10;

std::string WholeText(double value) {
    return std::to_string(std::lround(value));
}

std::string HexText(uint32_t value) {
    std::array<char, 8> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, 16).ptr;
    return "0x" + std::string(digits.data(), end);
}

constexpr struct {
    std::string_view name;
    std::string (*value)(const VirtualSensor&);
} Infos[] = {
    {"Manufacturer", [](const VirtualSensor&) -> std::string { return "Halvex"; }},
    {"Type", [](const VirtualSensor& sensor) { return sensor.Plan().type; }},
    {"Serial", [](const VirtualSensor& sensor) { return sensor.Plan().serial; }},
    {"Product Id", [](const VirtualSensor& sensor) { return HexText(sensor.Kind().productId); }},
    {"Firmware", [](const VirtualSensor&) -> std::string { return "2.7.1"; }},
    {"Hardware", [](const VirtualSensor&) -> std::string { return "rev. C"; }},
    {"Calibration Date", [](const VirtualSensor&) -> std::string { return "2024-03-18"; }},
    {"Calibration Due", [](const VirtualSensor&) -> std::string { return "2026-03-18"; }},
    {"Lowest Frequency", [](const VirtualSensor&) -> std::string { return "10 MHz"; }},
    {"Highest Frequency", [](const VirtualSensor&) -> std::string { return "18 GHz"; }},
    {"Lowest Level",
     [](const VirtualSensor& sensor) { return WholeText(sensor.Kind().smallestDbm) + " dBm"; }},
    {"Highest Level",
     [](const VirtualSensor& sensor) { return WholeText(sensor.Kind().largestDbm) + " dBm"; }},
    {"Modes",
     [](const VirtualSensor& sensor) -> std::string {
         return sensor.Kind().timeResolving ? "average, slots, burst, trace" : "average";
     }},
};

}  // namespace

const std::size_t VirtualSensor::InfoCount = std::size(Infos);

VirtualSensor::VirtualSensor(const Scenario& scenario, std::size_t number)
    : plan_(scenario.sensors[number]),
      model_(ModelOf(plan_.type)),
      plugged_(plan_.plugged),
      random_(scenario.seed * 1000003 + number) {
    for (const Sight& sight : plan_.sees) {
        const Source& source = scenario.sources[sight.source];
        const double dbm = source.levelDbm + sight.couplingDb;
        sees_.Add(source.waveform, std::pow(10, dbm / 10 - 3));
    }
}

void VirtualSensor::Plug(bool plugged) {
    if (plugged && !plugged_) ++plugging_;
    plugged_ = plugged;
}

double VirtualSensor::NoiseDb() const {
    if (plan_.noiseW == 0) return plan_.noiseDb;
    if (sees_.MeanW() == 0) return std::numeric_limits<double>::infinity();
    return std::hypot(plan_.noiseDb, DbPerNeper * plan_.noiseW / sees_.MeanW());
}

double VirtualSensor::Measure(double powerW, double count) {
    const double steadiness = std::sqrt(count);
    const double levelDb = plan_.noiseDb * Normal() / steadiness;
    return powerW * std::pow(10, levelDb / 10) + plan_.noiseW * Normal() / steadiness;
}

// The Box-Muller transform: the same seed gives the same noise with every standard library.
double VirtualSensor::Normal() {
    constexpr double step = 1.0 / (uint64_t{1} << 53);
    const double radius = (static_cast<double>(random_() >> 11) + 1) * step;  // above 0, up to 1
    const double angle = static_cast<double>(random_() >> 11) * step;
    return std::sqrt(-2 * std::log(radius)) * std::cos(2 * std::numbers::pi * angle);
}

std::string VirtualSensor::Info(std::size_t index) const {
    return std::string(Infos[index].name) + ":" + Infos[index].value(*this);
}

std::string VirtualSensor::SelfTest() const {
    return "Self test of " + plan_.type + ", serial " + plan_.serial +
           "\nMemory: passed\nReference voltage: passed\nDetector paths: passed"
           "\nTemperature: passed, 31 degrees C\nResult: passed";
}

}  // namespace kelvra::virtual_sensors
