// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/geometry/ZAMPrepressPath.h"

/// Appends segments to a path, whose end it knows. Quadratic curves and arcs become cubic ones.
class ZAMPrepressPathBuilder {
public:
    explicit ZAMPrepressPathBuilder(ZAMPrepressPath& path) : _Path(path) {}

    [[nodiscard]] bool IsEmpty() const { return _Path.segments.empty(); }
    [[nodiscard]] const ZAMMathPoint2D& GetCurrent() const { return _Current; }

    void MoveTo(const ZAMMathPoint2D& point) {
        _Start = point;
        Append(ZAMPrepressPath::Verb::MoveTo, point);
    }
    void LineTo(const ZAMMathPoint2D& point) { Append(ZAMPrepressPath::Verb::LineTo, point); }
    void CubicTo(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2, const ZAMMathPoint2D& end) {
        _Path.segments.push_back({ZAMPrepressPath::Verb::CubicTo, true, control1, control2, end});
        _Current = end;
    }
    void QuadraticTo(const ZAMMathPoint2D& control, const ZAMMathPoint2D& end);
    /// A quarter of an upright ellipse: `corner` is where the tangents of its ends meet.
    void QuarterTo(const ZAMMathPoint2D& corner, const ZAMMathPoint2D& end);
    /// A whole ellipse as a subpath of its own, from its rightmost point clockwise; nothing when a radius is not
    /// positive.
    void Ellipse(const ZAMMathPoint2D& center, double xRadius, double yRadius);
    void ClosePath() { Append(ZAMPrepressPath::Verb::ClosePath, _Start); }

    /// How path data gives an arc; degrees.
    struct Arc {
        double xRadius;
        double yRadius;
        double rotation;
        bool large;
        bool sweep;
    };
    /// Radii that are too small are enlarged, one of 0 gives a line, an end where the arc starts gives nothing
    /// (SVG 1.1, F.6.2).
    void ArcTo(const Arc& arc, const ZAMMathPoint2D& end);

private:
    void Append(ZAMPrepressPath::Verb verb, const ZAMMathPoint2D& end) {
        _Path.segments.push_back({verb, true, {}, {}, end});
        _Current = end;
    }

    ZAMPrepressPath& _Path;
    ZAMMathPoint2D _Start; // of the subpath
    ZAMMathPoint2D _Current;
};
