// SPDX-License-Identifier: GPL-3.0-or-later
#include "models.h"

#include <cmath>

namespace kelvra::virtual_sensors {
namespace {

constexpr Model Models[] = {
    // type   product  all modes  range in dBm
    {"PS-101", 0x003, true, -67, 23},  {"PS-102", 0x016, false, -35, 20},
    {"PS-103", 0x018, false, -35, 20}, {"PS-104", 0x021, false, -35, 20},
    {"PS-105", 0x00c, true, -67, 23},  {"PS-106", 0x013, true, -60, 30},
    {"PS-107", 0x014, true, -50, 40},  {"PS-108", 0x015, true, -45, 45},
    {"PS-109", 0x023, false, -35, 20}, {"PS-110", 0x02c, true, -60, 20},
    {"PS-111", 0x02d, false, -35, 20}, {"PS-112", 0x02e, false, -35, 20},
    {"PS-113", 0x02f, false, -35, 20}, {"PS-114", 0x017, false, -30, 20},
    {"PS-115", 0x019, false, -30, 20}, {"PS-116", 0x0b, true, -60, 20},
    {"PS-117", 0x01a, true, -60, 20},
};

constexpr Model Other{"", 0x004, false, -67, 23};

}  // namespace

bool Model::Measures(double levelDbm) const {
    constexpr double roundingDb = 1e-9;
    return levelDbm > smallestDbm - roundingDb && levelDbm < largestDbm + roundingDb;
}

double DbmOf(double powerW) {
    return 10 * std::log10(powerW) + 30;
}

const Model& ModelOf(std::string_view type) {
    for (const Model& model : Models) {
        if (model.type == type) return model;
    }
    return Other;
}

}  // namespace kelvra::virtual_sensors
