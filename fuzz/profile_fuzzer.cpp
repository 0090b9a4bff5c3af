// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a profile text, edited and read with any names and values. The edited text must
// always behave like one that was freshly read from its bytes, and a plain value must read back.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/profile_text.h"
#include "util/text.h"

namespace {

using kelvra::platform::ProfileText;

// Splits the input into pieces: operations first, the initial text at the end.
class Input {
public:
    explicit Input(std::string_view bytes) : bytes_(bytes) {}

    std::size_t Number() {
        if (bytes_.empty()) return 0;
        const auto number = static_cast<unsigned char>(bytes_.front());
        bytes_.remove_prefix(1);
        return number;
    }

    std::string_view Text() { return Take(Number()); }

    std::string_view Rest() { return bytes_; }

    std::string_view Take(std::size_t size) {
        const std::string_view text = bytes_.substr(0, size);
        bytes_.remove_prefix(text.size());
        return text;
    }

private:
    std::string_view bytes_;
};

void Expect(bool condition) {
    if (!condition) std::abort();
}

bool HasAny(std::string_view text, std::string_view unwanted) {
    return text.find_first_of(unwanted) != std::string_view::npos;
}

bool ReadsBack(std::string_view section, std::string_view key, std::string_view value) {
    const std::string_view name = kelvra::util::TrimBlanks(key);
    return !HasAny(section, "\r\n]") && !HasAny(name, "\r\n=") && !name.starts_with('[') &&
           !name.starts_with(';') && !HasAny(value, "\r\n\"'") &&
           kelvra::util::TrimBlanks(value) == value && value.size() < ProfileText::BufferSize;
}

void Run(ProfileText& text, std::size_t operation, Input& input) {
    const std::string_view section = input.Text();
    const std::string_view key = input.Text();
    const std::string_view value = input.Text();
    ProfileText fresh(text.Bytes());
    Expect(fresh.Read(section, key, value) == text.Read(section, key, value));
    if (operation % 4 == 0) {
        text.DeleteKey(section, key);
        fresh.DeleteKey(section, key);
    } else {
        text.Write(section, key, value);
        fresh.Write(section, key, value);
        if (ReadsBack(section, key, value)) Expect(text.Read(section, key, "none") == value);
    }
    Expect(fresh.Bytes() == text.Bytes());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input({reinterpret_cast<const char*>(data), size});
    const std::size_t initial = input.Number();
    ProfileText text(std::string(input.Take(initial)));
    while (!input.Rest().empty()) Run(text, input.Number(), input);
    return 0;
}
