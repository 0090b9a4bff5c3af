// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a library for Windows whose version is read, and as a version resource in a library
// that is whole.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/file_version.h"
#include "support/image.h"

namespace {

using kelvra::test::Image;

// At most four numbers of up to five digits.
void Read(std::string_view bytes) {
    const auto version = kelvra::platform::VersionOfImage(bytes);
    if (version && (version->size() < 7 || version->size() > 23)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Read(bytes);
    Image image({1, 2, 3, 4});
    image.bytes.replace(Image::Resources, bytes.size(), bytes);
    Read(image.bytes);
    return 0;
}
