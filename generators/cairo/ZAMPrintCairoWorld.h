// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"

#include <cmath>

/// The square that holds every point that cairo is shown, in device units, and what cutting at its sides needs.
namespace ZAMPrintCairoWorld {

inline constexpr double kSide = ZAMPrintCairoLimits::kFarthestPoint;
inline constexpr ZAMMathBox2D kBox{-kSide, -kSide, kSide, kSide};

inline bool Contains(const ZAMMathBox2D& box, const ZAMMathBox2D& other) {
    return other.xMin >= box.xMin && other.xMax <= box.xMax && other.yMin >= box.yMin && other.yMax <= box.yMax;
}
inline bool Contains(const ZAMMathBox2D& box, const ZAMMathPoint2D& point) {
    return point.x >= box.xMin && point.x <= box.xMax && point.y >= box.yMin && point.y <= box.yMax;
}

/// A coordinate of a point, x or y.
using Axis = double ZAMMathPoint2D::*;

/// Where the line from p to q, which lie on two sides of it, has the coordinate `limit` along `axis`. Reckoned from the
/// end that is nearer, so that a far end costs no precision, and without differences that overflow.
inline ZAMMathPoint2D Cross(const ZAMMathPoint2D& p, const ZAMMathPoint2D& q, Axis axis, double limit) {
    const bool isFromP = std::abs(p.*axis / 2.0 - limit / 2.0) < std::abs(q.*axis / 2.0 - limit / 2.0);
    const ZAMMathPoint2D& near = isFromP ? p : q;
    const ZAMMathPoint2D& far = isFromP ? q : p;
    const double way = (limit / 2.0 - near.*axis / 2.0) / (far.*axis / 2.0 - near.*axis / 2.0);
    ZAMMathPoint2D point{near.x * (1.0 - way) + far.x * way, near.y * (1.0 - way) + far.y * way};
    point.*axis = limit;
    return point;
}

} // namespace ZAMPrintCairoWorld
