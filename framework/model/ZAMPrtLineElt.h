// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtStrokedElt.h"

/// A straight line.
class ZAM_EXPORT ZAMPrtLineElt : public ZAMPrtEltOf<ZAMPrtLineElt, ZAMPrtStrokedElt> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtLineElt";

    [[nodiscard]] const ZAMMathPoint2D& GetStartPoint() const { return _StartPoint; }
    void SetStartPoint(const ZAMMathPoint2D& point) { _StartPoint = point; }
    [[nodiscard]] const ZAMMathPoint2D& GetEndPoint() const { return _EndPoint; }
    void SetEndPoint(const ZAMMathPoint2D& point) { _EndPoint = point; }

private:
    ZAMMathPoint2D _StartPoint;
    ZAMMathPoint2D _EndPoint;
};
