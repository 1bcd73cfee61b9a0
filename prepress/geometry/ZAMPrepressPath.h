// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "prepress/document/ZAMPrepressElement.h"
#include "prepress/geometry/ZAMPrepressTransform.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The geometry of a path, in absolute coordinates: straight lines and cubic curves.
struct ZAMPrepressPath {
    enum class Verb : std::uint8_t { MoveTo, LineTo, CubicTo, ClosePath };
    struct Segment {
        Verb verb;
        bool isVertex; ///< a command of the path ends here, and not only a part of an arc
        ZAMMathPoint2D control1;
        ZAMMathPoint2D control2;
        ZAMMathPoint2D end; ///< of a ClosePath: the start of its subpath
    };
    std::vector<Segment> segments;

    /// Reads path data (SVG 1.1, 8.3) up to its first error.
    [[nodiscard]] static ZAMPrepressPath Parse(std::string_view data);
    /// The outline of a basic shape or path element whose lengths are numbers; nothing for other elements.
    [[nodiscard]] static std::optional<ZAMPrepressPath> Of(const ZAMPrepressElement& element);

    /// The path as data that the interpreter reads.
    [[nodiscard]] std::string ToData() const;

    /// The exact box of the geometry, curve extrema included; empty without segments.
    [[nodiscard]] ZAMMathBox2D GetBox() const;
};
