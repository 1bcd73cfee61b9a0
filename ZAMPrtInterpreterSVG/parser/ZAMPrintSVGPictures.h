// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/visualisation/ZAMPixelImage.h"

#include <string_view>
#include <unordered_map>

/// Finds the pictures that a document refers to: in files, as far as the thread's ZAMFileAccessPolicy lets it, and in
/// data references (RFC 2397) with base64 text. Each is read once, however often it is referred to.
class ZAMPrintSVGPictures {
public:
    /// The path of the document's file, whose folder relative names start from. Always 1.
    int SetCurrentPath(const ZAMUnicodeString& path);

    /// Null when there is no such picture, or none that can be read. The text must outlive this object.
    [[nodiscard]] ZAMRef<ZAMPixelImage> Find(std::string_view reference);

    /// Whether the reference names the format of its data in a way that is read.
    [[nodiscard]] static bool IsKnownData(std::string_view reference);

private:
    [[nodiscard]] ZAMRef<ZAMPixelImage> Load(std::string_view reference) const;

    ZAMUnicodeString _CurrentPath;
    std::unordered_map<std::string_view, ZAMRef<ZAMPixelImage>> _Known;
};
