// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtContainerOf.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"

/// One set of contours, given by regions. Within a region a piece that starts where the last one ended continues the
/// contour; a contour whose end meets its start is closed with a join. Filled with one rule across all regions, every
/// contour closed for the fill; stroked once as a whole. The transforms of regions and pieces do not count, the
/// figure's does.
class ZAM_EXPORT ZAMPrtClosedFigureElt
    : public ZAMPrtEltOf<ZAMPrtClosedFigureElt, ZAMPrtContainerOf<ZAMPrtPaintedElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtClosedFigureElt";
};
