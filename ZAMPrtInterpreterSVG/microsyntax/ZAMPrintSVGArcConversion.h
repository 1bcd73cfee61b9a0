// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathEllipticalArc.h"
#include "framework/mathematics/ZAMMathPoint2D.h"

/// An arc as path data gives it. All coordinates are the document's, y downward; radii are positive, `from` and `to`
/// differ.
struct ZAMPrintSVGArcCommand {
    ZAMMathPoint2D from;
    ZAMMathPoint2D to;
    double xRadius;
    double yRadius;
    double rotation; ///< degrees
    bool largeArc;
    bool sweep;
};

/// The same arc by its centre (SVG 1.1, F.6.5); radii that are too small are scaled up until they fit (F.6.6). Angles
/// are positive in the direction from the x axis to the y axis.
ZAMMathEllipticalArc ZAMPrintSVGArcByCenter(const ZAMPrintSVGArcCommand& command);
