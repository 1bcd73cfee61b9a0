// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/paint/ZAMPrepressPicture.h"
#include "prepress/paint/ZAMPrepressPixels.h"

/// The offsets of a gradient's colours in the plane.
struct ZAMPrepressOffsets {
    bool isRadial = false;
    /// To the gradient's own units: the offset of a linear gradient is its x there, a radial one ends at the circle of
    /// radius 1 about the origin.
    ZAMMathAffine2D toGradient;
    ZAMMathPoint2D focus;     ///< of a radial gradient, in its own units and within its circle
    double focalRadius = 0.0; ///< of the circle about the focus where the colours begin; it is within the other

    [[nodiscard]] double At(const ZAMMathPoint2D& point) const;
    /// How much the offset changes at most over a unit of length.
    [[nodiscard]] double GetSlope() const;
};

/// A picture of the gradient within the area, y downward, with the given number of pixels: each shows the mean colour
/// of what it covers.
[[nodiscard]] ZAMPrepressPicture ZAMPrepressDrawGradient(const ZAMPrepressRamp& ramp, const ZAMPrepressOffsets& offsets,
                                                         const ZAMMathBox2D& area, const ZAMPrepressPixels& size);
