// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtStrokedElt.h"
#include "framework/model/ZAMPrtWithPoints.h"

/// Quadratic Bézier curves end to end: the start point, then a control point and an end point for each.
class ZAM_EXPORT ZAMPrtPolyQuadraticBezierElt
    : public ZAMPrtEltOf<ZAMPrtPolyQuadraticBezierElt, ZAMPrtWithPoints<ZAMPrtStrokedElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtPolyQuadraticBezierElt";
};
