// SPDX-License-Identifier: GPL-3.0-or-later
// A buffer that the driver fills with a text; before the call it holds 256 spaces. The margin after
// it keeps a text without a NUL, or one slightly too long, from doing harm.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "util/text.h"

namespace kelvra::driver {

template <std::size_t Size, char Fill>
class FilledBuffer {
public:
    FilledBuffer() {
        bytes_.fill('\0');
        std::fill_n(bytes_.begin(), Size, Fill);
    }

    static constexpr auto Length = static_cast<std::int32_t>(Size);

    char* Data() { return bytes_.data(); }
    std::string Text() const { return util::TextOfBuffer({bytes_.data(), Size}); }

private:
    static constexpr std::size_t Margin = 64;
    std::array<char, Size + Margin> bytes_{};
};

using TextBuffer = FilledBuffer<256, ' '>;     // the instrument driver's
using DeviceBuffer = FilledBuffer<128, '\0'>;  // the device list's

}  // namespace kelvra::driver
