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

/// The sine of the angle between the axes of the plane as they are mapped; not a number when one has no length.
inline double GetSine(const ZAMMathAffine2D& map) {
    const double x = std::hypot(map.a, map.b);
    const double y = std::hypot(map.c, map.d);
    return std::abs(map.a / x * (map.d / y) - map.b / x * (map.c / y));
}

/// The axes fall so nearly on one line that what is reckoned back from the device means nothing.
inline bool IsFlat(const ZAMMathAffine2D& map) {
    constexpr double kSmallestSine = 1e-6;
    return !(GetSine(map) >= kSmallestSine);
}

/// How far the lines x = 0 and x = 1 come to lie apart, and those with y.
inline ZAMMathVector2D GetSpacing(const ZAMMathAffine2D& map) {
    const double sine = GetSine(map);
    return {sine * std::hypot(map.a, map.b), sine * std::hypot(map.c, map.d)};
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
