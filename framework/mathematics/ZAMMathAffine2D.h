// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMath2x2Matrix.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"

/// An affine map of the plane: x' = a·x + c·y + e, y' = b·x + d·y + f, the order in which SVG and PDF write the six
/// numbers.
struct ZAMMathAffine2D {
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;
    double e = 0.0;
    double f = 0.0;

    [[nodiscard]] static ZAMMathAffine2D FromMatrix(const ZAMMath2x2Matrix& matrix) {
        return {matrix.a, matrix.c, matrix.b, matrix.d, 0.0, 0.0};
    }
    [[nodiscard]] ZAMMathPoint2D Apply(const ZAMMathPoint2D& point) const {
        return {a * point.x + c * point.y + e, b * point.x + d * point.y + f};
    }
    /// The map without its translation: how offsets are carried over.
    [[nodiscard]] ZAMMathVector2D Apply(const ZAMMathVector2D& offset) const {
        return {a * offset.x + c * offset.y, b * offset.x + d * offset.y};
    }
    /// The box of the mapped corners; an empty box stays empty.
    [[nodiscard]] ZAMMathBox2D Apply(const ZAMMathBox2D& box) const {
        ZAMMathBox2D mapped;
        for (const ZAMMathPoint2D& corner : box.Corners()) {
            mapped.Add(Apply(corner));
        }
        return mapped;
    }
    [[nodiscard]] ZAMMath2x2Matrix Linear() const { return {a, c, b, d}; }
    [[nodiscard]] bool IsFinite() const {
        return std::isfinite(a) && std::isfinite(b) && std::isfinite(c) && std::isfinite(d) && std::isfinite(e) &&
               std::isfinite(f);
    }
    bool operator==(const ZAMMathAffine2D&) const = default;
};

/// The map that applies `inner` first, then `outer`.
inline ZAMMathAffine2D operator*(const ZAMMathAffine2D& outer, const ZAMMathAffine2D& inner) {
    return {outer.a * inner.a + outer.c * inner.b,           outer.b * inner.a + outer.d * inner.b,
            outer.a * inner.c + outer.c * inner.d,           outer.b * inner.c + outer.d * inner.d,
            outer.a * inner.e + outer.c * inner.f + outer.e, outer.b * inner.e + outer.d * inner.f + outer.f};
}
