// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoFillCutter.h"

#include "generators/cairo/ZAMPrintCairoPathWalk.h"

#include <algorithm>

using ZAMPrintCairoWorld::kBox;
using ZAMPrintCairoWorld::kSide;

namespace {

ZAMMathPoint2D Pull(const ZAMMathPoint2D& point) {
    return {std::clamp(point.x, -kSide, kSide), std::clamp(point.y, -kSide, kSide)};
}

/// Calls `draw` with the parts into which the world's two sides, drawn out to both ends, divide a line.
template <class Draw>
void Divide(ZAMMathPoint2D from, const ZAMMathPoint2D& to, ZAMPrintCairoWorld::Axis axis, const Draw& draw) {
    const double first = from.*axis < to.*axis ? -kSide : kSide;
    for (const double side : {first, -first}) {
        if ((from.*axis < side && to.*axis > side) || (from.*axis > side && to.*axis < side)) {
            const ZAMMathPoint2D bend = ZAMPrintCairoWorld::Cross(from, to, axis, side);
            draw(from, bend);
            from = bend;
        }
    }
    draw(from, to);
}

} // namespace

ZAMPrintPath ZAMPrintCairoFillCutter::Cut(const ZAMPrintPath& path, const ZAMMathBox2D& view) {
    ZAMPrintCairoFillCutter cutter;
    ZAMPrintCairoPathWalk::Walk(path, view, cutter);
    cutter.Close();
    return std::move(cutter._Path);
}

void ZAMPrintCairoFillCutter::Move(const ZAMMathPoint2D& point) {
    Close();
    _Start = point;
    _Current = point;
    _Path.MoveTo(Pull(point));
}

void ZAMPrintCairoFillCutter::Line(const ZAMMathPoint2D& point) {
    if (ZAMPrintCairoWorld::Contains(kBox, _Current) && ZAMPrintCairoWorld::Contains(kBox, point)) {
        _Path.LineTo(point);
    } else {
        LineAcrossX(_Current, point);
    }
    _Current = point;
}

void ZAMPrintCairoFillCutter::Curve(const ZAMPrintCairoCurve& curve) {
    _Path.CubicTo(curve.points[1], curve.points[2], curve.points[3]);
    _Current = curve.points[3];
}

void ZAMPrintCairoFillCutter::Close() {
    if (!_Path.IsEmpty() && _Path.GetVerbs().back() != ZAMPrintPath::Verb::ClosePath) {
        // Outside the world the way back bends as any other line does.
        Line(_Start);
        _Path.ClosePath();
    }
}

void ZAMPrintCairoFillCutter::LineAcrossX(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
    Divide(from, to, &ZAMMathPoint2D::x,
           [this](const ZAMMathPoint2D& p, const ZAMMathPoint2D& q) { LineAcrossY(p, q); });
}

void ZAMPrintCairoFillCutter::LineAcrossY(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
    Divide(from, to, &ZAMMathPoint2D::y,
           [this](const ZAMMathPoint2D& /*p*/, const ZAMMathPoint2D& q) { _Path.LineTo(Pull(q)); });
}
