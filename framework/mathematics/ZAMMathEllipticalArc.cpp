// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathEllipticalArc.h"

#include "framework/mathematics/ZAMMathConstants.h"

#include <cmath>

ZAMMathAffine2D ZAMMathEllipticalArc::UnitCircleMap() const {
    const double cosine = std::cos(rotation);
    const double sine = std::sin(rotation);
    return {xRadius * cosine, xRadius * sine, -yRadius * sine, yRadius * cosine, center.x, center.y};
}

bool ZAMMathEllipticalArc::IsFinite() const {
    return std::isfinite(startAngle) && std::isfinite(sweepAngle) && UnitCircleMap().IsFinite();
}

void ZAMMathEllipticalArc::AddTo(ZAMMathBox2D& box, const ZAMMathAffine2D& map) const {
    if (!IsFinite()) {
        return;
    }
    const ZAMMathAffine2D toBox = map * UnitCircleMap();
    box.Add(toBox.Apply(UnitPoint(startAngle)));
    box.Add(toBox.Apply(UnitPoint(startAngle + sweepAngle)));
    const double first = std::min(startAngle, startAngle + sweepAngle);
    const double sweep = std::min(std::abs(sweepAngle), ZAM2PI);
    // x is greatest where (cos t, sin t) points along (a, c), least half a turn on; y likewise along (b, d).
    for (const double extremum : {std::atan2(toBox.c, toBox.a), std::atan2(toBox.d, toBox.b)}) {
        for (const double angle : {extremum, extremum + ZAMPI}) {
            double fromFirst = std::fmod(angle - first, ZAM2PI);
            if (fromFirst < 0.0) {
                fromFirst += ZAM2PI;
            }
            if (fromFirst < sweep) {
                box.Add(toBox.Apply(UnitPoint(angle)));
            }
        }
    }
}

int ZAMMathEllipticalArc::ToCubics(Cubics& cubics) const {
    if (!IsFinite()) {
        return 0;
    }
    const double sweep = std::clamp(sweepAngle, -ZAM2PI, ZAM2PI);
    constexpr double kSlightlyOver = 1e-9; // keeps a quarter turn that was rounded up from being cut in two
    const int count = std::clamp(static_cast<int>(std::ceil(std::abs(sweep) / (ZAMPI / 2.0) - kSlightlyOver)), 1, 4);
    const double step = sweep / count;
    const double reach = 4.0 / 3.0 * std::tan(step / 4.0);
    const ZAMMathAffine2D toEllipse = UnitCircleMap();
    ZAMMathPoint2D from = UnitPoint(startAngle);
    for (int i = 0; i < count; ++i) {
        const ZAMMathPoint2D to = UnitPoint(startAngle + step * (i + 1));
        cubics.at(static_cast<std::size_t>(i)) = {
            toEllipse.Apply(ZAMMathPoint2D{from.x - reach * from.y, from.y + reach * from.x}),
            toEllipse.Apply(ZAMMathPoint2D{to.x + reach * to.y, to.y - reach * to.x}), toEllipse.Apply(to)};
        from = to;
    }
    return count;
}
