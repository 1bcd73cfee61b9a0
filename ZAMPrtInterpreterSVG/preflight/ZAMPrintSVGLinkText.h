// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

/// A reference as a property writes it: "url(#id) fallback" (SVG 1.1, 11.2).
struct ZAMPrintSVGLinkText {
    std::string_view target; ///< what stands between the brackets, without quotes
    bool isPlain;            ///< it is written "url(#id)" and nothing else, which is all that the interpreter reads
    bool hasFallback;        ///< something follows

    [[nodiscard]] bool IsLocal() const { return target.starts_with('#'); }
    /// Of a local reference.
    [[nodiscard]] std::string_view GetId() const { return target.substr(1); }
    /// The id, or else the whole target.
    [[nodiscard]] std::string_view GetSubject() const { return IsLocal() ? GetId() : target; }

    /// Nothing for a value that is no reference.
    [[nodiscard]] static std::optional<ZAMPrintSVGLinkText> Read(std::string_view value);
};
