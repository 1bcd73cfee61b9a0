// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtStrokedElt.h"
#include "framework/model/ZAMPrtWithPoints.h"

/// Straight lines from point to point; never closed.
class ZAM_EXPORT ZAMPrtPolylineElt : public ZAMPrtEltOf<ZAMPrtPolylineElt, ZAMPrtWithPoints<ZAMPrtStrokedElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtPolylineElt";
};
