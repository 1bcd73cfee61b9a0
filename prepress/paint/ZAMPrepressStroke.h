// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/geometry/ZAMPrepressPath.h"
#include "prepress/paint/ZAMPrepressFlatLine.h"

#include <cstdint>
#include <optional>
#include <vector>

/// How an outline is stroked (SVG 1.1, 11.4).
struct ZAMPrepressStroke {
    enum class Cap : std::uint8_t { Butt, Round, Square };
    enum class Join : std::uint8_t { Miter, Round, Bevel };

    double width = 1.0;
    Cap cap = Cap::Butt;
    Join join = Join::Miter;
    double miterLimit = 4.0;
    std::vector<double> dashes{}; ///< empty for a stroke without gaps

    /// That of a shape with computed styles.
    [[nodiscard]] static ZAMPrepressStroke Of(const ZAMPrepressElement& shape);

    /// What the stroke of a path covers, as a path to be filled by the rule nonzero: pieces that overlap and run the
    /// same way around. Nothing where that takes too many vertices. `tolerance` is how far it may be off.
    [[nodiscard]] std::optional<ZAMPrepressPath> GetOutline(const ZAMPrepressPath& path, double tolerance,
                                                            std::size_t mostVertices) const;
};
