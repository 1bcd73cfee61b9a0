// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"

/// From one number to another that is not smaller.
struct ZAMPrepressInterval {
    double from;
    double to;

    [[nodiscard]] double GetLength() const { return to - from; }
};

/// The side of a tile that covers the side of a box and a margin of at least that much. Sides of almost the same length
/// and place have the same one.
[[nodiscard]] ZAMPrepressInterval ZAMPrepressCoverSide(const ZAMPrepressInterval& side, double leastMargin);

/// Whether a tile can be made for a box in units that the map carries to those of the drawing.
[[nodiscard]] bool ZAMPrepressCanBeCovered(const ZAMMathBox2D& box, const ZAMMathAffine2D& toDrawing);

/// The box about the mapped corners of a box.
[[nodiscard]] ZAMMathBox2D ZAMPrepressMapBox(const ZAMMathBox2D& box, const ZAMMathAffine2D& map);

/// Pixels about the edge of a leaf cover what is outside of it too, and there a tile must not have begun anew: what is
/// to be left at least, in user units of the drawing.
constexpr double kZAMPrepressTileMargin = 2.0;
