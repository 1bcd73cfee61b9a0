// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"

#include <array>

/// A cubic Bézier segment with finite points of any size.
struct ZAMPrintCairoCurve {
    std::array<ZAMMathPoint2D, 4> points;

    [[nodiscard]] ZAMMathBox2D GetHull() const {
        ZAMMathBox2D hull;
        for (const ZAMMathPoint2D& point : points) {
            hull.Add(point);
        }
        return hull;
    }

    /// The two halves (de Casteljau).
    [[nodiscard]] std::array<ZAMPrintCairoCurve, 2> Split() const {
        const auto& [p0, p1, p2, p3] = points;
        const ZAMMathPoint2D p01 = Middle(p0, p1);
        const ZAMMathPoint2D p12 = Middle(p1, p2);
        const ZAMMathPoint2D p23 = Middle(p2, p3);
        const ZAMMathPoint2D p012 = Middle(p01, p12);
        const ZAMMathPoint2D p123 = Middle(p12, p23);
        const ZAMMathPoint2D middle = Middle(p012, p123);
        return {{{{p0, p01, p012, middle}}, {{middle, p123, p23, p3}}}};
    }

    /// The length, each step measured by `measure`. The mean of chord and control polygon converges with the fourth
    /// power of the number of pieces (Gravesen), so few halvings give about a millionth.
    template <class Measure> [[nodiscard]] double GetLength(const Measure& measure, int halvings = 12) const {
        const double chord = measure(Between(points[0], points[3]));
        const double polygon = measure(Between(points[0], points[1])) + measure(Between(points[1], points[2])) +
                               measure(Between(points[2], points[3]));
        // Written so that NaN and infinity end here.
        if (halvings == 0 || !(polygon - chord > 1e-3 * polygon)) {
            return (chord + polygon) / 2.0;
        }
        const auto halves = Split();
        return halves[0].GetLength(measure, halvings - 1) + halves[1].GetLength(measure, halvings - 1);
    }

private:
    static ZAMMathPoint2D Middle(const ZAMMathPoint2D& p, const ZAMMathPoint2D& q) {
        return {p.x / 2.0 + q.x / 2.0, p.y / 2.0 + q.y / 2.0};
    }
    static ZAMMathVector2D Between(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
        return {to.x - from.x, to.y - from.y};
    }
};
