// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

/// A point of the plane.
struct ZAMMathPoint2D {
    double x = 0.0;
    double y = 0.0;

    [[nodiscard]] bool IsFinite() const { return std::isfinite(x) && std::isfinite(y); }
    bool operator==(const ZAMMathPoint2D&) const = default;
};
