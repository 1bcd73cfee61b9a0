// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGPictures.h"

#include "framework/base/ZAMFile.h"
#include "framework/base/ZAMFilePath.h"
#include "framework/visualisation/ZAMPixelImageReaders.h"
#include "ZAMPrtInterpreterSVG/base64/ConvertFromBase64Buffer.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

namespace {

using Reader = ZAMRef<ZAMPixelImage> (*)(std::span<const unsigned char> data, ZAMReadOnlyState state);

struct DataFormat {
    std::string_view prefix;
    Reader read;
};

constexpr DataFormat kDataFormats[] = {
    {"data:image/png;base64,", ReadMemoryPNGPixelImage},
    {"data:image/jpg;base64,", ReadMemoryJPEGPixelImage},
    {"data:image/jpeg;base64,", ReadMemoryJPEGPixelImage},
    {"data:image/bmp;base64,", ReadMemBMPPixelImage},
};

bool IsReadableFile(std::string_view path) {
    ZAMFileInformation information{};
    return ZAMFileStat(path, information) >= 0 && ZAMFileAccess(path, ZAMFileAccessMode::Exists) >= 0;
}

ZAMRef<ZAMPixelImage> LoadFile(std::string_view path) {
    return ZAMPixelImage::CreateFromFile(ZAMString(path), ZAMReadOnlyState::File, 0);
}

ZAMRef<ZAMPixelImage> LoadBase64(std::string_view text, Reader read) {
    constexpr std::string_view kBlanks = "\n\r\t ";
    std::string stripped;
    if (text.find_first_of(kBlanks) != std::string_view::npos) {
        std::ranges::copy_if(text, std::back_inserter(stripped),
                             [&](char c) { return kBlanks.find(c) == std::string_view::npos; });
        text = stripped;
    }
    if (text.size() > std::numeric_limits<unsigned int>::max()) {
        return {};
    }
    std::vector<unsigned char> bytes(text.size());
    unsigned int length = 0;
    if (ConvertFromBase64Buffer(text.data(), static_cast<unsigned int>(text.size()), bytes.data(), length) < 0) {
        return {};
    }
    return read({bytes.data(), length}, ZAMReadOnlyState::Memory);
}

} // namespace

int ZAMPrintSVGPictures::SetCurrentPath(const ZAMUnicodeString& path) {
    _CurrentPath = path;
    return 1;
}

ZAMRef<ZAMPixelImage> ZAMPrintSVGPictures::Find(std::string_view reference) {
    const auto known = _Known.find(reference);
    if (known != _Known.end()) {
        return known->second;
    }
    return _Known.emplace(reference, Load(reference)).first->second;
}

bool ZAMPrintSVGPictures::IsKnownData(std::string_view reference) {
    return std::ranges::any_of(kDataFormats,
                               [&](const DataFormat& format) { return reference.starts_with(format.prefix); });
}

// A file of that name, then one in the document's folder, then data.
ZAMRef<ZAMPixelImage> ZAMPrintSVGPictures::Load(std::string_view reference) const {
    if (IsReadableFile(reference)) {
        return LoadFile(reference);
    }
    ZAMUnicodeString directory;
    ZAMUnicodeString fileName;
    ZAMUnicodeString joined;
    ZAMSplitPath(_CurrentPath, directory, fileName);
    if (ZAMMakePath(directory, reference, joined) >= 0 && IsReadableFile(joined)) {
        return LoadFile(joined);
    }
    for (const DataFormat& format : kDataFormats) {
        if (reference.starts_with(format.prefix)) {
            return LoadBase64(reference.substr(format.prefix.size()), format.read);
        }
    }
    return {};
}
