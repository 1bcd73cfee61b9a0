// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathEllipticalArc.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"

/// An arc of an ellipse.
class ZAM_EXPORT ZAMPrtEllipticalArcElt : public ZAMPrtEltOf<ZAMPrtEllipticalArcElt, ZAMPrtPaintedElt> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtEllipticalArcElt";

    [[nodiscard]] const ZAMMathEllipticalArc& GetArc() const { return _Arc; }
    void SetArc(const ZAMMathEllipticalArc& arc) { _Arc = arc; }

private:
    ZAMMathEllipticalArc _Arc;
};
