// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"

/// An upright ellipse. One with a radius that is not positive draws nothing.
class ZAM_EXPORT ZAMPrtEllipseElt : public ZAMPrtEltOf<ZAMPrtEllipseElt, ZAMPrtPaintedElt> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtEllipseElt";

    [[nodiscard]] const ZAMMathPoint2D& GetCenter() const { return _Center; }
    void SetCenter(const ZAMMathPoint2D& center) { _Center = center; }
    [[nodiscard]] double GetXRadius() const { return _XRadius; }
    void SetXRadius(double radius) { _XRadius = radius; }
    [[nodiscard]] double GetYRadius() const { return _YRadius; }
    void SetYRadius(double radius) { _YRadius = radius; }

private:
    ZAMMathPoint2D _Center;
    double _XRadius = 0.0;
    double _YRadius = 0.0;
};
