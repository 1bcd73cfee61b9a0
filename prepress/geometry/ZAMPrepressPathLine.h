// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathVector2D.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <vector>

/// A path as one goes along it: its subpaths one after the other, curves as many short lines.
class ZAMPrepressPathLine {
public:
    ZAMPrepressPathLine(const ZAMPrepressPath& path, const ZAMMathAffine2D& map);

    struct Place {
        ZAMMathPoint2D point;
        ZAMMathVector2D direction; ///< of length 1
    };

    /// 0 for a path that leads nowhere.
    [[nodiscard]] double GetLength() const { return _Steps.empty() ? 0.0 : _Steps.back().end; }
    /// The place at a distance from the start, between 0 and the length, which is not 0.
    [[nodiscard]] Place GetPlace(double distance) const;

private:
    struct Step {
        ZAMMathPoint2D from;
        ZAMMathVector2D direction;
        double start; ///< distances along the path
        double end;
    };

    void LineTo(const ZAMMathPoint2D& point);
    void CubicTo(const ZAMPrepressPath::Segment& curve, const ZAMMathAffine2D& map);

    std::vector<Step> _Steps;
    ZAMMathPoint2D _Current;
};
