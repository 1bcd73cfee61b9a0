// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>

/// Maps as cairo has them, and what it asks of them.
namespace ZAMPrintCairoMap {

inline cairo_matrix_t ToCairo(const ZAMMathAffine2D& map) {
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, map.a, map.b, map.c, map.d, map.e, map.f);
    return matrix;
}

/// The two axes of the plane fall on one line, or on none.
inline bool IsSingular(const ZAMMathAffine2D& map) {
    const double largest = std::max({std::abs(map.a), std::abs(map.b), std::abs(map.c), std::abs(map.d)});
    const ZAMMath2x2Matrix unit{map.a / largest, map.c / largest, map.b / largest, map.d / largest};
    return !map.IsFinite() || !unit.IsInvertible();
}

/// What undoes a map that is not singular. Scaled, so that no determinant overflows.
inline ZAMMathAffine2D Invert(const ZAMMathAffine2D& map) {
    const double largest = std::max({std::abs(map.a), std::abs(map.b), std::abs(map.c), std::abs(map.d)});
    const ZAMMath2x2Matrix unit{map.a / largest, map.c / largest, map.b / largest, map.d / largest};
    const double scale = 1.0 / unit.Determinant() / largest;
    const ZAMMathAffine2D linear{unit.d * scale, -unit.c * scale, -unit.b * scale, unit.a * scale, 0.0, 0.0};
    const ZAMMathPoint2D shift = linear.Apply(ZAMMathPoint2D{map.e, map.f});
    return {linear.a, linear.b, linear.c, linear.d, -shift.x, -shift.y};
}

} // namespace ZAMPrintCairoMap
