// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

/// A linear map of the plane, given by its rows: x' = a·x + b·y, y' = c·x + d·y.
struct ZAMMath2x2Matrix {
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;

    [[nodiscard]] double Determinant() const { return a * d - b * c; }
    /// True when the map can be undone and holds no infinity or NaN.
    [[nodiscard]] bool IsInvertible() const {
        const double determinant = Determinant();
        return std::isfinite(a) && std::isfinite(b) && std::isfinite(c) && std::isfinite(d) &&
               std::isfinite(determinant) && determinant != 0.0;
    }
    bool operator==(const ZAMMath2x2Matrix&) const = default;
};
