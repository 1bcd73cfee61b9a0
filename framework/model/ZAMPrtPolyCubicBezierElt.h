// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtStrokedElt.h"
#include "framework/model/ZAMPrtWithPoints.h"

/// Cubic Bézier curves end to end: the start point, then two control points and an end point for each.
class ZAM_EXPORT ZAMPrtPolyCubicBezierElt
    : public ZAMPrtEltOf<ZAMPrtPolyCubicBezierElt, ZAMPrtWithPoints<ZAMPrtStrokedElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtPolyCubicBezierElt";
};
