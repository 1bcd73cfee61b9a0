// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/print/ZAMPrintPath.h"
#include "generators/cairo/ZAMPrintCairoCurve.h"

#include <cstddef>
#include <functional>
#include <vector>

/// Leaves out what of a stroked path lies beside the view: what the page shows, grown by what the pen can reach.
class ZAMPrintCairoStrokeCutter {
public:
    /// A part of the path in one go.
    struct Piece {
        ZAMPrintPath path;
        double walked = 0.0; ///< length of its contour in front of it
    };
    /// The length of an offset in the units of dashes; empty for a solid line, whose lengths do not matter.
    using Measure = std::function<double(const ZAMMathVector2D&)>;

    /// The path's points are finite device units; the view is a part of the world. A closed contour that is not cut
    /// stays closed. A solid one that is cut keeps its join where it starts; a dashed one starts there anew, as its
    /// dashes do.
    [[nodiscard]] static std::vector<Piece> Cut(const ZAMPrintPath& path, const ZAMMathBox2D& view,
                                                const Measure& measure);

    void Move(const ZAMMathPoint2D& point);
    void Line(const ZAMMathPoint2D& point);
    void Curve(const ZAMPrintCairoCurve& curve);
    void FarCurve(const ZAMPrintCairoCurve& curve);
    void Close();

private:
    ZAMPrintCairoStrokeCutter(const ZAMMathBox2D& view, const Measure& measure) : _View(view), _Measure(measure) {}
    void BeginPiece(const ZAMMathPoint2D& point, double walked);
    void DrawLine(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to);
    void JoinAtStart();
    [[nodiscard]] bool IsWhole() const;
    [[nodiscard]] double MeasureLine(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) const;
    [[nodiscard]] double MeasureCurve(const ZAMPrintCairoCurve& curve) const;

    ZAMMathBox2D _View;
    const Measure& _Measure;
    std::vector<Piece> _Pieces;
    std::size_t _FirstPiece = 0; ///< of the contour
    ZAMMathPoint2D _Start;
    ZAMMathPoint2D _Current;
    double _Walked = 0.0;
    bool _IsDrawing = false; ///< the last piece ends at the current point
};
