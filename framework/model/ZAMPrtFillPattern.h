// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/visualisation/ZAMPixelImage.h"

/// A bitmap that fills are tiled with, in the coordinates of the element that is filled.
struct ZAMPrtFillPattern {
    ZAMRef<ZAMPixelImage> image; ///< without one the fill is of the colour
    ZAMMathVector2D size;        ///< of one drawn bitmap
    ZAMMathVector2D step;        ///< from one bitmap to the next, to the right and upward
    ZAMMathPoint2D refPoint;     ///< the lower left corner of one of them

    bool operator==(const ZAMPrtFillPattern&) const = default;
};
