// SPDX-License-Identifier: MIT
#include "framework/base/ZAMFilePath.h"

#include <climits>
#include <cstdlib>
#include <memory>

void ZAMSplitPath(std::string_view path, ZAMUnicodeString& directory, ZAMUnicodeString& fileName) {
    const std::size_t nameStart = path.rfind('/') + 1; // 0 without a slash
    std::string_view before = path.substr(0, nameStart);
    const std::size_t last = before.find_last_not_of('/');
    before = before.substr(0, last == std::string_view::npos ? 1 : last + 1);
    // The path may be the text of one of the results.
    const std::string name(path.substr(nameStart));
    directory = ZAMUnicodeString(before);
    fileName = name;
}

int ZAMMakePath(std::string_view directory, std::string_view name, ZAMUnicodeString& result) {
    // Names come from documents: what the length forbids is refused before it is copied.
    if (name.starts_with('/') || !ZAMIsPossiblePath(name) || (!directory.empty() && !ZAMIsPossiblePath(directory))) {
        return -1;
    }
    std::string path(directory);
    path.append(directory.empty() || directory.ends_with('/') ? "" : "/").append(name);
    if (!ZAMIsPossiblePath(path)) {
        return -1;
    }
    result = path;
    return 0;
}

bool ZAMIsPossiblePath(std::string_view path) noexcept {
    return !path.empty() && path.size() < PATH_MAX && path.find('\0') == std::string_view::npos;
}

std::string ZAMResolvePath(std::string_view path) {
    if (!ZAMIsPossiblePath(path)) {
        return {};
    }
    const std::unique_ptr<char, void (*)(void*)> resolved(realpath(std::string(path).c_str(), nullptr), std::free);
    return resolved == nullptr ? std::string() : std::string(resolved.get());
}
