// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressPath.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/geometry/ZAMPrepressPathBuilder.h"
#include "prepress/geometry/ZAMPrepressPathCommands.h"

#include <algorithm>
#include <cmath>

namespace {

using Verb = ZAMPrepressPath::Verb;

// Makes absolute geometry of the commands of one path.
class Reader {
public:
    explicit Reader(ZAMPrepressPathBuilder& builder) : _Builder(builder) {}

    void Add(const ZAMPrepressPathCommands::Command& command);

private:
    // The argument pair that starts there, made absolute.
    [[nodiscard]] ZAMMathPoint2D Point(std::size_t first) const {
        const ZAMMathPoint2D current = _Builder.GetCurrent();
        return _Relative ? ZAMMathPoint2D{current.x + _Values[first], current.y + _Values[first + 1]}
                         : ZAMMathPoint2D{_Values[first], _Values[first + 1]};
    }
    // Behind a curve of the same kind the first control goes on from its last one (SVG 1.1, 8.3.6).
    [[nodiscard]] ZAMMathPoint2D Reflected(bool sameKind) const {
        const ZAMMathPoint2D current = _Builder.GetCurrent();
        return sameKind ? ZAMMathPoint2D{2.0 * current.x - _Control.x, 2.0 * current.y - _Control.y} : current;
    }
    void AddCubic(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2, const ZAMMathPoint2D& end) {
        _Control = control2;
        _Builder.CubicTo(control1, control2, end);
    }
    void AddQuadratic(const ZAMMathPoint2D& control, const ZAMMathPoint2D& end) {
        _Control = control;
        _Builder.QuadraticTo(control, end);
    }
    void AddHorizontal() {
        const ZAMMathPoint2D current = _Builder.GetCurrent();
        _Builder.LineTo({_Relative ? current.x + _Values[0] : _Values[0], current.y});
    }
    void AddVertical() {
        const ZAMMathPoint2D current = _Builder.GetCurrent();
        _Builder.LineTo({current.x, _Relative ? current.y + _Values[0] : _Values[0]});
    }

    ZAMPrepressPathBuilder& _Builder;
    std::array<double, 7> _Values{};
    bool _Relative = false;
    char _LastKind = '\0';
    ZAMMathPoint2D _Control; // the last one of the curve before
};

void Reader::Add(const ZAMPrepressPathCommands::Command& command) {
    std::ranges::transform(command.GetArguments(), _Values.begin(), ZAMPrepressNumber);
    _Relative = command.IsRelative();
    const char kind = command.GetKind();
    switch (kind) {
    case 'M':
        _Builder.MoveTo(Point(0));
        break;
    case 'L':
        _Builder.LineTo(Point(0));
        break;
    case 'H':
        AddHorizontal();
        break;
    case 'V':
        AddVertical();
        break;
    case 'C':
        AddCubic(Point(0), Point(2), Point(4));
        break;
    case 'S':
        AddCubic(Reflected(_LastKind == 'C' || _LastKind == 'S'), Point(0), Point(2));
        break;
    case 'Q':
        AddQuadratic(Point(0), Point(2));
        break;
    case 'T':
        AddQuadratic(Reflected(_LastKind == 'Q' || _LastKind == 'T'), Point(0));
        break;
    case 'A':
        _Builder.ArcTo({_Values[0], _Values[1], _Values[2], _Values[3] != 0.0, _Values[4] != 0.0}, Point(5));
        break;
    default:
        _Builder.ClosePath();
        break;
    }
    _LastKind = kind;
}

// Grows the box by the extrema of one coordinate of a cubic curve: the zeros of its derivative,
// a·t² + b·t + c, between its ends.
template <class Add> void ForEachExtremum(double p0, double p1, double p2, double p3, Add add) {
    const double a = p3 - p0 + 3.0 * (p1 - p2);
    const double b = 2.0 * (p0 - 2.0 * p1 + p2);
    const double c = p1 - p0;
    const auto take = [add](double t) {
        if (t > 0.0 && t < 1.0) {
            add(t);
        }
    };
    const double discriminant = b * b - 4.0 * a * c;
    if (!(discriminant >= 0.0)) {
        return;
    }
    // Both zeros without the difference of nearly equal numbers, also where a is (nearly) 0.
    const double q = -0.5 * (b + std::copysign(std::sqrt(discriminant), b));
    if (q != 0.0) {
        take(c / q);
    }
    if (a != 0.0) {
        take(q / a);
    }
}

ZAMMathPoint2D PointAt(const ZAMMathPoint2D& from, const ZAMPrepressPath::Segment& curve, double t) {
    const double s = 1.0 - t;
    const double w0 = s * s * s;
    const double w1 = 3.0 * s * s * t;
    const double w2 = 3.0 * s * t * t;
    const double w3 = t * t * t;
    return {w0 * from.x + w1 * curve.control1.x + w2 * curve.control2.x + w3 * curve.end.x,
            w0 * from.y + w1 * curve.control1.y + w2 * curve.control2.y + w3 * curve.end.y};
}

void AddCurve(ZAMMathBox2D& box, const ZAMMathPoint2D& from, const ZAMPrepressPath::Segment& curve) {
    const auto add = [&](double t) { box.Add(PointAt(from, curve, t)); };
    ForEachExtremum(from.x, curve.control1.x, curve.control2.x, curve.end.x, add);
    ForEachExtremum(from.y, curve.control1.y, curve.control2.y, curve.end.y, add);
}

void AppendPoint(std::string& data, const ZAMMathPoint2D& point) {
    for (const double number : {point.x, point.y}) {
        data += ' ';
        ZAMPrepressAppendNumber(data, number);
    }
}

} // namespace

ZAMPrepressPath ZAMPrepressPath::Parse(std::string_view data) {
    ZAMPrepressPath path;
    ZAMPrepressPathBuilder builder(path);
    Reader reader(builder);
    ZAMPrepressPathCommands commands(data);
    for (ZAMPrepressPathCommands::Command command; commands.Next(command);) {
        reader.Add(command);
    }
    return path;
}

std::string ZAMPrepressPath::ToData() const {
    static constexpr std::string_view kLetters[] = {"M", "L", "C", "Z"};
    std::string data;
    for (const Segment& segment : segments) {
        data += data.empty() ? "" : " ";
        data += kLetters[static_cast<std::size_t>(segment.verb)];
        if (segment.verb == Verb::CubicTo) {
            AppendPoint(data, segment.control1);
            AppendPoint(data, segment.control2);
        }
        if (segment.verb != Verb::ClosePath) {
            AppendPoint(data, segment.end);
        }
    }
    return data;
}

// A move alone draws nothing: its point counts with the segment that starts there.
ZAMMathBox2D ZAMPrepressPath::GetBox() const {
    ZAMMathBox2D box;
    ZAMMathPoint2D current;
    for (const Segment& segment : segments) {
        if (segment.verb != Verb::MoveTo) {
            box.Add(current);
            box.Add(segment.end);
        }
        if (segment.verb == Verb::CubicTo) {
            AddCurve(box, current, segment);
        }
        current = segment.end;
    }
    return box;
}
