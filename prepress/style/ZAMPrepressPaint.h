// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressColour.h"

#include <optional>
#include <string_view>

/// What fills or strokes (SVG 1.1, 11.2; SVG 2, 13.2), not yet resolved.
struct ZAMPrepressPaint {
    enum class Kind : std::uint8_t { None, Colour, CurrentColour, ContextFill, ContextStroke };

    std::string reference;  ///< id of a paint server, empty when there is none
    Kind kind = Kind::None; ///< without a paint server: as for one that does not exist and has no fallback
    ZAMPrepressColour colour;

    /// Nothing when the text is no paint.
    [[nodiscard]] static std::optional<ZAMPrepressPaint> Parse(std::string_view text);
};

/// The id that an address of this document ("#id") names; empty for other addresses.
[[nodiscard]] std::string_view ZAMPrepressGetFragment(std::string_view address);

/// Eats an address, with quotes or without; nothing, and nothing eaten, when the text has none there.
[[nodiscard]] std::optional<std::string_view> ZAMPrepressReadUrl(ZAMPrepressCssTokenizer& tokens);
