// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoContour.h"

#include <cmath>
#include <utility>

namespace {

ZAMMathPoint2D Between(const ZAMMathPoint2D& p, const ZAMMathPoint2D& q, double way) {
    return {p.x + (q.x - p.x) * way, p.y + (q.y - p.y) * way};
}

/// Appends a line, and begins a new part on it when it is long enough to hide that.
void AddLine(std::vector<ZAMPrintPath>& parts, const ZAMMathPoint2D& to, double shortest) {
    // Cairo's work on a stroke grows with the square of its segments; below a few hundred other work dominates.
    constexpr std::size_t kMostSegments = 300;
    const ZAMMathPoint2D from = parts.back().GetPoints().back();
    if (parts.back().GetVerbs().size() > kMostSegments && std::hypot(to.x - from.x, to.y - from.y) > shortest) {
        parts.back().LineTo(Between(from, to, 0.75));
        parts.emplace_back().MoveTo(Between(from, to, 0.25));
    }
    parts.back().LineTo(to);
}

} // namespace

void ZAMPrintCairoContour::Continue(ZAMPrintPath& path, const ZAMPrintPath& other) {
    const ZAMMathPoint2D* points = other.GetPoints().data() + 1;
    for (const ZAMPrintPath::Verb verb : other.GetVerbs().subspan(1)) {
        if (verb == ZAMPrintPath::Verb::LineTo) {
            path.LineTo(points[0]);
        } else {
            path.CubicTo(points[0], points[1], points[2]);
        }
        points += ZAMPrintPath::PointsOf(verb);
    }
}

std::vector<ZAMPrintPath> ZAMPrintCairoContour::Divide(const ZAMPrintPath& contour, double penWidth) {
    std::vector<ZAMPrintPath> parts(1);
    const ZAMMathPoint2D* points = contour.GetPoints().data();
    for (const ZAMPrintPath::Verb verb : contour.GetVerbs()) {
        switch (verb) {
        case ZAMPrintPath::Verb::MoveTo:
            parts.back().MoveTo(points[0]);
            break;
        case ZAMPrintPath::Verb::LineTo:
            AddLine(parts, points[0], 2.0 * penWidth);
            break;
        case ZAMPrintPath::Verb::CubicTo:
            parts.back().CubicTo(points[0], points[1], points[2]);
            break;
        case ZAMPrintPath::Verb::ClosePath:
            if (parts.size() == 1) {
                parts.back().ClosePath();
            } else {
                parts.back().LineTo(contour.GetPoints().front());
                Continue(parts.back(), parts.front());
                std::swap(parts.front(), parts.back());
                parts.pop_back();
            }
            break;
        }
        points += ZAMPrintPath::PointsOf(verb);
    }
    return parts;
}
