// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"

#include <vector>

/// Takes a picture that reaches far beyond the page to pieces that do not.
namespace ZAMPrintCairoPictureCut {

/// Pixels of the picture and where they show.
struct Part {
    int x; ///< first pixel, from the picture's upper left corner
    int y;
    int width; ///< in pixels
    int height;
    ZAMMathAffine2D toDevice; ///< from the unit square, as the picture's map
};

/// The parts of a picture of `width` × `height` pixels that the view shows: whole pixels, or, where they are large
/// themselves, as much of each pixel as is needed. The map, from the unit square to device units, is not singular.
[[nodiscard]] std::vector<Part> Cut(int width, int height, const ZAMMathAffine2D& toDevice, const ZAMMathBox2D& view);

} // namespace ZAMPrintCairoPictureCut
