// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightPictures.h"

#include "framework/base/ZAMFile.h"
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/base/ZAMFilePath.h"
#include "framework/visualisation/ZAMPixelImageReaders.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGPictures.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGDataText.h"

#include <span>
#include <vector>

namespace {

using Fault = ZAMPrintSVGFault;
using Bytes = std::span<const unsigned char>;

std::string_view TextOf(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool HasKnownFormat(Bytes bytes) {
    const std::string_view text = TextOf(bytes);
    return text.starts_with("\x89PNG") || text.starts_with("\xFF\xD8\xFF") || text.starts_with("BM");
}

// A drawing, which prepared documents show like a picture.
bool IsDrawing(Bytes bytes) {
    constexpr std::size_t kBeginning = 4096;
    return TextOf(bytes).substr(0, kBeginning).find("<svg") != std::string_view::npos;
}

// Each of the readers looks at the first bytes first.
bool IsPicture(Bytes bytes) {
    for (const auto read : {ReadMemoryPNGPixelImage, ReadMemoryJPEGPixelImage, ReadMemBMPPixelImage}) {
        if (read(bytes, ZAMReadOnlyState::Memory)) {
            return true;
        }
    }
    return false;
}

Fault WhyUnread(Bytes bytes) {
    return HasKnownFormat(bytes) ? Fault::DamagedImage : Fault::ImageFormat;
}

bool IsRemote(std::string_view reference) {
    const std::size_t scheme = reference.find("://");
    return reference.starts_with("//") ||
           (scheme != std::string_view::npos && scheme < reference.find('/') && !reference.starts_with("file:"));
}

bool IsThere(std::string_view path) {
    ZAMFileInformation information{};
    return ZAMFileStat(path, information) == 0;
}

} // namespace

void ZAMPrintSVGPreflightPictures::Check(const ZAMLightXmlElementItf& image, std::string_view reference) {
    if (reference.empty()) {
        return;
    }
    const auto [known, isNew] = _Known.try_emplace(reference);
    if (isNew) {
        known->second = Inspect(reference);
    }
    if (known->second) {
        const bool isData = ZAMPrintSVGDataText::IsData(reference);
        _Report.Add(*known->second, image, isData ? reference.substr(0, reference.find(',')) : reference);
    }
}

ZAMPrintSVGPreflightPictures::Trouble ZAMPrintSVGPreflightPictures::Inspect(std::string_view reference) const {
    if (IsRead(reference)) {
        return {};
    }
    if (ZAMPrintSVGDataText::IsData(reference)) {
        return InspectData(reference);
    }
    if (IsRemote(reference)) {
        return Fault::RemoteImage;
    }
    const Trouble trouble = InspectFile(reference);
    const std::string name = ZAMPrintSVGDataText::PathOfAddress(reference);
    const bool isAddress = _Mode == Mode::Prepared && trouble == Fault::MissingImage && name != reference;
    return isAddress ? InspectFile(name) : trouble;
}

// Not kept, so that pictures are not all in memory at once.
bool ZAMPrintSVGPreflightPictures::IsRead(std::string_view reference) const {
    ZAMPrintSVGPictures pictures;
    pictures.SetCurrentPath(_CurrentPath);
    return pictures.Find(reference).Get() != nullptr;
}

ZAMPrintSVGPreflightPictures::Trouble ZAMPrintSVGPreflightPictures::InspectData(std::string_view reference) const {
    const std::vector<unsigned char> bytes = ZAMPrintSVGDataText::Decode(reference);
    if (_Mode == Mode::AsItStands) {
        return ZAMPrintSVGPictures::IsKnownData(reference) ? WhyUnread(bytes) : Fault::ImageFormat;
    }
    return IsDrawing(bytes) || IsPicture(bytes) ? Trouble() : WhyUnread(bytes);
}

ZAMPrintSVGPreflightPictures::Trouble ZAMPrintSVGPreflightPictures::InspectFile(std::string_view name) const {
    const std::string path = FindFile(name);
    if (path.empty()) {
        const ZAMFileAccessPolicy everything = ZAMFileAccessPolicy::All(); // only to tell the two apart
        return FindFile(name).empty() ? Fault::MissingImage : Fault::ForbiddenImage;
    }
    std::vector<unsigned char> bytes;
    if (ZAMReadFile(path, ZAMLimits::kPictureBytes, bytes) != 0) {
        return Fault::DamagedImage;
    }
    const bool isDrawn = _Mode == Mode::Prepared && (IsDrawing(bytes) || IsPicture(bytes));
    return isDrawn ? Trouble() : WhyUnread(bytes);
}

std::string ZAMPrintSVGPreflightPictures::FindFile(std::string_view name) const {
    if (IsThere(name)) {
        return std::string(name);
    }
    ZAMUnicodeString folder;
    ZAMUnicodeString documentName;
    ZAMUnicodeString path;
    ZAMSplitPath(_CurrentPath, folder, documentName);
    return ZAMMakePath(folder, name, path) == 0 && IsThere(path) ? std::string(path.View()) : std::string();
}
