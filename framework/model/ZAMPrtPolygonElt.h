// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"
#include "framework/model/ZAMPrtWithPoints.h"

/// A closed polygon; the last point is joined to the first.
class ZAM_EXPORT ZAMPrtPolygonElt : public ZAMPrtEltOf<ZAMPrtPolygonElt, ZAMPrtWithPoints<ZAMPrtPaintedElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtPolygonElt";
};
