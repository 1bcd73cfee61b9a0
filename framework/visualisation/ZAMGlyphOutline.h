// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The contours of a glyph in em space, each closed.
class ZAMGlyphOutline {
public:
    void MoveTo(const ZAMMathPoint2D& point) { Append(Verb::MoveTo, point); }
    void LineTo(const ZAMMathPoint2D& point) { Append(Verb::LineTo, point); }
    void CubicTo(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2, const ZAMMathPoint2D& end) {
        _Points.push_back(control1);
        _Points.push_back(control2);
        Append(Verb::CubicTo, end);
    }
    void ClosePath() { _Verbs.push_back(Verb::ClosePath); }

    [[nodiscard]] bool IsEmpty() const { return _Verbs.empty(); }

    /// Calls MoveTo(p), LineTo(p), CubicTo(control1, control2, p) and ClosePath() of the sink with mapped points.
    template <class Sink> void Trace(const ZAMMathAffine2D& map, Sink& sink) const {
        std::size_t next = 0;
        for (const Verb verb : _Verbs) {
            if (verb == Verb::ClosePath) {
                sink.ClosePath();
            } else if (verb == Verb::CubicTo) {
                sink.CubicTo(map.Apply(_Points[next]), map.Apply(_Points[next + 1]), map.Apply(_Points[next + 2]));
                next += 3;
            } else {
                const ZAMMathPoint2D point = map.Apply(_Points[next++]);
                verb == Verb::MoveTo ? sink.MoveTo(point) : sink.LineTo(point);
            }
        }
    }

private:
    enum class Verb : std::uint8_t { MoveTo, LineTo, CubicTo, ClosePath };

    void Append(Verb verb, const ZAMMathPoint2D& point) {
        _Verbs.push_back(verb);
        _Points.push_back(point);
    }

    std::vector<Verb> _Verbs;
    std::vector<ZAMMathPoint2D> _Points;
};
