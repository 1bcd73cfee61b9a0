// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtPaintCodes.h"
#include "framework/print/ZAMPrintColour.h"

#include <span>

/// How the interior of a path is painted.
struct ZAMPrintFill {
    ZAMPrintColour colour;
    ZAMPrtFillRule rule = ZAMPrtFillRule::NonZero;
};

/// How a path is stroked. Lengths are in the path's own units, so the map to the page shapes the pen as well.
struct ZAMPrintPen {
    static constexpr double kMiterLimit = 4.0;

    ZAMPrintColour colour;
    double width = 1.0;                                            ///< finite and positive
    ZAMPrintLineAttribute cap = ZAMPrintLineAttribute::CapButt;    ///< one of the three caps
    ZAMPrintLineAttribute join = ZAMPrintLineAttribute::JoinMiter; ///< one of the three joins
    std::span<const float> dashes; ///< empty for a solid line, else finite, none negative, not all zero
};
