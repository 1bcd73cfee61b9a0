// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <string_view>

/// A preserveAspectRatio attribute (SVG 1.1, 7.8).
struct ZAMPrepressAspect {
    enum class Fit : std::uint8_t { Stretch, Meet, Slice };

    Fit fit = Fit::Meet;
    double xAlign = 0.5; ///< the share of the free room that comes to lie before the content: 0, 0.5 or 1
    double yAlign = 0.5;

    /// The initial value for an empty text and one in error.
    [[nodiscard]] static ZAMPrepressAspect Parse(std::string_view text);

    /// The map that brings the content (a viewBox, the box of a picture) into the viewport. Both have an area.
    [[nodiscard]] ZAMMathAffine2D Map(const ZAMMathBox2D& content, const ZAMMathBox2D& viewport) const;
};

/// The box of a box under the inverse of a map that only moves and scales, by factors that are not 0.
[[nodiscard]] ZAMMathBox2D ZAMPrepressUnmap(const ZAMMathAffine2D& map, const ZAMMathBox2D& box);

/// The box of what a viewBox attribute says: left, top, width and height.
[[nodiscard]] inline ZAMMathBox2D ZAMPrepressToBox(const std::array<double, 4>& numbers) {
    return {numbers[0], numbers[1], numbers[0] + numbers[2], numbers[1] + numbers[3]};
}

[[nodiscard]] inline bool ZAMPrepressHasArea(const ZAMMathBox2D& box) {
    return box.xMin < box.xMax && box.yMin < box.yMax && std::isfinite(box.Width()) && std::isfinite(box.Height());
}
