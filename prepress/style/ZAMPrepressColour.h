// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressCssTokenizer.h"

#include <cstdint>
#include <optional>
#include <string>

/// A colour of sRGB with its opacity.
struct ZAMPrepressColour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    double alpha = 1.0; ///< 0 to 1

    bool operator==(const ZAMPrepressColour&) const = default;

    /// "#rrggbb": the opacity is left out.
    [[nodiscard]] std::string ToHex() const;
    /// In full, as Parse reads it.
    [[nodiscard]] std::string ToText() const;

    /// Eats a colour (CSS Color 4: hexadecimal, rgb, hsl, named), but not the keyword currentColor. Nothing when the
    /// text has no colour there; what was eaten then is of no use.
    [[nodiscard]] static std::optional<ZAMPrepressColour> Parse(ZAMPrepressCssTokenizer& tokens);
};
