// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/mathematics/ZAMMathEllipticalArc.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtTypeList.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <span>

/// The element classes that are one mark of their own.
using ZAMPrintShapes = ZAMPrtTypeList<ZAMPrtRectangleElt, ZAMPrtCircleElt, ZAMPrtEllipseElt, ZAMPrtPolygonElt>;
/// The element classes that form contours: each runs from a start to an end.
using ZAMPrintPieces = ZAMPrtTypeList<ZAMPrtLineElt, ZAMPrtPolylineElt, ZAMPrtPolyCubicBezierElt,
                                      ZAMPrtPolyQuadraticBezierElt, ZAMPrtEllipticalArcElt>;

// Tracing turns an element's geometry, in its own coordinates, into calls of a sink:
//   MoveTo(p) LineTo(p) QuadraticTo(control, p) CubicTo(control1, control2, p) ArcTo(arc) ClosePath()
// An arc starts at the current point. A piece is traced without its MoveTo, which depends on what comes before it.

template <class Sink> void ZAMPrintTraceFullEllipse(const ZAMMathPoint2D& center, double rx, double ry, Sink& sink) {
    if (rx > 0.0 && ry > 0.0) {
        const ZAMMathEllipticalArc turn{center, rx, ry, 0.0, 0.0, ZAM2PI};
        sink.MoveTo(turn.Start());
        sink.ArcTo(turn);
        sink.ClosePath();
    }
}

template <class Sink> void ZAMPrintTraceShape(const ZAMPrtRectangleElt& rectangle, Sink& sink) {
    const ZAMMathPoint2D& first = rectangle.GetFirstCorner();
    const ZAMMathPoint2D& opposite = rectangle.GetOppositeCorner();
    sink.MoveTo(first);
    sink.LineTo({opposite.x, first.y});
    sink.LineTo(opposite);
    sink.LineTo({first.x, opposite.y});
    sink.ClosePath();
}

template <class Sink> void ZAMPrintTraceShape(const ZAMPrtCircleElt& circle, Sink& sink) {
    ZAMPrintTraceFullEllipse(circle.GetCenter(), circle.GetRadius(), circle.GetRadius(), sink);
}

template <class Sink> void ZAMPrintTraceShape(const ZAMPrtEllipseElt& ellipse, Sink& sink) {
    ZAMPrintTraceFullEllipse(ellipse.GetCenter(), ellipse.GetXRadius(), ellipse.GetYRadius(), sink);
}

template <class Sink> void ZAMPrintTraceShape(const ZAMPrtPolygonElt& polygon, Sink& sink) {
    const auto points = polygon.GetPoints();
    if (points.empty()) {
        return;
    }
    sink.MoveTo(points.front());
    for (const ZAMMathPoint2D& point : points.subspan(1)) {
        sink.LineTo(point);
    }
    sink.ClosePath();
}

/// Both ends of a piece and the size of its numbers, by which nearness is judged.
struct ZAMPrintPieceEnds {
    ZAMMathPoint2D start;
    ZAMMathPoint2D end;
    double magnitude = 1.0;
    bool empty = true;
};

// An infinite number would make every point near.
inline double ZAMPrintMagnitudeOf(std::initializer_list<double> numbers) {
    double magnitude = 1.0;
    for (const double number : numbers) {
        magnitude = std::isfinite(number) ? std::max(magnitude, std::abs(number)) : magnitude;
    }
    return magnitude;
}

inline ZAMPrintPieceEnds ZAMPrintEndsOf(std::span<const ZAMMathPoint2D> points) {
    if (points.empty()) {
        return {};
    }
    const ZAMMathPoint2D& start = points.front();
    const ZAMMathPoint2D& end = points.back();
    return {start, end, ZAMPrintMagnitudeOf({start.x, start.y, end.x, end.y}), false};
}
inline ZAMPrintPieceEnds ZAMPrintEndsOf(const ZAMPrtLineElt& line) {
    const ZAMMathPoint2D ends[] = {line.GetStartPoint(), line.GetEndPoint()};
    return ZAMPrintEndsOf(ends);
}
inline ZAMPrintPieceEnds ZAMPrintEndsOf(const ZAMPrtPolylineElt& polyline) {
    return ZAMPrintEndsOf(polyline.GetPoints());
}
// Points that are left over make no curve.
inline ZAMPrintPieceEnds ZAMPrintEndsOf(const ZAMPrtPolyCubicBezierElt& curve) {
    const auto points = curve.GetPoints();
    return ZAMPrintEndsOf(points.empty() ? points : points.first(points.size() - (points.size() - 1) % 3));
}
inline ZAMPrintPieceEnds ZAMPrintEndsOf(const ZAMPrtPolyQuadraticBezierElt& curve) {
    const auto points = curve.GetPoints();
    return ZAMPrintEndsOf(points.empty() ? points : points.first(points.size() - (points.size() - 1) % 2));
}
inline ZAMPrintPieceEnds ZAMPrintEndsOf(const ZAMPrtEllipticalArcElt& element) {
    const ZAMMathEllipticalArc& arc = element.GetArc();
    const ZAMMathPoint2D points[] = {arc.Start(), arc.End()};
    ZAMPrintPieceEnds ends = ZAMPrintEndsOf(points);
    ends.magnitude = std::max(ends.magnitude, ZAMPrintMagnitudeOf({arc.xRadius, arc.yRadius}));
    return ends;
}

template <class Sink> void ZAMPrintTracePiece(const ZAMPrtLineElt& line, Sink& sink) {
    sink.LineTo(line.GetEndPoint());
}

template <class Sink> void ZAMPrintTracePiece(const ZAMPrtPolylineElt& polyline, Sink& sink) {
    for (const ZAMMathPoint2D& point : polyline.GetPoints().subspan(1)) {
        sink.LineTo(point);
    }
}

template <class Sink> void ZAMPrintTracePiece(const ZAMPrtPolyCubicBezierElt& curve, Sink& sink) {
    const auto points = curve.GetPoints();
    for (std::size_t i = 3; i < points.size(); i += 3) {
        sink.CubicTo(points[i - 2], points[i - 1], points[i]);
    }
}

template <class Sink> void ZAMPrintTracePiece(const ZAMPrtPolyQuadraticBezierElt& curve, Sink& sink) {
    const auto points = curve.GetPoints();
    for (std::size_t i = 2; i < points.size(); i += 2) {
        sink.QuadraticTo(points[i - 1], points[i]);
    }
}

template <class Sink> void ZAMPrintTracePiece(const ZAMPrtEllipticalArcElt& arc, Sink& sink) {
    sink.ArcTo(arc.GetArc());
}

/// Strings pieces together to contours: a piece that starts where the last one ended goes on from there, a contour
/// whose end meets its start is closed. Ends meet within 1e-6 of the larger of 1 and the largest coordinate or radius.
template <class Sink> class ZAMPrintContourTracer {
public:
    explicit ZAMPrintContourTracer(Sink& sink) : _Sink(sink) {}

    template <class Piece> void Add(const Piece& piece) {
        const ZAMPrintPieceEnds ends = ZAMPrintEndsOf(piece);
        if (ends.empty) {
            return;
        }
        if (!_Open || !Meet(_End, ends.start, std::max(_Magnitude, ends.magnitude))) {
            Finish();
            _Sink.MoveTo(ends.start);
            _Start = ends.start;
            _Magnitude = 1.0;
            _Open = true;
        }
        ZAMPrintTracePiece(piece, _Sink);
        _End = ends.end;
        _Magnitude = std::max(_Magnitude, ends.magnitude);
    }

    /// Ends the contour that is open: at the end of a region, and of the whole.
    void Finish() {
        if (_Open && Meet(_Start, _End, _Magnitude)) {
            _Sink.ClosePath();
        }
        _Open = false;
    }

private:
    static bool Meet(const ZAMMathPoint2D& left, const ZAMMathPoint2D& right, double magnitude) {
        const double near = 1e-6 * magnitude;
        return std::abs(left.x - right.x) <= near && std::abs(left.y - right.y) <= near;
    }

    Sink& _Sink;
    ZAMMathPoint2D _Start;
    ZAMMathPoint2D _End;
    double _Magnitude = 1.0;
    bool _Open = false;
};

template <class Sink> void ZAMPrintTraceFigure(const ZAMPrtClosedFigureElt& figure, Sink& sink) {
    ZAMPrintContourTracer tracer(sink);
    for (const auto& region : figure.GetChildren()) {
        for (const auto& piece : region->GetChildren()) {
            const ZAMPrtGraphicPrimitiveElt* element = piece.Get();
            ZAMPrintPieces::Visit(element, [&tracer](const auto& typed) { tracer.Add(typed); });
        }
        tracer.Finish();
    }
}
