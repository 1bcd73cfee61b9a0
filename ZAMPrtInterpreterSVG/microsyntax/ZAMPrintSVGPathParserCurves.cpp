// SPDX-License-Identifier: MIT
// The curve and arc commands of a path.
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGArcConversion.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"

#include <algorithm>
#include <cmath>

// Makes a piece of the points in _Curve, whose last one becomes the current point.
template <class Curve> void ZAMPrintSVGPathParser::AddCurve(std::size_t pointsPerSegment) {
    if (const auto curve = ZAMNew<Curve>()) {
        AddPiece(curve.Get());
        curve->SetStrokeAttributes(_StrokeAttributes);
        curve->SetPoints(_Curve.data(), static_cast<int>(_Curve.size()));
    }
    for (std::size_t end = pointsPerSegment; end < _Curve.size(); end += pointsPerSegment) {
        AddMarkerVertex(_Curve[end]);
    }
    _Current = _Curve.back();
    ForgetControls();
}

ZAMMathPoint2D ZAMPrintSVGPathParser::Reflected(const ZAMMathPoint2D& control) const {
    return {2.0 * _Current.x - control.x, 2.0 * _Current.y - control.y};
}

void ZAMPrintSVGPathParser::ParseCubicTo(const Item& item) {
    ClosePolyline();
    const ZAMRawColldouble& list = ReadPoints(item, 3);
    const std::size_t segments = list.GetCount() / 6;
    ForgetControls();
    if (segments > 0) {
        _Curve.assign(1, _Current);
        for (std::size_t i = 1; i < 6 * segments; i += 2) {
            _Curve.push_back({list[i], list[i + 1]});
        }
        AddCurve<ZAMPrtPolyCubicBezierElt>(3);
        _LastCubicControl = _Curve[_Curve.size() - 2];
    }
    ReopenPolyline();
}

void ZAMPrintSVGPathParser::ParseSmoothCubicTo(const Item& item) {
    ClosePolyline();
    const ZAMRawColldouble& list = ReadPoints(item, 2);
    const std::size_t segments = list.GetCount() / 4;
    _LastQuadraticControl = _Current;
    if (segments > 0) {
        _Curve.assign(1, _Current);
        for (std::size_t i = 1; i < 4 * segments; i += 4) {
            _Curve.push_back(Reflected(_LastCubicControl));
            _LastCubicControl = {list[i], list[i + 1]};
            _Current = {list[i + 2], list[i + 3]};
            _Curve.push_back(_LastCubicControl);
            _Curve.push_back(_Current);
        }
        AddCurve<ZAMPrtPolyCubicBezierElt>(3);
        _LastCubicControl = _Curve[_Curve.size() - 2];
    } else {
        _LastCubicControl = _Current;
    }
    ReopenPolyline();
}

void ZAMPrintSVGPathParser::ParseQuadraticTo(const Item& item) {
    ClosePolyline();
    const ZAMRawColldouble& list = ReadPoints(item, 2);
    const std::size_t segments = list.GetCount() / 4;
    ForgetControls();
    if (segments > 0) {
        _Curve.assign(1, _Current);
        for (std::size_t i = 1; i < 4 * segments; i += 2) {
            _Curve.push_back({list[i], list[i + 1]});
        }
        AddCurve<ZAMPrtPolyQuadraticBezierElt>(2);
        _LastQuadraticControl = _Curve[_Curve.size() - 2];
    }
    ReopenPolyline();
}

void ZAMPrintSVGPathParser::ParseSmoothQuadraticTo(const Item& item) {
    ClosePolyline();
    const ZAMRawColldouble& list = ReadPoints(item, 1);
    const std::size_t segments = list.GetCount() / 2;
    _LastCubicControl = _Current;
    if (segments > 0) {
        _Curve.assign(1, _Current);
        for (std::size_t i = 1; i < 2 * segments; i += 2) {
            _LastQuadraticControl = Reflected(_LastQuadraticControl);
            _Current = {list[i], list[i + 1]};
            _Curve.push_back(_LastQuadraticControl);
            _Curve.push_back(_Current);
        }
        AddCurve<ZAMPrtPolyQuadraticBezierElt>(2);
        _LastQuadraticControl = _Curve[_Curve.size() - 2];
    } else {
        _LastQuadraticControl = _Current;
    }
    ReopenPolyline();
}

// Seven values an arc; a value that cannot be read is 0, but a y is the flipped 0. What is left over is dropped.
void ZAMPrintSVGPathParser::ParseArcTo(const Item& item) {
    Cursor cursor(item.arguments);
    while (!cursor.AtEnd()) {
        Token tokens[7];
        std::ranges::generate(tokens, [&] { return cursor.Next(); });
        if (tokens[6].text.empty()) {
            break;
        }
        double xRadius = 0.0;
        double yRadius = 0.0;
        double rotation = 0.0;
        double largeArc = 0.0;
        double sweep = 0.0;
        ZAMMathPoint2D to;
        ReadX(tokens[0], xRadius);
        ReadVertLength(tokens[1], yRadius);
        ReadNumber(tokens[2], rotation);
        ReadNumber(tokens[3], largeArc);
        ReadNumber(tokens[4], sweep);
        ReadX(tokens[5], to.x);
        ReadY(tokens[6], to.y);
        if (item.relative) {
            to = {to.x + _Current.x, to.y + _Current.y - (_FlipY ? _ImageHeight : 0.0)};
        }
        AddArc(to, std::abs(xRadius), std::abs(yRadius), rotation, largeArc != 0.0, sweep != 0.0);
    }
    ForgetControls();
}

void ZAMPrintSVGPathParser::AddArc(const ZAMMathPoint2D& to, double xRadius, double yRadius, double rotation,
                                   bool largeArc, bool sweep) {
    if (to == _Current) {
        return;
    }
    if (xRadius == 0.0 || yRadius == 0.0) {
        AddVertex(to);
        return;
    }
    ClosePolyline();
    // The conversion works in the document's frame; seen with y upward every angle turns the other way.
    const auto turned = [this](const ZAMMathPoint2D& point) {
        return ZAMMathPoint2D{point.x, _FlipY ? _ImageHeight - point.y : point.y};
    };
    ZAMMathEllipticalArc arc =
        ZAMPrintSVGArcByCenter({turned(_Current), turned(to), xRadius, yRadius, rotation, largeArc, sweep});
    arc.center = turned(arc.center);
    if (_FlipY) {
        arc.rotation = -arc.rotation;
        arc.startAngle = -arc.startAngle;
        arc.sweepAngle = -arc.sweepAngle;
    }
    if (const auto element = ZAMNew<ZAMPrtEllipticalArcElt>()) {
        AddPiece(element.Get());
        element->SetDrawStyle(ZAMPrtDrawStyle::Stroke);
        element->SetStrokeAttributes(_StrokeAttributes);
        element->SetArc(arc);
    }
    AddMarkerVertex(to);
    _Current = to;
    ReopenPolyline();
}
