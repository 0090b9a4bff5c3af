// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the source of a rich text, and as a text in one that the program writes, which must
// be read as it is shown.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "controls/rtf_reader.h"
#include "ui/rich_text.h"
#include "util/text.h"

namespace {

// Control characters are not shown.
std::string Seen(std::string_view text) {
    std::string seen;
    for (const char c : kelvra::util::ShownText(text)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte >= 0x20 && byte != 0x7F) || c == '\t') seen += c;
    }
    return seen;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvra;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const std::string& line : controls::RtfLines(bytes))
        if (util::ShownText(line) != line) std::abort();

    std::string document = ui::RtfBeginning();
    ui::AddRtfLine(document, bytes, {.bold = true, .colour = controls::Red});
    const auto lines = controls::RtfLines(ui::ShownRtf(document));
    if (lines.size() != 1 || lines.front() != Seen(bytes)) std::abort();
    return 0;
}
