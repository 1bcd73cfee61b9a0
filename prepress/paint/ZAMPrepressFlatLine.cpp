// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressFlatLine.h"

#include <algorithm>
#include <cmath>

namespace {

using Line = ZAMPrepressFlatLine;
using Lines = std::vector<Line>;
using Path = ZAMPrepressPath;

// What stands for a length of 0, as a share of the tolerance.
constexpr double kNoLength = 1e-3;
constexpr double kMostSteps = 256.0; // of a curve

double Distance(const ZAMMathPoint2D& one, const ZAMMathPoint2D& other) {
    return std::hypot(other.x - one.x, other.y - one.y);
}

ZAMMathPoint2D Between(const ZAMMathPoint2D& one, const ZAMMathPoint2D& other, double share) {
    return {one.x + (other.x - one.x) * share, one.y + (other.y - one.y) * share};
}

double Bend(const ZAMMathPoint2D& before, const ZAMMathPoint2D& point, const ZAMMathPoint2D& after) {
    return std::hypot(before.x - 2.0 * point.x + after.x, before.y - 2.0 * point.y + after.y);
}

double Turn(const ZAMMathPoint2D& before, const ZAMMathPoint2D& point, const ZAMMathPoint2D& after) {
    const double x1 = point.x - before.x;
    const double y1 = point.y - before.y;
    const double x2 = after.x - point.x;
    const double y2 = after.y - point.y;
    return std::abs(std::atan2(x1 * y2 - y1 * x2, x1 * x2 + y1 * y2));
}

class Flattening {
public:
    explicit Flattening(const ZAMPrepressFlatness& flatness) : _Flatness(flatness) {}

    bool Add(const Path::Segment& segment);
    Lines Finish() {
        EndLine(false);
        return std::move(_Lines);
    }

private:
    void AddVertex(const ZAMMathPoint2D& point, bool isCorner);
    void AddCurve(const Path::Segment& curve);
    void EndLine(bool isClosed);
    [[nodiscard]] double CountSteps(const Path::Segment& curve) const;

    ZAMPrepressFlatness _Flatness;
    Lines _Lines;
    Line _Line;
    ZAMMathPoint2D _Start;
    ZAMMathPoint2D _Current;
    bool _IsDrawn = false; // something has followed the start
    std::size_t _Count = 0;
};

// False when there are too many vertices.
bool Flattening::Add(const Path::Segment& segment) {
    if (segment.verb == Path::Verb::MoveTo) {
        EndLine(false);
        _Start = segment.end;
    } else if (segment.verb == Path::Verb::ClosePath) {
        _IsDrawn = true;
        EndLine(true);
    } else {
        _IsDrawn = true;
        if (_Line.vertices.empty()) {
            AddVertex(_Current, true);
        }
        segment.verb == Path::Verb::CubicTo ? AddCurve(segment) : AddVertex(segment.end, true);
    }
    _Current = segment.end;
    return _Count <= _Flatness.vertices;
}

void Flattening::AddVertex(const ZAMMathPoint2D& point, bool isCorner) {
    const bool isSame = !_Line.vertices.empty() && _Line.vertices.back().point == point;
    if (point.IsFinite() && !isSame) {
        _Line.vertices.push_back({point, isCorner});
        ++_Count;
    }
}

void Flattening::AddCurve(const Path::Segment& curve) {
    const double steps = CountSteps(curve);
    for (double step = 1.0; step < steps; step += 1.0) {
        const double share = step / steps;
        const ZAMMathPoint2D middle = Between(curve.control1, curve.control2, share);
        const ZAMMathPoint2D first = Between(Between(_Current, curve.control1, share), middle, share);
        const ZAMMathPoint2D second = Between(middle, Between(curve.control2, curve.end, share), share);
        AddVertex(Between(first, second, share), false);
    }
    AddVertex(curve.end, curve.isVertex);
}

// The distance of a curve from its chord is an eighth of its second derivative over equal steps; what runs beside it is
// longer, as it goes around the same turns.
double Flattening::CountSteps(const Path::Segment& curve) const {
    const double length = Distance(_Current, curve.control1) + Distance(curve.control1, curve.control2) +
                          Distance(curve.control2, curve.end);
    const double bend =
        std::max(Bend(_Current, curve.control1, curve.control2), Bend(curve.control1, curve.control2, curve.end));
    const double turn =
        Turn(_Current, curve.control1, curve.control2) + Turn(curve.control1, curve.control2, curve.end);
    const double steps =
        std::sqrt(0.75 * bend / _Flatness.tolerance * (1.0 + _Flatness.reach * turn / std::max(length, 1e-300)));
    return std::isfinite(steps) ? std::clamp(std::ceil(steps), 1.0, kMostSteps) : 1.0;
}

void Flattening::EndLine(bool isClosed) {
    if (_IsDrawn && _Line.vertices.empty()) {
        AddVertex(_Start, true);
    }
    if (isClosed && _Line.vertices.size() > 1 && _Line.vertices.back().point == _Line.vertices.front().point) {
        _Line.vertices.pop_back();
    }
    if (_Line.vertices.size() == 1) {
        const ZAMMathPoint2D point = _Line.vertices.front().point;
        AddVertex({point.x + _Flatness.tolerance * kNoLength, point.y}, true);
        isClosed = false;
    }
    if (_Line.vertices.size() > 1) {
        _Line.isClosed = isClosed;
        _Lines.push_back(std::move(_Line));
    }
    _Line = {};
    _IsDrawn = false;
}

class Dashing {
public:
    Dashing(std::span<const double> lengths, const ZAMPrepressFlatness& flatness)
        : _Lengths(lengths), _Flatness(flatness) {}

    bool Add(const Line& line);
    Lines Finish() { return std::move(_Lines); }

private:
    void Cut(const ZAMMathPoint2D& point, const ZAMMathPoint2D& next);
    void EndDash(const ZAMMathPoint2D& next);
    void Join(std::size_t first);
    [[nodiscard]] bool IsDash() const { return _Number % 2 == 0; }

    std::span<const double> _Lengths;
    ZAMPrepressFlatness _Flatness;
    Lines _Lines;
    Line _Dash;
    std::size_t _Number = 0; // of the dash or gap, from the start of the line
    double _Rest = 0.0;      // of it
    std::size_t _Count = 0;
};

// False when there are too many vertices.
bool Dashing::Add(const Line& line) {
    const std::size_t first = _Lines.size();
    const std::size_t count = line.vertices.size();
    _Number = 0;
    _Rest = _Lengths.front();
    _Dash = {{line.vertices.front()}};
    for (std::size_t i = 0; i + (line.isClosed ? 0 : 1) < count; ++i) {
        const Line::Vertex& from = line.vertices[i];
        const Line::Vertex& to = line.vertices[(i + 1) % count];
        const double length = Distance(from.point, to.point);
        double way = 0.0;
        for (; _Rest < length - way; Cut(Between(from.point, to.point, way / length), to.point)) {
            way += _Rest;
            if (++_Count > _Flatness.vertices) {
                return false;
            }
        }
        _Rest -= length - way;
        if (IsDash() && _Dash.vertices.back().point != to.point) {
            _Dash.vertices.push_back(to);
            ++_Count;
        }
    }
    const bool isWhole = _Number == 0;
    const bool endsInDash = IsDash() && _Dash.vertices.size() > 1;
    if (endsInDash) {
        EndDash(line.vertices.front().point);
    }
    if (line.isClosed && isWhole) {
        _Lines.back() = line;
    } else if (line.isClosed && endsInDash && _Lines.size() > first + 1) {
        Join(first);
    }
    return _Count <= _Flatness.vertices;
}

void Dashing::Cut(const ZAMMathPoint2D& point, const ZAMMathPoint2D& next) {
    if (IsDash()) {
        if (_Dash.vertices.back().point != point) {
            _Dash.vertices.push_back({point, true});
        }
        EndDash(next);
    } else {
        _Dash = {{{point, true}}};
    }
    _Rest = _Lengths[++_Number % _Lengths.size()];
}

// A dash of no length leads toward the next vertex.
void Dashing::EndDash(const ZAMMathPoint2D& next) {
    if (_Dash.vertices.size() == 1) {
        const ZAMMathPoint2D point = _Dash.vertices.front().point;
        const double way = Distance(point, next);
        const double share = way > 0.0 ? _Flatness.tolerance * kNoLength / way : 0.0;
        _Dash.vertices.push_back({Between(point, next, share), true});
    }
    if (_Dash.vertices[0].point != _Dash.vertices[1].point) {
        _Lines.push_back(std::move(_Dash));
    }
    _Dash = {};
}

// The last dash of a closed line goes on with the first.
void Dashing::Join(std::size_t first) {
    const std::vector<Line::Vertex> start = std::move(_Lines[first].vertices);
    std::vector<Line::Vertex>& end = _Lines.back().vertices;
    end.insert(end.end(), start.begin() + (end.back().point == start.front().point ? 1 : 0), start.end());
    _Lines[first] = std::move(_Lines.back());
    _Lines.pop_back();
}

} // namespace

std::optional<Lines> ZAMPrepressFlatten(const Path& path, const ZAMPrepressFlatness& flatness) {
    Flattening flattening(flatness);
    const bool isDone =
        std::ranges::all_of(path.segments, [&](const Path::Segment& segment) { return flattening.Add(segment); });
    return isDone ? std::optional(flattening.Finish()) : std::nullopt;
}

std::optional<Lines> ZAMPrepressDash(std::span<const Line> lines, std::span<const double> lengths,
                                     const ZAMPrepressFlatness& flatness) {
    Dashing dashing(lengths, flatness);
    const bool isDone = std::ranges::all_of(lines, [&](const Line& line) { return dashing.Add(line); });
    return isDone ? std::optional(dashing.Finish()) : std::nullopt;
}
