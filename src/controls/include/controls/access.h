// SPDX-License-Identifier: GPL-3.0-or-later
// How the user finds a control and reaches it by keyboard: what its caption, which scripts print,
// does not say. Part of a control's declaration; it never changes.
#pragma once

#include <string>
#include <string_view>

namespace kelvra::controls {

struct Access {
    std::string name{};         // what it is, if it has no caption: "Start"
    char mnemonic = 0;          // the underlined letter of its caption or name; 0: none
    std::string shortcut{};     // "Ctrl+O", "F5"
    int helpTopic = 0;          // of the help file; 0: none
    std::string explanation{};  // what it is and does, where no tooltip says so; a field's range
};

// Where the mnemonic is in the text: at the start of a word if one begins with it, else at its
// first occurrence; npos if there is none. Ignores case.
std::size_t MnemonicPlace(std::string_view text, char mnemonic);

}  // namespace kelvra::controls
