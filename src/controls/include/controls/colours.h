// SPDX-License-Identifier: GPL-3.0-or-later
// Colours: 24 bits in blue-green-red order, red in the lowest byte.
#pragma once

#include <cstdint>

namespace kelvra::controls {

using Colour = std::uint32_t;

constexpr Colour White = 0xFFFFFF;
constexpr Colour Grey = 0xC0C0C0;
constexpr Colour Red = 0x0000FF;
constexpr Colour Green = 0x00FF00;
constexpr Colour Blue = 0xFF0000;
constexpr Colour DarkBlue = 0xC00000;
constexpr Colour Cyan = 0xFFFF00;
constexpr Colour DarkCyan = 0xC0C000;
constexpr Colour Yellow = 0x00FFFF;
constexpr Colour Orange = 0x0080FF;
constexpr Colour Rose = 0xB0B0FF;

}  // namespace kelvra::controls
