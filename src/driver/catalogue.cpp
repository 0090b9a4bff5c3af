// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/catalogue.h"

#include <algorithm>
#include <iterator>

#include "util/text.h"

namespace kelvra::driver {

namespace {

struct Model {
    std::string_view type;
    std::string_view productId;
    Capabilities capabilities;
};

constexpr std::string_view OtherProductId = "0x004";

constexpr Model Models[] = {
    {"PS-101", "0x003", Capabilities::TimeResolving},
    {"PS-102", "0x016", Capabilities::AverageOnly},
    {"PS-103", "0x018", Capabilities::AverageOnly},
    {"PS-104", "0x021", Capabilities::AverageOnly},
    {"PS-105", "0x00c", Capabilities::TimeResolving},
    {"PS-106", "0x013", Capabilities::TimeResolving},
    {"PS-107", "0x014", Capabilities::TimeResolving},
    {"PS-108", "0x015", Capabilities::TimeResolving},
    {"PS-109", "0x023", Capabilities::AverageOnly},
    {"PS-110", "0x02c", Capabilities::Unknown},
    {"PS-111", "0x02d", Capabilities::AverageOnly},
    {"PS-112", "0x02e", Capabilities::AverageOnly},
    {"PS-113", "0x02f", Capabilities::AverageOnly},
    {"PS-114", "0x017", Capabilities::AverageOnly},
    {"PS-115", "0x019", Capabilities::AverageOnly},
    {"PS-116", "0x0b", Capabilities::Unknown},  // two digits, unlike the others
    {"PS-117", "0x01a", Capabilities::Unknown},
    {"PS-118", OtherProductId, Capabilities::AverageOnly},
};

constexpr ModeEntry TimeResolvingModes[] = {
    {"Cont Avg", 0}, {"Timeslot", 2}, {"Burst", 3}, {"Scope", 4}};
constexpr ModeEntry AverageOnlyModes[] = {{"Cont Avg", 0}};

bool ContainsModelOf(std::string_view sensorId, Capabilities capabilities) {
    return std::any_of(std::begin(Models), std::end(Models), [&](const Model& model) {
        return model.capabilities == capabilities &&
               sensorId.find(model.type) != std::string_view::npos;
    });
}

}  // namespace

std::string_view ProductIdOf(std::string_view type) {
    const auto* model = std::find_if(std::begin(Models), std::end(Models),
                                     [&](const Model& m) { return m.type == type; });
    return model == std::end(Models) ? OtherProductId : model->productId;
}

Capabilities CapabilitiesOf(std::string_view sensorId) {
    for (const Capabilities group : {Capabilities::TimeResolving, Capabilities::AverageOnly})
        if (ContainsModelOf(sensorId, group)) return group;
    return Capabilities::Unknown;
}

std::span<const ModeEntry> ModesOf(Capabilities capabilities) {
    switch (capabilities) {
        case Capabilities::TimeResolving:
            return TimeResolvingModes;
        case Capabilities::AverageOnly:
            return AverageOnlyModes;
        case Capabilities::Unknown:
            break;
    }
    return {};
}

bool HasMode(std::string_view type, int mode) {
    const auto modes = ModesOf(CapabilitiesOf(type));
    return modes.empty() || std::any_of(modes.begin(), modes.end(),
                                        [&](const ModeEntry& one) { return one.mode == mode; });
}

bool TakesTriggerAndMode(std::string_view type) {
    return type.find("102") == std::string_view::npos;
}

bool TakesAdvanced(std::string_view type) {
    return util::UpperCase(type).find("PS-102") == std::string::npos;
}

std::string ResourceDescriptor(std::string_view type, std::string_view serial) {
    std::string resource = "USB::";
    resource.append(SensorUsbVendorId).append("::").append(ProductIdOf(type));
    return resource.append("::").append(serial);
}

}  // namespace kelvra::driver
