// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMath2x2Matrix.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/print/ZAMPrintPaint.h"

#include <cairo.h>
#include <vector>

/// A pen as cairo can bear it. Its units are those in which the map to the device has the norm 1: the map shapes the
/// pen but never enlarges it, so width and dashes are lengths in device units.
class ZAMPrintCairoPen {
public:
    ZAMPrintCairoPen(const ZAMPrintPen& pen, const ZAMMath2x2Matrix& toDevice);

    /// False for a pen that leaves no mark, whatever the path.
    [[nodiscard]] bool Paints() const { return _Width > 0.0; }
    [[nodiscard]] double GetWidth() const { return _Width; }
    [[nodiscard]] bool IsOpaque() const { return _Colour.alpha == 255; }
    /// How far from its path a mark can reach, in device units.
    [[nodiscard]] double GetReach() const;

    [[nodiscard]] bool IsDashed() const { return !_Dashes.empty(); }
    void MakeSolid() { _Dashes.clear(); }
    /// Dashes and gaps that a path of this length, in pen units, is made of.
    [[nodiscard]] double CountDashSteps(double length) const;
    /// The length, in pen units, of an offset in device units.
    [[nodiscard]] double Measure(const ZAMMathVector2D& offset) const;

    /// Strokes the context's path and forgets it. The dashes start as they do after `walked` pen units.
    void Stroke(cairo_t* context, double walked) const;

private:
    void ReadDashes(std::span<const float> dashes, double scale);

    ZAMPrintColour _Colour;
    cairo_line_cap_t _Cap;
    cairo_line_join_t _Join;
    ZAMMath2x2Matrix _ToDevice;
    ZAMMath2x2Matrix _FromDevice;
    double _Width = 0.0;
    std::vector<double> _Dashes;
    double _Period = 0.0;
};
