// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintPath.h"
#include "generators/cairo/ZAMPrintCairoCurve.h"
#include "generators/cairo/ZAMPrintCairoWorld.h"

/// Feeds a path with finite points to a cutter. Curves come in pieces: `Curve` when all points are in the world,
/// `FarCurve` when the piece lies beside the view, which is a part of the world.
namespace ZAMPrintCairoPathWalk {

template <class Cutter>
void WalkCurve(const ZAMPrintCairoCurve& curve, const ZAMMathBox2D& view, Cutter& cutter, int halvings) {
    const ZAMMathBox2D hull = curve.GetHull();
    if (hull.Intersection(view).IsEmpty()) {
        cutter.FarCurve(curve);
    } else if (ZAMPrintCairoWorld::Contains(ZAMPrintCairoWorld::kBox, hull)) {
        cutter.Curve(curve);
    } else if (halvings == 0) {
        cutter.Line(curve.points[3]);
    } else {
        for (const ZAMPrintCairoCurve& half : curve.Split()) {
            WalkCurve(half, view, cutter, halvings - 1);
        }
    }
}

template <class Cutter> void Walk(const ZAMPrintPath& path, const ZAMMathBox2D& view, Cutter& cutter) {
    // Brings curves of 1e25 units down to the world's size; pieces of larger ones become lines.
    constexpr int kMostHalvings = 64;
    const ZAMMathPoint2D* points = path.GetPoints().data();
    for (const ZAMPrintPath::Verb verb : path.GetVerbs()) {
        switch (verb) {
        case ZAMPrintPath::Verb::MoveTo:
            cutter.Move(points[0]);
            break;
        case ZAMPrintPath::Verb::LineTo:
            cutter.Line(points[0]);
            break;
        case ZAMPrintPath::Verb::CubicTo:
            WalkCurve({{points[-1], points[0], points[1], points[2]}}, view, cutter, kMostHalvings);
            break;
        case ZAMPrintPath::Verb::ClosePath:
            cutter.Close();
            break;
        }
        points += ZAMPrintPath::PointsOf(verb);
    }
}

} // namespace ZAMPrintCairoPathWalk
