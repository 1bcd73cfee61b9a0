// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/geometry/ZAMPrepressPath.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// A subpath, or a dash of one, as straight lines.
struct ZAMPrepressFlatLine {
    struct Vertex {
        ZAMMathPoint2D point;
        bool isCorner; ///< where two segments of the path meet; otherwise within a curve
    };
    std::vector<Vertex> vertices; ///< at least two, no two neighbours of which are the same
    bool isClosed = false;        ///< the last one leads to the first
};

/// How closely lines are to follow curves.
struct ZAMPrepressFlatness {
    double tolerance;     ///< farthest distance, for what runs beside the curve too
    double reach;         ///< of what runs beside it
    std::size_t vertices; ///< that there may be in all
};

/// The subpaths of a path; nothing where that takes too many vertices. One without a length leads to the right for next
/// to nothing.
[[nodiscard]] std::optional<std::vector<ZAMPrepressFlatLine>> ZAMPrepressFlatten(const ZAMPrepressPath& path,
                                                                                 const ZAMPrepressFlatness& flatness);

/// Cuts lines into dashes: the lengths of dashes and gaps in turn, over and over (SVG 1.1, 11.4). None is negative,
/// some are not 0. Nothing where that takes too many vertices.
[[nodiscard]] std::optional<std::vector<ZAMPrepressFlatLine>>
ZAMPrepressDash(std::span<const ZAMPrepressFlatLine> lines, std::span<const double> lengths,
                const ZAMPrepressFlatness& flatness);
