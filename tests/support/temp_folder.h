// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of a test's own below the system's temporary one, gone with the object.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>

namespace kelvra::test {

class TempFolder {
public:
    TempFolder() {
        std::random_device random;
        const auto parent = std::filesystem::temp_directory_path();
        do path_ = parent / ("kelvra-test-" + std::to_string(random()));
        while (!std::filesystem::create_directory(path_));
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code stays;  // a destructor can't complain
        std::filesystem::remove_all(path_, stays);
    }

    std::string Path() const { return path_.string(); }
    std::string Path(const std::string& name) const { return (path_ / name).string(); }

    void Put(const std::string& name, const std::string& bytes) const {
        std::ofstream file(path_ / name, std::ios::binary);
        file.exceptions(std::ios::failbit | std::ios::badbit);
        file << bytes << std::flush;
    }
    // The bytes of a file, or "(none)".
    std::string Get(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        if (!file) return "(none)";
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.insert(entry.path().filename().string());
        return names;
    }

private:
    std::filesystem::path path_;
};

}  // namespace kelvra::test
