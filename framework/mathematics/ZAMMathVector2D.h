// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

/// An offset in the plane, or a size.
struct ZAMMathVector2D {
    double x = 0.0;
    double y = 0.0;

    /// Both sides are finite and positive.
    [[nodiscard]] bool IsPositive() const { return x > 0.0 && y > 0.0 && std::isfinite(x) && std::isfinite(y); }
    bool operator==(const ZAMMathVector2D&) const = default;
};
