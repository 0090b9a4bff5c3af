// SPDX-License-Identifier: GPL-3.0-or-later
// The status codes of the virtual driver and their texts.
#pragma once

#include <cstdint>
#include <string>

namespace kelvra::virtual_sensors {

enum class Status : int32_t {
    Ok = 0,
    BadHandle = -2001,
    BadResource = -2002,
    NotConnected = -2003,
    ChannelNotOpen = -2004,
    SensorInUse = -2005,
    ValueOutOfRange = -2006,
    ModeNotOffered = -2007,
    NoResult = -2008,
    NoScalarResult = -2009,
    NoArrayResult = -2010,
    BadIndex = -2011,
    MissingPointer = -2012,
    TooManySessions = -2013,
    InternalFailure = -2014,
    LevelOutOfRange = -2015,
    NothingLeftOfSlot = -2016,
    FrameTooLong = -2017,
    PointsTooClose = -2018,
    TraceTooEarly = -2019,
    HysteresisTooLarge = -2020,
};

// A code that is not in the table gives "Unknown status" and its number.
std::string MessageOf(int32_t status);

}  // namespace kelvra::virtual_sensors
