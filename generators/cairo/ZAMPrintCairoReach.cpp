// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoReach.h"

#include <array>
#include <cmath>

namespace {

using Curve = std::array<ZAMMathPoint2D, 4>;

ZAMMathPoint2D At(const Curve& p, double t) {
    const double s = 1.0 - t;
    const std::array weights{s * s * s, 3.0 * s * s * t, 3.0 * s * t * t, t * t * t};
    ZAMMathPoint2D point{0.0, 0.0};
    for (std::size_t i = 0; i < p.size(); ++i) {
        point = {point.x + weights[i] * p[i].x, point.y + weights[i] * p[i].y};
    }
    return point;
}

/// Where one coordinate of the curve turns: the zeros of its derivative, without the factor 3.
void AddExtrema(ZAMMathBox2D& box, const Curve& curve, double ZAMMathPoint2D::*axis) {
    const double p0 = curve[0].*axis;
    const double p1 = curve[1].*axis;
    const double p2 = curve[2].*axis;
    const double p3 = curve[3].*axis;
    const double a = p3 - 3.0 * p2 + 3.0 * p1 - p0;
    const double b = p2 - 2.0 * p1 + p0; // half of it
    const double c = p1 - p0;
    const double root = std::sqrt(std::fmax(b * b - a * c, 0.0));
    const double q = -(b + std::copysign(root, b));
    for (const double t : {q / a, c / q}) {
        if (t > 0.0 && t < 1.0) { // and no NaN
            box.Add(At(curve, t));
        }
    }
}

} // namespace

ZAMMathBox2D ZAMPrintCairoReach(const ZAMPrintPath& path, const ZAMMathAffine2D& map) {
    ZAMMathBox2D box;
    ZAMMathPoint2D last;
    const ZAMMathPoint2D* p = path.GetPoints().data();
    for (const ZAMPrintPath::Verb verb : path.GetVerbs()) {
        const std::size_t count = ZAMPrintPath::PointsOf(verb);
        if (verb == ZAMPrintPath::Verb::CubicTo) {
            const Curve curve{last, map.Apply(p[0]), map.Apply(p[1]), map.Apply(p[2])};
            AddExtrema(box, curve, &ZAMMathPoint2D::x);
            AddExtrema(box, curve, &ZAMMathPoint2D::y);
        }
        if (count > 0) {
            last = map.Apply(p[count - 1]);
            box.Add(last);
        }
        p += count;
    }
    return box;
}
