// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"

#include "framework/print/ZAMPrintOutline.h"
#include "framework/print/ZAMPrintSymbolFrame.h"
#include "framework/print/ZAMPrintTextPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

// Grows a box by what is traced, carried over by a map. Béziers stay Béziers under it, so that extrema are looked for
// in the mapped control points.
class BoxSink {
public:
    BoxSink(ZAMMathBox2D& box, const ZAMMathAffine2D& map) : _Box(box), _Map(map) {}

    void MoveTo(const ZAMMathPoint2D& point) { Reach(_Map.Apply(point)); }
    void LineTo(const ZAMMathPoint2D& point) { Reach(_Map.Apply(point)); }
    void ClosePath() {}

    void QuadraticTo(const ZAMMathPoint2D& control, const ZAMMathPoint2D& end) {
        const ZAMMathPoint2D from = _Current;
        const ZAMMathPoint2D middle = _Map.Apply(control);
        Reach(_Map.Apply(end));
        for (const double t : {Extremum(from.x, middle.x, _Current.x), Extremum(from.y, middle.y, _Current.y)}) {
            if (t > 0.0 && t < 1.0) {
                const double s = 1.0 - t;
                _Box.Add({s * s * from.x + 2 * s * t * middle.x + t * t * _Current.x,
                          s * s * from.y + 2 * s * t * middle.y + t * t * _Current.y});
            }
        }
    }

    void CubicTo(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2, const ZAMMathPoint2D& end) {
        const ZAMMathPoint2D points[] = {_Current, _Map.Apply(control1), _Map.Apply(control2), _Map.Apply(end)};
        Reach(points[3]);
        AddCubicExtrema(points, points[0].x, points[1].x, points[2].x, points[3].x);
        AddCubicExtrema(points, points[0].y, points[1].y, points[2].y, points[3].y);
    }

    void ArcTo(const ZAMMathEllipticalArc& arc) {
        arc.AddTo(_Box, _Map);
        _Current = _Map.Apply(arc.End());
    }

private:
    void Reach(const ZAMMathPoint2D& point) {
        _Box.Add(point);
        _Current = point;
    }

    // Where the derivative of the quadratic is 0; a parameter outside 0..1 when it is nowhere.
    static double Extremum(double p0, double p1, double p2) {
        const double denominator = p0 - 2 * p1 + p2;
        return denominator == 0.0 ? -1.0 : (p0 - p1) / denominator;
    }

    void AddCubicAt(const ZAMMathPoint2D (&p)[4], double t) {
        if (t > 0.0 && t < 1.0) {
            const double s = 1.0 - t;
            const double w[] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
            _Box.Add({w[0] * p[0].x + w[1] * p[1].x + w[2] * p[2].x + w[3] * p[3].x,
                      w[0] * p[0].y + w[1] * p[1].y + w[2] * p[2].y + w[3] * p[3].y});
        }
    }

    // The derivative is 3·(a t² + 2 b t + c).
    void AddCubicExtrema(const ZAMMathPoint2D (&points)[4], double p0, double p1, double p2, double p3) {
        const double size = std::max({std::abs(p1 - p0), std::abs(p2 - p1), std::abs(p3 - p2)}); // no square overflows
        const double a = (p3 - 3 * p2 + 3 * p1 - p0) / size;
        const double b = (p2 - 2 * p1 + p0) / size;
        const double c = (p1 - p0) / size;
        const double discriminant = b * b - a * c;
        if (!(discriminant >= 0.0)) {
            return;
        }
        // The form that does not cancel: q/a and c/q are the two roots, also when a is 0.
        const double q = -(b + std::copysign(std::sqrt(discriminant), b));
        AddCubicAt(points, q / a);
        AddCubicAt(points, c / q);
    }

    ZAMMathBox2D& _Box;
    const ZAMMathAffine2D& _Map;
    ZAMMathPoint2D _Current;
};

void AddArea(ZAMMathBox2D& box, const ZAMMathBox2D& area, const ZAMMathAffine2D& map) {
    for (const ZAMMathPoint2D& corner : area.Corners()) {
        box.Add(map.Apply(corner));
    }
}

void AddElement(ZAMMathBox2D& box, const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& map) {
    BoxSink sink(box, map);
    const ZAMPrtGraphicPrimitiveElt* const pointer = &element;
    if (ZAMPrintShapes::Visit(pointer, [&sink](const auto& shape) { ZAMPrintTraceShape(shape, sink); })) {
        return;
    }
    ZAMPrintContourTracer tracer(sink);
    if (ZAMPrintPieces::Visit(pointer, [&tracer](const auto& piece) { tracer.Add(piece); })) {
        return;
    }
    if (const auto* figure = ZAMPrtCast<ZAMPrtClosedFigureElt>(pointer)) {
        ZAMPrintTraceFigure(*figure, sink);
        return;
    }
    if (const auto* text = ZAMPrtCast<ZAMPrtTextElt>(pointer)) {
        AddArea(box, ZAMPrintLayOut(*text).GetExtents(), map * ZAMPrintTextPlacement(*text));
        return;
    }
    if (const auto* bitmap = ZAMPrtCast<ZAMPrtBitmapImageElt>(pointer)) {
        AddArea(box, {0.0, 0.0, 1.0, 1.0}, map * bitmap->GetPlacement());
        return;
    }
    const auto* symbol = ZAMPrtCast<ZAMPrtSymbolElt>(pointer);
    if (symbol != nullptr && symbol->HasSize()) {
        AddArea(box, ZAMPrintSymbolArea(*symbol), map);
        return;
    }
    for (const auto& child : element.GetChildren()) {
        if (ZAMPrtCast<ZAMPrtPatternElt>(child.Get()) == nullptr) {
            AddElement(box, *child, map * child->GetTransformAttributes().GetMatrix());
        }
    }
}

} // namespace

ZAMMathBox2D ZAMPrintModelBoundingBoxComputer::BoxOf(const ZAMPrtGraphicPrimitiveElt& element,
                                                     const ZAMMathAffine2D& map) {
    ZAMMathBox2D box;
    AddElement(box, element, map);
    return box;
}

int ZAMPrintModelBoundingBoxComputer::Compute(const ZAMPrtGraphicPrimitiveElt* element, double& xMin, double& xMax,
                                              double& yMin, double& yMax) {
    if (element == nullptr) {
        return 0;
    }
    const ZAMMathBox2D box = BoxOf(*element, {});
    if (box.IsEmpty()) {
        return 0;
    }
    xMin = box.xMin;
    xMax = box.xMax;
    yMin = box.yMin;
    yMax = box.yMax;
    return 1;
}
