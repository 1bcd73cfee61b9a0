// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressStroker.h"

#include "framework/mathematics/ZAMMathConstants.h"

#include <algorithm>
#include <cmath>

namespace {

using Join = ZAMPrepressStroke::Join;
using Vector = ZAMMathVector2D;

constexpr double kLeastFanStep = 0.01; // angle

ZAMMathPoint2D Moved(const ZAMMathPoint2D& point, const Vector& way, double factor = 1.0) {
    return {point.x + factor * way.x, point.y + factor * way.y};
}

double Cross(const Vector& one, const Vector& other) {
    return one.x * other.y - one.y * other.x;
}

double Dot(const Vector& one, const Vector& other) {
    return one.x * other.x + one.y * other.y;
}

// From the outer end of two sides at right angles to edges to where the lines along the edges meet there.
Vector ToMeeting(const Vector& one, const Vector& other, double cosine) {
    return {(one.x + other.x) / (1.0 + cosine), (one.y + other.y) / (1.0 + cosine)};
}

// The cosine of half the angle whose cosine is given.
double HalfCosine(double cosine) {
    return std::sqrt(std::max(0.0, (1.0 + cosine) / 2.0));
}

} // namespace

ZAMPrepressStroker::ZAMPrepressStroker(const ZAMPrepressStroke& stroke, double tolerance, ZAMPrepressPath& outline)
    : _Stroke(stroke), _Half(stroke.width / 2.0), _Tolerance(tolerance),
      _FanStep(std::max(kLeastFanStep, 2.0 * std::acos(1.0 - std::min(0.5, tolerance / _Half)))), _Outline(outline),
      _Builder(outline) {}

bool ZAMPrepressStroker::Add(const ZAMPrepressFlatLine& line, std::size_t mostVertices) {
    SetLine(line);
    std::size_t start = 0;
    for (std::size_t i = 1; i < _Edges.size() && _Outline.segments.size() <= mostVertices; ++i) {
        if (!IsSmooth(i)) {
            AddBand(start, i);
            AddJoin(_Vertices[i].point, _Edges[i - 1].direction, _Edges[i].direction,
                    _Vertices[i].isCorner ? _Stroke.join : Join::Round);
            start = i;
        }
    }
    AddBand(start, _Edges.size());
    const Vector& first = _Edges.front().direction;
    const Vector& last = _Edges.back().direction;
    if (line.isClosed) {
        AddJoin(_Vertices.front().point, last, first, _Stroke.join);
    } else {
        AddCap(_Vertices.front().point, {-first.x, -first.y});
        AddCap(_Vertices.back().point, last);
    }
    return _Outline.segments.size() <= mostVertices;
}

void ZAMPrepressStroker::SetLine(const ZAMPrepressFlatLine& line) {
    _Vertices = line.vertices;
    if (line.isClosed) {
        _Vertices.push_back(line.vertices.front());
    }
    _Edges.clear();
    for (std::size_t i = 1; i < _Vertices.size(); ++i) {
        const double x = _Vertices[i].point.x - _Vertices[i - 1].point.x;
        const double y = _Vertices[i].point.y - _Vertices[i - 1].point.y;
        const double length = std::hypot(x, y);
        _Edges.push_back({{x / length, y / length}, length});
    }
}

// Whether the bands of the edges before and after the vertex can go over into each other: the inner sides must not use
// up more than half of either edge, and what a join would look like must not show.
bool ZAMPrepressStroker::IsSmooth(std::size_t vertex) const {
    const Edge& before = _Edges[vertex - 1];
    const Edge& after = _Edges[vertex];
    const double cosine = Dot(before.direction, after.direction);
    const double sine = std::abs(Cross(before.direction, after.direction));
    const bool isTight = _Half * sine > 0.5 * (1.0 + cosine) * std::min(before.length, after.length);
    const bool hasJoin = _Vertices[vertex].isCorner && _Half * (1.0 - HalfCosine(cosine)) > _Tolerance;
    return cosine > 0.0 && !isTight && !hasJoin;
}

// To the side of what leads in a direction, half the width long.
Vector ZAMPrepressStroker::GetSide(const Vector& direction) const {
    return {-direction.y * _Half, direction.x * _Half};
}

// Along the edges from one to before another, all vertices between which are smooth.
void ZAMPrepressStroker::AddBand(std::size_t first, std::size_t end) {
    Points points(2 * (end - first + 1));
    for (std::size_t i = first; i <= end; ++i) {
        Vector side = GetSide(_Edges[i == first ? first : i - 1].direction);
        if (i != first && i != end) {
            side = ToMeeting(side, GetSide(_Edges[i].direction), Dot(_Edges[i - 1].direction, _Edges[i].direction));
        }
        points[i - first] = Moved(_Vertices[i].point, side);
        points[points.size() - 1 - (i - first)] = Moved(_Vertices[i].point, side, -1.0);
    }
    AddPiece(points);
}

void ZAMPrepressStroker::AddJoin(const ZAMMathPoint2D& corner, const Vector& before, const Vector& after, Join join) {
    const double cosine = Dot(before, after);
    const double sine = Cross(before, after);
    const double outer = sine > 0.0 ? -1.0 : 1.0;
    const Vector from = GetSide({before.x * outer, before.y * outer});
    const Vector to = GetSide({after.x * outer, after.y * outer});
    if (join == Join::Round) {
        return AddFan(corner, from, std::atan2(sine, cosine));
    }
    Points points{corner, Moved(corner, from)};
    if (join == Join::Miter && HalfCosine(cosine) * _Stroke.miterLimit >= 1.0) {
        points.push_back(Moved(corner, ToMeeting(from, to, cosine)));
    }
    points.push_back(Moved(corner, to));
    AddPiece(points);
}

void ZAMPrepressStroker::AddCap(const ZAMMathPoint2D& point, const Vector& outward) {
    const Vector side = GetSide(outward);
    if (_Stroke.cap == ZAMPrepressStroke::Cap::Round) {
        AddFan(point, side, -ZAMPI);
    } else if (_Stroke.cap == ZAMPrepressStroke::Cap::Square) {
        const ZAMMathPoint2D end = Moved(point, outward, _Half);
        AddPiece({Moved(point, side), Moved(end, side), Moved(end, side, -1.0), Moved(point, side, -1.0)});
    }
}

// A sector of a circle.
void ZAMPrepressStroker::AddFan(const ZAMMathPoint2D& middle, const Vector& from, double angle) {
    const double steps = std::max(1.0, std::ceil(std::abs(angle) / _FanStep));
    Points points{middle};
    for (double step = 0.0; step <= steps; step += 1.0) {
        const double cosine = std::cos(angle * step / steps);
        const double sine = std::sin(angle * step / steps);
        points.push_back(Moved(middle, {from.x * cosine - from.y * sine, from.x * sine + from.y * cosine}));
    }
    AddPiece(points);
}

// Clockwise on paper.
void ZAMPrepressStroker::AddPiece(const Points& points) {
    double area = 0.0;
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        area += Cross({points[i].x - points[0].x, points[i].y - points[0].y},
                      {points[i + 1].x - points[0].x, points[i + 1].y - points[0].y});
    }
    if (area == 0.0 || !std::isfinite(area)) {
        return;
    }
    const std::size_t last = points.size() - 1;
    for (std::size_t i = 0; i <= last; ++i) {
        const ZAMMathPoint2D& point = points[area > 0.0 ? i : last - i];
        i == 0 ? _Builder.MoveTo(point) : _Builder.LineTo(point);
    }
    _Builder.ClosePath();
}
