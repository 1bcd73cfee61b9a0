// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/model/ZAMPrtImageElt.h"
#include "framework/print/ZAMPrintParameters.h"

/// Points in a user unit: 72 to the inch against 90.
inline constexpr double kZAMPrintPointsPerUnit = 0.8;

/// Where an image element comes to lie on its page.
struct ZAM_EXPORT ZAMPrintPlacement {
    double pageWidth = 0.0; ///< points
    double pageHeight = 0.0;
    ZAMMathBox2D area;      ///< what the image shows, in the coordinates before its matrix
    ZAMMathAffine2D toPage; ///< from those coordinates to the page's (points, y downward); the matrix is part of it

    /// Places the image by the parameters. Sizes that are not finite and positive become those of the image's content,
    /// else 1 × 1 unit; a matrix that is singular or not finite counts as the unit matrix. A page with a side above
    /// `largestSide` points is made smaller with all that is on it, a side below a hundredth of a point is made so
    /// large.
    static ZAMPrintPlacement Of(const ZAMPrtImageElt& image, const ZAMPrintParameters& parameters, double largestSide);
};
