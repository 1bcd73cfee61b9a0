// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"

/// An upright rectangle, given by two opposite corners in any order.
class ZAM_EXPORT ZAMPrtRectangleElt : public ZAMPrtEltOf<ZAMPrtRectangleElt, ZAMPrtPaintedElt> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtRectangleElt";

    [[nodiscard]] const ZAMMathPoint2D& GetFirstCorner() const { return _FirstCorner; }
    [[nodiscard]] const ZAMMathPoint2D& GetOppositeCorner() const { return _OppositeCorner; }
    void SetCorners(const ZAMMathPoint2D& first, const ZAMMathPoint2D& opposite) {
        _FirstCorner = first;
        _OppositeCorner = opposite;
    }

private:
    ZAMMathPoint2D _FirstCorner;
    ZAMMathPoint2D _OppositeCorner;
};
