// SPDX-License-Identifier: GPL-3.0-or-later
#include "session.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kelvra::virtual_sensors {
namespace {

std::string ShortText(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

std::string LevelText(double powerW, const Model& model) {
    const double shownDbm = std::round(DbmOf(powerW) * 100) / 100;
    return ShortText(shownDbm) + " dBm is not within " + ShortText(model.smallestDbm) + " to " +
           ShortText(model.largestDbm) + " dBm";
}

// Takes the text before the next "::" off the front, or all of it if there is no "::".
std::string_view TakePart(std::string_view& text) {
    const std::size_t end = std::min(text.find("::"), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 2, text.size()));
    return part;
}

std::optional<uint32_t> HexNumber(std::string_view text) {
    if (text.substr(0, 2) != "0x" && text.substr(0, 2) != "0X") return std::nullopt;
    text.remove_prefix(2);
    uint32_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, 16);
    if (error != std::errc() || stop != end) return std::nullopt;
    return value;
}

}  // namespace

Outcome Channel::Set(Setting setting, double value) {
    const Model& model = sensor->Kind();
    const bool offered = model.timeResolving || setting != Setting::psdrv_chan_mode;
    if (!offered && value != 0) return {Status::ModeNotOffered, sensor->Plan().type};
    const bool isLevel = setting == Setting::psdrv_trigger_setLevel && value >= 0;
    if (isLevel && model.timeResolving && !model.Measures(DbmOf(value)))
        return {Status::LevelOutOfRange, LevelText(value, model)};
    if (settings.Set(setting, value)) return {};
    const SettingLimits& limits = LimitsOf(setting);
    return {Status::ValueOutOfRange, ShortText(value) + " is not within " +
                                         ShortText(limits.smallest) + " to " +
                                         ShortText(limits.largest)};
}

void Channel::Reset() {
    settings = {};
    measurement = {};
    zeroEnd = 0;
}

VirtualSensor* FindResource(std::vector<VirtualSensor>& sensors, std::string_view resource) {
    if (TakePart(resource) != "USB") return nullptr;
    TakePart(resource);
    const std::optional<uint32_t> product = HexNumber(TakePart(resource));
    for (VirtualSensor& sensor : sensors) {
        if (product == sensor.Kind().productId && resource == sensor.Plan().serial) return &sensor;
    }
    return nullptr;
}

Outcome Session::Open(int32_t channel, VirtualSensor* sensor) {
    if (sensor == nullptr) return {Status::BadResource};
    if (!sensor->Plugged()) return {Status::NotConnected, sensor->Plan().serial};
    if (channel < 1 || channel > MaxChannel) return {Status::ValueOutOfRange, "channel"};
    for (const auto& [number, other] : channels_) {
        if (number != channel && other.sensor == sensor && other.Connected()) {
            return {Status::SensorInUse, "by channel " + std::to_string(number)};
        }
    }
    channels_.insert_or_assign(channel, Channel(*sensor));
    return {};
}

Outcome Session::Find(int32_t number, Channel*& channel) {
    const auto found = channels_.find(number);
    if (found == channels_.end()) return {Status::ChannelNotOpen};
    if (!found->second.Connected())
        return {Status::NotConnected, found->second.sensor->Plan().serial};
    channel = &found->second;
    return {};
}

}  // namespace kelvra::virtual_sensors
