// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPictureFile.h"

#include "framework/base/ZAMFile.h"
#include "framework/base/ZAMFilePath.h"
#include "framework/base/ZAMLimits.h"
#include "prepress/paint/ZAMPrepressDataReference.h"

#include <utility>
#include <vector>

namespace {

std::optional<std::string> Read(std::string_view path) {
    std::vector<unsigned char> bytes;
    return ZAMReadFile(path, ZAMLimits::kCopiedPictureBytes, bytes) == 0
               ? std::optional(std::string(bytes.begin(), bytes.end()))
               : std::nullopt;
}

std::optional<std::string> ReadHereOrBeside(std::string_view name, std::string_view documentPath) {
    if (auto bytes = Read(name)) {
        return bytes;
    }
    ZAMUnicodeString folder;
    ZAMUnicodeString documentName;
    ZAMUnicodeString path;
    ZAMSplitPath(documentPath, folder, documentName);
    return ZAMMakePath(folder, name, path) == 0 ? Read(path) : std::nullopt;
}

// The path of an address; other schemes make names that no file has.
std::string PathOfAddress(std::string_view link) {
    constexpr std::string_view kScheme = "file://";
    link.remove_prefix(link.starts_with(kScheme) ? kScheme.size() : 0);
    return ZAMPrepressDecodePercent(link);
}

} // namespace

std::optional<ZAMPrepressPictureFile> ZAMPrepressPictureFile::Find(std::string_view link,
                                                                   std::string_view documentPath) {
    if (!ZAMIsPossiblePath(link)) {
        return std::nullopt;
    }
    for (std::string name : {std::string(link), PathOfAddress(link)}) {
        if (auto bytes = ReadHereOrBeside(name, documentPath)) {
            return ZAMPrepressPictureFile{std::move(name), *std::move(bytes)};
        }
    }
    return std::nullopt;
}
