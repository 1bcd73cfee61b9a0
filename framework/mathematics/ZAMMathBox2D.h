// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathPoint2D.h"

#include <algorithm>
#include <array>
#include <limits>

/// An upright rectangle, grown point by point; empty until the first one.
struct ZAMMathBox2D {
    double xMin = std::numeric_limits<double>::infinity();
    double yMin = std::numeric_limits<double>::infinity();
    double xMax = -std::numeric_limits<double>::infinity();
    double yMax = -std::numeric_limits<double>::infinity();

    [[nodiscard]] bool IsEmpty() const { return !(xMin <= xMax && yMin <= yMax); }
    [[nodiscard]] double Width() const { return xMax - xMin; }
    [[nodiscard]] double Height() const { return yMax - yMin; }

    /// Points that are not finite are left out.
    void Add(const ZAMMathPoint2D& point) {
        if (point.IsFinite()) {
            xMin = std::min(xMin, point.x);
            yMin = std::min(yMin, point.y);
            xMax = std::max(xMax, point.x);
            yMax = std::max(yMax, point.y);
        }
    }
    [[nodiscard]] std::array<ZAMMathPoint2D, 4> Corners() const {
        return {{{xMin, yMin}, {xMax, yMin}, {xMax, yMax}, {xMin, yMax}}};
    }
    /// What both boxes cover; empty when they do not meet.
    [[nodiscard]] ZAMMathBox2D Intersection(const ZAMMathBox2D& other) const {
        return {std::max(xMin, other.xMin), std::max(yMin, other.yMin), std::min(xMax, other.xMax),
                std::min(yMax, other.yMax)};
    }
    bool operator==(const ZAMMathBox2D&) const = default;
};
