// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoDevicePath.h"

#include "generators/cairo/ZAMPrintCairoLimits.h"

#include <cmath>

void ZAMPrintCairoDevicePath::Assign(const ZAMPrintPath& path, const ZAMMathAffine2D& toDevice) {
    _Path.Clear();
    _HasPoint = false;
    _IsWhole = false;
    _IsNear = true;
    const ZAMMathPoint2D* points = path.GetPoints().data();
    for (const ZAMPrintPath::Verb verb : path.GetVerbs()) {
        switch (verb) {
        case ZAMPrintPath::Verb::MoveTo:
            MoveTo(toDevice.Apply(points[0]));
            break;
        case ZAMPrintPath::Verb::LineTo:
            LineTo(toDevice.Apply(points[0]));
            break;
        case ZAMPrintPath::Verb::CubicTo:
            CubicTo(toDevice.Apply(points[0]), toDevice.Apply(points[1]), toDevice.Apply(points[2]));
            break;
        case ZAMPrintPath::Verb::ClosePath:
            ClosePath();
            break;
        }
        points += ZAMPrintPath::PointsOf(verb);
    }
}

void ZAMPrintCairoDevicePath::MoveTo(const ZAMMathPoint2D& point) {
    _Start = point;
    Resume(point);
    _IsWhole = _HasPoint;
}

void ZAMPrintCairoDevicePath::LineTo(const ZAMMathPoint2D& point) {
    if (_HasPoint && point.IsFinite()) {
        _Path.LineTo(Measure(point));
    } else {
        Resume(point);
    }
}

void ZAMPrintCairoDevicePath::CubicTo(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2,
                                      const ZAMMathPoint2D& end) {
    if (_HasPoint && control1.IsFinite() && control2.IsFinite() && end.IsFinite()) {
        _Path.CubicTo(Measure(control1), Measure(control2), Measure(end));
    } else {
        Resume(end);
    }
}

void ZAMPrintCairoDevicePath::ClosePath() {
    if (_IsWhole) {
        _Path.ClosePath();
    } else if (_HasPoint && _Start.IsFinite()) {
        _Path.LineTo(_Start);
    }
    _HasPoint = false;
}

void ZAMPrintCairoDevicePath::Resume(const ZAMMathPoint2D& point) {
    _IsWhole = false;
    _HasPoint = point.IsFinite();
    if (_HasPoint) {
        _Path.MoveTo(Measure(point));
    }
}

const ZAMMathPoint2D& ZAMPrintCairoDevicePath::Measure(const ZAMMathPoint2D& point) {
    constexpr double kFarthest = ZAMPrintCairoLimits::kFarthestPoint;
    _IsNear = _IsNear && std::abs(point.x) <= kFarthest && std::abs(point.y) <= kFarthest;
    return point;
}
