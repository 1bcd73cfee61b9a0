// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// A file that a link names, by its name as it is or as an address (RFC 8089: percent-encoded, perhaps behind
/// "file://").
struct ZAMPrepressPictureFile {
    std::string name; ///< its path, or what it is relative to the document's folder
    std::string bytes;

    /// A file of that name, or else one beside the document. Nothing when there is none that the thread's
    /// ZAMFileAccessPolicy allows.
    [[nodiscard]] static std::optional<ZAMPrepressPictureFile> Find(std::string_view link,
                                                                    std::string_view documentPath);
};
