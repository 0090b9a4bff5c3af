// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_lookup.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "util/text.h"

namespace kelvra::platform {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> SortedNames(Files& files, const std::string& folder) {
    std::vector<std::string> names;
    if (files.List(folder, names)) return {};
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

std::optional<std::string> FindPath(Files& files, const std::string& path) {
    if (!fs::path(path).is_absolute()) return std::nullopt;
    if (files.Exists(path)) return path;
    fs::path found;
    for (const fs::path& part : fs::path(path)) {
        if (part.empty() || files.Exists((found / part).string())) {
            found /= part;
            continue;
        }
        const auto names = SortedNames(files, found.string());
        const auto same = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
            return util::EqualNoCase(name, part.string());
        });
        if (same == names.end()) return std::nullopt;
        found /= *same;
    }
    return found.string();
}

std::vector<std::string> NamesLike(Files& files, const std::string& folder, std::string_view start,
                                   std::string_view end) {
    const auto found = FindPath(files, folder);
    if (!found) return {};
    std::vector<std::string> names = SortedNames(files, *found);
    std::erase_if(names, [&](const std::string& name) {
        return name.size() < start.size() + end.size() ||
               !util::EqualNoCase(std::string_view(name).substr(0, start.size()), start) ||
               !util::EqualNoCase(std::string_view(name).substr(name.size() - end.size()), end);
    });
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return util::LowerCase(a) < util::LowerCase(b);
    });
    return names;
}

}  // namespace kelvra::platform
