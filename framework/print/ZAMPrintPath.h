// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// A path as a generator draws it: verbs, and the points that they consume. It starts with a MoveTo unless it is empty;
/// a ClosePath is followed by a MoveTo or nothing.
class ZAM_EXPORT ZAMPrintPath {
public:
    enum class Verb : std::uint8_t {
        MoveTo,   ///< 1 point
        LineTo,   ///< 1 point
        CubicTo,  ///< 3 points: two control points, the end point
        ClosePath ///< none
    };

    /// The closed outline of a box, from its least corner along x.
    static ZAMPrintPath OfBox(const ZAMMathBox2D& box) {
        ZAMPrintPath path;
        path.MoveTo({box.xMin, box.yMin});
        path.LineTo({box.xMax, box.yMin});
        path.LineTo({box.xMax, box.yMax});
        path.LineTo({box.xMin, box.yMax});
        path.ClosePath();
        return path;
    }

    void MoveTo(const ZAMMathPoint2D& point) { Append(Verb::MoveTo, point); }
    void LineTo(const ZAMMathPoint2D& point) { Append(Verb::LineTo, point); }
    void CubicTo(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2, const ZAMMathPoint2D& end) {
        _Points.push_back(control1);
        _Points.push_back(control2);
        Append(Verb::CubicTo, end);
    }
    void ClosePath() { _Verbs.push_back(Verb::ClosePath); }

    /// Empties the path and keeps its memory for the next one.
    void Clear() {
        _Verbs.clear();
        _Points.clear();
    }
    [[nodiscard]] bool IsEmpty() const { return _Verbs.empty(); }
    [[nodiscard]] std::span<const Verb> GetVerbs() const { return _Verbs; }
    [[nodiscard]] std::span<const ZAMMathPoint2D> GetPoints() const { return _Points; }

    /// The number of points that a verb consumes.
    static constexpr std::size_t PointsOf(Verb verb) {
        return verb == Verb::CubicTo ? 3 : (verb == Verb::ClosePath ? 0 : 1);
    }

private:
    void Append(Verb verb, const ZAMMathPoint2D& point) {
        _Verbs.push_back(verb);
        _Points.push_back(point);
    }

    std::vector<Verb> _Verbs;
    std::vector<ZAMMathPoint2D> _Points;
};
