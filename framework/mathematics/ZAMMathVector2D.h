// SPDX-License-Identifier: MIT
#pragma once

/// An offset in the plane.
struct ZAMMathVector2D {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const ZAMMathVector2D&) const = default;
};
