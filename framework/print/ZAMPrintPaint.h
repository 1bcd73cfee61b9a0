// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtFillPattern.h"
#include "framework/model/ZAMPrtPaintCodes.h"
#include "framework/print/ZAMPrintColour.h"

#include <span>

/// How the interior of a path is painted: with a colour, or with a pattern as opaque as the colour's alpha says.
struct ZAMPrintFill {
    ZAMPrintColour colour;
    ZAMPrtFillRule rule = ZAMPrtFillRule::NonZero;
    /// In the path's own units, so the map to the page shapes it as well. Null for a plain colour; else it has an
    /// image, and a size and a step that are finite and positive. The bitmap is drawn with its lower left corner (y
    /// upward) at the reference point and at every whole multiple of the step from there; between bitmaps that are
    /// smaller than the step nothing is painted.
    const ZAMPrtFillPattern* pattern = nullptr;
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
