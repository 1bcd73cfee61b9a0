// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"

/// A circle. One whose radius is not positive draws nothing.
class ZAM_EXPORT ZAMPrtCircleElt : public ZAMPrtEltOf<ZAMPrtCircleElt, ZAMPrtPaintedElt> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtCircleElt";

    [[nodiscard]] const ZAMMathPoint2D& GetCenter() const { return _Center; }
    void SetCenter(const ZAMMathPoint2D& center) { _Center = center; }
    [[nodiscard]] double GetRadius() const { return _Radius; }
    void SetRadius(double radius) { _Radius = radius; }

private:
    ZAMMathPoint2D _Center;
    double _Radius = 0.0;
};
