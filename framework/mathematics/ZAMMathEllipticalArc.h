// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"

#include <array>

/// An arc of an ellipse. Angles are radians, counter-clockwise positive where y points up; the start angle is the
/// ellipse's parameter: the arc runs through centre + R(rotation)·(xRadius·cos t, yRadius·sin t) for t from startAngle
/// to startAngle + sweepAngle.
struct ZAM_EXPORT ZAMMathEllipticalArc {
    ZAMMathPoint2D center;
    double xRadius = 0.0;
    double yRadius = 0.0;
    double rotation = 0.0;
    double startAngle = 0.0;
    double sweepAngle = 0.0;

    [[nodiscard]] ZAMMathPoint2D PointAt(double angle) const { return UnitCircleMap().Apply(UnitPoint(angle)); }
    [[nodiscard]] ZAMMathPoint2D Start() const { return PointAt(startAngle); }
    [[nodiscard]] ZAMMathPoint2D End() const { return PointAt(startAngle + sweepAngle); }

    /// The map that carries the unit circle's parameter onto the ellipse's.
    [[nodiscard]] ZAMMathAffine2D UnitCircleMap() const;

    /// Grows `box` by the arc as `map` carries it over: its ends and the extrema between them. A sweep of more than a
    /// turn counts as a whole ellipse; an arc that is not finite adds nothing.
    void AddTo(ZAMMathBox2D& box, const ZAMMathAffine2D& map) const;

    /// Calls `cubicTo(control1, control2, end)` for at most four cubic curves that follow the arc from its start within
    /// 3e-4 of the larger radius. A sweep of more than a turn is cut to one turn; an arc that is not finite makes no
    /// call.
    template <class CubicTo> void ForEachCubic(CubicTo cubicTo) const {
        Cubics cubics;
        const int count = ToCubics(cubics);
        for (int i = 0; i < count; ++i) {
            const auto& points = cubics.at(static_cast<std::size_t>(i));
            cubicTo(points[0], points[1], points[2]);
        }
    }

    bool operator==(const ZAMMathEllipticalArc&) const = default;

private:
    using Cubics = std::array<std::array<ZAMMathPoint2D, 3>, 4>;

    static ZAMMathPoint2D UnitPoint(double angle) { return {std::cos(angle), std::sin(angle)}; }
    [[nodiscard]] bool IsFinite() const;
    int ToCubics(Cubics& cubics) const;
};
