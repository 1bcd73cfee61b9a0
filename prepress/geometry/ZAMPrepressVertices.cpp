// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressVertices.h"

#include <cmath>
#include <optional>
#include <span>

namespace {

using Segment = ZAMPrepressPath::Segment;
using Verb = ZAMPrepressPath::Verb;
using Direction = std::optional<ZAMMathVector2D>;

Direction Towards(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    const double length = std::hypot(x, y);
    return length > 0.0 && std::isfinite(length) ? Direction({x / length, y / length}) : std::nullopt;
}

// Halfway between two directions. Between opposite ones there is no halfway: a quarter turn it is.
ZAMMathVector2D Bisector(const ZAMMathVector2D& in, const ZAMMathVector2D& out) {
    constexpr double kOpposite = 1e-9;
    const ZAMMathPoint2D sum{in.x + out.x, in.y + out.y};
    return std::hypot(sum.x, sum.y) < kOpposite ? ZAMMathVector2D{-in.y, in.x} : *Towards({}, sum);
}

// Where a segment leaves its start and where it reaches its end; nothing for one without a length.
struct Course {
    Direction start;
    Direction end;
};

Course CourseOf(const ZAMMathPoint2D& from, const Segment& segment) {
    if (segment.verb != Verb::CubicTo) {
        const Direction direction = Towards(from, segment.end);
        return {direction, direction};
    }
    const auto firstOf = [](const ZAMMathPoint2D& a, const ZAMMathPoint2D& b, const ZAMMathPoint2D& c, auto towards) {
        Direction direction = towards(a);
        direction = direction ? direction : towards(b);
        return direction ? direction : towards(c);
    };
    return {firstOf(segment.control1, segment.control2, segment.end,
                    [&](const ZAMMathPoint2D& point) { return Towards(from, point); }),
            firstOf(segment.control2, segment.control1, from,
                    [&](const ZAMMathPoint2D& point) { return Towards(point, segment.end); })};
}

// Collects the vertices of one subpath after the other.
class Vertices {
public:
    explicit Vertices(std::vector<ZAMPrepressVertex>& result) : _Result(result) {}

    /// A subpath from `start` with the segments behind its move. A move gives a vertex of its own, which the end of a
    /// closed subpath that is simply gone on from has given already.
    void AddSubpath(const ZAMMathPoint2D& start, bool isMove, std::span<const Segment> segments);

private:
    void ReadCourses(const ZAMMathPoint2D& start, std::span<const Segment> segments);

    std::vector<ZAMPrepressVertex>& _Result;
    std::vector<Course> _Courses; // of the segments of the subpath
};

void Vertices::ReadCourses(const ZAMMathPoint2D& start, std::span<const Segment> segments) {
    _Courses.clear();
    ZAMMathPoint2D from = start;
    for (const Segment& segment : segments) {
        _Courses.push_back(CourseOf(from, segment));
        from = segment.end;
    }
    Direction known;
    for (Course& course : _Courses) {
        course = course.start ? course : Course{known, known};
        known = course.end;
    }
    known = ZAMMathVector2D{1.0, 0.0};
    for (std::size_t i = _Courses.size(); i-- > 0;) {
        _Courses[i] = _Courses[i].start ? _Courses[i] : Course{known, known};
        known = _Courses[i].start;
    }
}

void Vertices::AddSubpath(const ZAMMathPoint2D& start, bool isMove, std::span<const Segment> segments) {
    if (segments.empty()) {
        _Result.push_back({start, {1.0, 0.0}});
        return;
    }
    ReadCourses(start, segments);
    const bool isClosed = segments.back().verb == Verb::ClosePath;
    const ZAMMathVector2D atEnds = Bisector(*_Courses.back().end, *_Courses.front().start);
    if (isMove) {
        _Result.push_back({start, isClosed ? atEnds : *_Courses.front().start});
    }
    for (std::size_t i = 0; i + 1 < segments.size(); ++i) {
        if (segments[i].isVertex) {
            _Result.push_back({segments[i].end, Bisector(*_Courses[i].end, *_Courses[i + 1].start)});
        }
    }
    _Result.push_back({segments.back().end, isClosed ? atEnds : *_Courses.back().end});
}

} // namespace

std::vector<ZAMPrepressVertex> ZAMPrepressGetVertices(const ZAMPrepressPath& path) {
    std::vector<ZAMPrepressVertex> result;
    Vertices vertices(result);
    const std::span<const Segment> segments(path.segments);
    ZAMMathPoint2D start;
    for (std::size_t i = 0; i < segments.size();) {
        const bool isMove = segments[i].verb == Verb::MoveTo;
        const std::size_t first = isMove ? i + 1 : i;
        start = isMove ? segments[i].end : start;
        std::size_t end = first;
        while (end < segments.size() && segments[end].verb != Verb::MoveTo &&
               (end == first || segments[end - 1].verb != Verb::ClosePath)) {
            ++end;
        }
        vertices.AddSubpath(start, isMove, segments.subspan(first, end - first));
        i = end;
    }
    return result;
}
