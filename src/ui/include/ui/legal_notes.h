// SPDX-License-Identifier: GPL-3.0-or-later
// The legal notes: Kelvra's own licence, and that of everything the programs are linked with. A
// test compares the list with what is linked.
#pragma once

#include <string>

namespace kelvra::ui {

// As the About box shows them: rich text.
std::string LegalNotes();

}  // namespace kelvra::ui
