// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintPath.h"
#include "generators/cairo/ZAMPrintCairoCurve.h"
#include "generators/cairo/ZAMPrintCairoWorld.h"

/// Brings a filled path into the world without changing the winding number of any point of the view.
///
/// Each point outside the world moves to the nearest one on its border. The way there does not pass through the world,
/// so no winding number inside changes; nor does it when a curve beside the view becomes its chord.
class ZAMPrintCairoFillCutter {
public:
    /// The path's points are finite device units; the view is a part of the world.
    [[nodiscard]] static ZAMPrintPath Cut(const ZAMPrintPath& path, const ZAMMathBox2D& view);

    void Move(const ZAMMathPoint2D& point);
    void Line(const ZAMMathPoint2D& point);
    void Curve(const ZAMPrintCairoCurve& curve);
    void FarCurve(const ZAMPrintCairoCurve& curve) { Line(curve.points[3]); }
    /// Ends the contour; a fill closes it whether it is said or not.
    void Close();

private:
    void LineAcrossX(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to);
    void LineAcrossY(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to);

    ZAMPrintPath _Path;
    ZAMMathPoint2D _Start;
    ZAMMathPoint2D _Current;
};
