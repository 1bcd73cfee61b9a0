// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtContainerOf.h"
#include "framework/model/ZAMPrtEltOf.h"

/// A part of a closed figure: pieces (lines, polylines, curves, arcs) in the order in which they are drawn. The paint
/// of the pieces does not count, the figure's does.
class ZAM_EXPORT ZAMPrtClosedFigureRegionElt
    : public ZAMPrtEltOf<ZAMPrtClosedFigureRegionElt, ZAMPrtContainerOf<ZAMPrtGraphicPrimitiveElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtClosedFigureRegionElt";
};
