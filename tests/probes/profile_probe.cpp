// SPDX-License-Identifier: GPL-3.0-or-later
// Profile strings for scripts: cases on standard input, a line of JSON each, results on standard
// output.
//   {"id": any, "initial_hex": "5B73..." or null, "ops": [["w", section, key, value],
//    ["r", section, key, default], ["d", section, key]]}
//   {"id": as given, "reads": [...], "final_hex": "5b73..." or null}
// A character U+0000..U+00FF of a string is a byte; null is no file. Each operation loads the file
// and saves it again.
#include <charconv>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

#include "platform/profile_file.h"
#include "posix/posix_files.h"
#include "support/temp_folder.h"

namespace {

using Json = nlohmann::ordered_json;
using kelvra::platform::PosixFiles;
using kelvra::platform::ProfileFile;

constexpr std::string_view HexDigits = "0123456789abcdef";
const std::string FileName = "profile.ini";

void Check(bool condition, const std::string& what) {
    if (!condition) throw std::runtime_error(what);
}

void Check(const std::error_code& error, const std::string& what) {
    Check(!error, what + ": " + error.message());
}

// From UTF-8 (which the parser has checked). U+0080..U+00FF are C2 or C3 and a second byte.
std::string BytesOf(const Json& json) {
    Check(json.is_string(), "a name or value is no string");
    const auto& text = json.get_ref<const std::string&>();
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        Check(lead <= 0xC3, "a character above U+00FF");
        if (lead < 0x80) {
            bytes += text[i];
        } else {
            bytes += static_cast<char>((lead & 3) << 6 | (text[++i] & 0x3F));
        }
    }
    return bytes;
}

Json TextOf(const std::string& bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80) text += static_cast<char>(0xC0 | byte >> 6);
        text += static_cast<char>(byte >= 0x80 ? 0x80 | (byte & 0x3F) : byte);
    }
    return text;
}

std::string BytesOfHex(const Json& json) {
    Check(json.is_string(), "initial_hex is neither a string nor null");
    const auto& hex = json.get_ref<const std::string&>();
    Check(hex.size() % 2 == 0, "initial_hex has half a byte");
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        unsigned byte = 0;
        const char* end = hex.data() + i + 2;
        Check(std::from_chars(hex.data() + i, end, byte, 16).ptr == end,
              "initial_hex has a character that is no digit");
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string HexOf(const std::string& bytes) {
    std::string hex;
    for (const char c : bytes) {
        hex += HexDigits[static_cast<unsigned char>(c) >> 4];
        hex += HexDigits[c & 0xF];
    }
    return hex;
}

void Run(const Json& operation, const std::string& path, Json& reads) {
    Check(operation.is_array() && !operation.empty(), "an operation is no list");
    const Json& kind = operation[0];
    Check(kind == "w" || kind == "r" || kind == "d", "an operation is none of w, r and d");
    Check(operation.size() == (kind == "d" ? 3 : 4), "an operation has too few or too many words");
    const std::string section = BytesOf(operation[1]);
    const std::string key = BytesOf(operation[2]);
    const std::string last = kind == "d" ? std::string() : BytesOf(operation[3]);

    PosixFiles files;
    ProfileFile file(files, path);
    Check(file.LoadError(), "the file can't be read");
    if (kind == "r") {
        reads.push_back(TextOf(file.Text().Read(section, key, last)));
    } else if (kind == "w") {
        file.Text().Write(section, key, last);
    } else {
        file.Text().DeleteKey(section, key);
    }
    Check(file.Save(), "the file can't be written");
}

Json ResultOf(const Json& testCase) {
    Check(testCase.is_object(), "a case is no object");
    for (const char* name : {"id", "initial_hex", "ops"})
        Check(testCase.contains(name), std::string("no ") + name);
    Check(testCase["ops"].is_array(), "ops is no list");

    const kelvra::test::TempFolder folder;
    if (const Json& initial = testCase["initial_hex"]; !initial.is_null())
        folder.Put(FileName, BytesOfHex(initial));
    Json reads = Json::array();
    for (const Json& operation : testCase["ops"]) Run(operation, folder.Path(FileName), reads);

    Json result;
    result["id"] = testCase["id"];
    result["reads"] = std::move(reads);
    result["final_hex"] =
        folder.Names().empty() ? Json(nullptr) : Json(HexOf(folder.Get(FileName)));
    return result;
}

}  // namespace

int main() {
    std::string line;
    for (int number = 1; std::getline(std::cin, line); ++number) {
        try {
            if (!line.empty()) std::cout << ResultOf(Json::parse(line)).dump() << std::endl;
        } catch (const std::exception& error) {
            std::cerr << "profile_probe: line " << number << ": " << error.what() << '\n';
            return 1;
        }
    }
    return 0;
}
