// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressPathBuilder.h"

#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/mathematics/ZAMMathEllipticalArc.h"

#include <algorithm>
#include <cmath>

namespace {

ZAMMathPoint2D TwoThirds(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
    return {from.x + (to.x - from.x) * 2.0 / 3.0, from.y + (to.y - from.y) * 2.0 / 3.0};
}

// The arc by its centre (SVG 1.1, F.6.5 and F.6.6). Seen along the axes and measured in the radii the ellipse is the
// unit circle, and the centre stands on the chord's perpendicular bisector. Radii are positive, the ends differ.
ZAMMathEllipticalArc ByCenter(const ZAMPrepressPathBuilder::Arc& arc, const ZAMMathPoint2D& from,
                              const ZAMMathPoint2D& to) {
    const double rotation = arc.rotation * ZAMDegreeToRadian;
    const double cosine = std::cos(rotation);
    const double sine = std::sin(rotation);
    const ZAMMathPoint2D middle{(from.x + to.x) / 2.0, (from.y + to.y) / 2.0};
    const double x = (to.x - from.x) / 2.0;
    const double y = (to.y - from.y) / 2.0;
    ZAMMathPoint2D half{(cosine * x + sine * y) / arc.xRadius, (cosine * y - sine * x) / arc.yRadius};
    const double halfLength = std::hypot(half.x, half.y);
    const double scale = std::max(halfLength, 1.0);
    half = {half.x / scale, half.y / scale};

    const double bounded = std::min(halfLength, 1.0);
    const double distance = std::sqrt(1.0 - bounded * bounded) / bounded * (arc.large == arc.sweep ? 1.0 : -1.0);
    const ZAMMathPoint2D center{half.y * distance, -half.x * distance};
    const double start = std::atan2(-half.y - center.y, -half.x - center.x);
    double sweep = std::atan2(half.y - center.y, half.x - center.x) - start;
    if (arc.sweep && sweep < 0.0) {
        sweep += ZAM2PI;
    } else if (!arc.sweep && sweep > 0.0) {
        sweep -= ZAM2PI;
    }
    const double alongX = center.x * arc.xRadius * scale;
    const double alongY = center.y * arc.yRadius * scale;
    return {{middle.x + cosine * alongX - sine * alongY, middle.y + sine * alongX + cosine * alongY},
            arc.xRadius * scale,
            arc.yRadius * scale,
            rotation,
            start,
            sweep};
}

} // namespace

void ZAMPrepressPathBuilder::QuadraticTo(const ZAMMathPoint2D& control, const ZAMMathPoint2D& end) {
    CubicTo(TwoThirds(_Current, control), TwoThirds(end, control), end);
}

void ZAMPrepressPathBuilder::QuarterTo(const ZAMMathPoint2D& corner, const ZAMMathPoint2D& end) {
    constexpr double kReach = 0.552284749830793398; // 4/3·tan(45°/2)
    const auto control = [&](const ZAMMathPoint2D& from) {
        return ZAMMathPoint2D{from.x + (corner.x - from.x) * kReach, from.y + (corner.y - from.y) * kReach};
    };
    CubicTo(control(_Current), control(end), end);
}

void ZAMPrepressPathBuilder::Ellipse(const ZAMMathPoint2D& center, double xRadius, double yRadius) {
    if (!(xRadius > 0.0 && yRadius > 0.0)) {
        return;
    }
    const double left = center.x - xRadius;
    const double right = center.x + xRadius;
    const double top = center.y - yRadius;
    const double bottom = center.y + yRadius;
    MoveTo({right, center.y});
    QuarterTo({right, bottom}, {center.x, bottom});
    QuarterTo({left, bottom}, {left, center.y});
    QuarterTo({left, top}, {center.x, top});
    QuarterTo({right, top}, {right, center.y});
    ClosePath();
}

void ZAMPrepressPathBuilder::ArcTo(const Arc& arc, const ZAMMathPoint2D& end) {
    if (end == _Current) {
        return;
    }
    const Arc positive{std::abs(arc.xRadius), std::abs(arc.yRadius), arc.rotation, arc.large, arc.sweep};
    if (!(positive.xRadius > 0.0 && positive.yRadius > 0.0)) {
        LineTo(end);
        return;
    }
    const std::size_t before = _Path.segments.size();
    ByCenter(positive, _Current, end).ForEachCubic([this](const auto& control1, const auto& control2, const auto& to) {
        CubicTo(control1, control2, to);
        _Path.segments.back().isVertex = false;
    });
    if (_Path.segments.size() == before) { // not finite
        LineTo(end);
        return;
    }
    // The end as it is written, whatever the trigonometry made of it.
    _Path.segments.back().isVertex = true;
    _Path.segments.back().end = end;
    _Current = end;
}
