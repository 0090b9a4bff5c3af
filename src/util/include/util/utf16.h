// SPDX-License-Identifier: GPL-3.0-or-later
// Texts as UTF-16, which formats of another system's files and documents use.
#pragma once

#include <string>
#include <string_view>

namespace kelvra::util {

// Each byte that belongs to no valid sequence becomes U+FFFD.
std::u16string Utf16(std::string_view utf8);

// A surrogate without its other half becomes U+FFFD.
std::string Utf8(std::u16string_view utf16);

}  // namespace kelvra::util
