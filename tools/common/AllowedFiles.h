// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMFileAccessPolicy.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Which picture files a document may read.
enum class AllowedFiles : std::uint8_t {
    All,
    Document, ///< those in the document's folder and below; none for standard input, which has no folder
    None
};

/// Nothing for a text that names no choice.
[[nodiscard]] std::optional<AllowedFiles> FindAllowedFiles(std::string_view name);

/// The policy for a document, whose path is empty when it comes from standard input.
[[nodiscard]] ZAMFileAccessPolicy MakePolicy(AllowedFiles files, const std::string& documentPath);
