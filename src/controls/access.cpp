// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/access.h"

#include "util/text.h"

namespace kelvra::controls {

std::size_t MnemonicPlace(std::string_view text, char mnemonic) {
    if (mnemonic == 0) return std::string_view::npos;
    const std::string upper = util::UpperCase(text);
    const std::string letter = util::UpperCase(std::string_view(&mnemonic, 1));
    if (upper.starts_with(letter)) return 0;
    const std::size_t space = upper.find(" " + letter);
    return space == std::string::npos ? upper.find(letter) : space + 1;
}

}  // namespace kelvra::controls
