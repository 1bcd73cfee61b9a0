// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPlainPath.h"

#include <algorithm>
#include <array>
#include <cmath>

using Verb = ZAMPrintPath::Verb;

ZAMPrintCairoPlainPath::ZAMPrintCairoPlainPath(ZAMPrintCairoPlainText& text, int decimals)
    : _Text(text), _Decimals(decimals), _Units(std::pow(10.0, decimals)) {}

void ZAMPrintCairoPlainPath::Write(const ZAMPrintPath& path, const ZAMMath2x2Matrix& map, bool fills) {
    _Map = map;
    if (WriteRectangle(path)) {
        return;
    }
    const ZAMMathPoint2D* p = path.GetPoints().data();
    const auto verbs = path.GetVerbs();
    for (std::size_t i = 0; i < verbs.size(); ++i) {
        const bool closes = i + 1 < verbs.size() && verbs[i + 1] == Verb::ClosePath;
        switch (verbs[i]) {
        case Verb::MoveTo:
            MoveTo(Round(p[0]));
            break;
        case Verb::LineTo:
            LineTo(Round(p[0]), closes);
            break;
        case Verb::CubicTo:
            CubicTo(Round(p[0]), Round(p[1]), Round(p[2]));
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

void ZAMPrintCairoPlainPath::MoveTo(const Place& place) {
    Add(place);
    _Text.AddWord("m");
    _Start = _Current = place;
    _IsMoved = true;
}

/// A line of no length is left out, unless the contour would have nothing else: with round ends it is a dot. So is one
/// to where the contour begins when it is closed with a line all the same.
void ZAMPrintCairoPlainPath::LineTo(const Place& place, bool closes) {
    if (!_IsMoved && (place == _Current || (closes && place == _Start))) {
        return;
    }
    Add(place);
    _Text.AddWord("l");
    _Current = place;
    _IsMoved = false;
}

void ZAMPrintCairoPlainPath::CubicTo(const Place& control1, const Place& control2, const Place& end) {
    const bool isShortStart = control1 == _Current;
    const bool isShortEnd = control2 == end;
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
