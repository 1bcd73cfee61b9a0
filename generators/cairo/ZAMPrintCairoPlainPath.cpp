// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPlainPath.h"

#include "framework/mathematics/ZAMMathVector2D.h"

#include <algorithm>
#include <array>
#include <cmath>

using Verb = ZAMPrintPath::Verb;

void ZAMPrintCairoPlainPath::Write(const ZAMPrintPath& path, const ZAMMath2x2Matrix& map, bool fills, int decimals) {
    _Decimals = decimals;
    _Units = std::pow(10.0, decimals);
    _Map = map;
    _Fills = fills;
    if (WriteRectangle(path)) {
        return;
    }
    const ZAMMathPoint2D* p = path.GetPoints().data();
    const auto verbs = path.GetVerbs();
    for (std::size_t i = 0; i < verbs.size(); ++i) {
        const Verb next = i + 1 < verbs.size() ? verbs[i + 1] : Verb::MoveTo;
        switch (verbs[i]) {
        case Verb::MoveTo:
            MoveTo(p[0]);
            break;
        case Verb::LineTo:
            LineTo(p[0], next);
            break;
        case Verb::CubicTo:
            CubicTo(p, next);
            break;
        case Verb::ClosePath:
            if (!fills) {
                _Text.AddWord("h");
            }
            break;
        }
        p += ZAMPrintPath::PointsOf(verbs[i]);
    }
}

ZAMPrintCairoPlainPath::Place ZAMPrintCairoPlainPath::Round(const ZAMMathPoint2D& point) const {
    const auto round = [this](double coordinate) {
        const double units = coordinate * _Units;
        return static_cast<std::int64_t>(units < 0.0 ? units - 0.5 : units + 0.5);
    };
    return {round(_Map.a * point.x + _Map.b * point.y), round(_Map.c * point.x + _Map.d * point.y)};
}

void ZAMPrintCairoPlainPath::Add(const Place& place) {
    _Text.AddFixed(place.x, _Decimals);
    _Text.AddFixed(place.y, _Decimals);
}

/// False, and nothing written, when the path is none that begins with a horizontal side, as the operator's does.
bool ZAMPrintCairoPlainPath::WriteRectangle(const ZAMPrintPath& path) {
    constexpr std::array kVerbs{Verb::MoveTo, Verb::LineTo, Verb::LineTo, Verb::LineTo, Verb::ClosePath};
    if (!std::ranges::equal(path.GetVerbs(), kVerbs)) {
        return false;
    }
    const auto points = path.GetPoints();
    const std::array corners{Round(points[0]), Round(points[1]), Round(points[2]), Round(points[3])};
    if (corners[0].y != corners[1].y || corners[1].x != corners[2].x || corners[2].y != corners[3].y ||
        corners[3].x != corners[0].x) {
        return false;
    }
    Add(corners[0]);
    Add({corners[2].x - corners[0].x, corners[2].y - corners[0].y});
    _Text.AddWord("re");
    return true;
}

void ZAMPrintCairoPlainPath::MoveTo(const ZAMMathPoint2D& point) {
    _Origin = point;
    _Start = _Current = Round(point);
    Add(_Start);
    _Text.AddWord("m");
    _IsMoved = true;
}

/// A line of no length is left out, unless the contour has nothing else: with round ends it is a dot. So is one to
/// where the contour begins when it is closed with a line all the same.
void ZAMPrintCairoPlainPath::LineTo(const ZAMMathPoint2D& point, Verb next) {
    Place place = Round(point);
    const bool isLast = next == Verb::MoveTo || next == Verb::ClosePath;
    const bool closes = next == Verb::ClosePath && place == _Start;
    if (_IsMoved ? place == _Current && !isLast : place == _Current || closes) {
        return;
    }
    if (place == _Current && next == Verb::MoveTo && !_Fills) {
        place = Lengthen(place, point);
    }
    Add(place);
    _Text.AddWord("l");
    _Current = place;
    _IsMoved = false;
}

/// The end of a stroked contour that is shorter than a unit. If it has any length its ends say which way it goes, and
/// square ones are seen: it gets a length of one unit.
ZAMPrintCairoPlainPath::Place ZAMPrintCairoPlainPath::Lengthen(const Place& place, const ZAMMathPoint2D& point) const {
    const ZAMMathVector2D way{point.x - _Origin.x, point.y - _Origin.y};
    const double x = _Map.a * way.x + _Map.b * way.y;
    const double y = _Map.c * way.x + _Map.d * way.y;
    const auto signOf = [](double length) { return length > 0.0 ? 1 : (length < 0.0 ? -1 : 0); };
    return std::abs(x) >= std::abs(y) ? Place{place.x + signOf(x), place.y} : Place{place.x, place.y + signOf(y)};
}

void ZAMPrintCairoPlainPath::CubicTo(const ZAMMathPoint2D* points, Verb next) {
    const Place control1 = Round(points[0]);
    const Place control2 = Round(points[1]);
    const Place end = Round(points[2]);
    const bool isShortStart = control1 == _Current;
    const bool isShortEnd = control2 == end;
    if (isShortStart && isShortEnd && end == _Current) {
        return LineTo(points[2], next);
    }
    if (!isShortStart) {
        Add(control1);
    }
    if (!isShortEnd || isShortStart) {
        Add(control2);
    }
    Add(end);
    _Text.AddWord(isShortStart ? "v" : (isShortEnd ? "y" : "c"));
    _Current = end;
    _IsMoved = false;
}
