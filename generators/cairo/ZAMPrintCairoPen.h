// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMath2x2Matrix.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/print/ZAMPrintPaint.h"
#include "framework/print/ZAMPrintPath.h"

#include <cairo.h>
#include <cmath>
#include <vector>

/// A pen as cairo can bear it. Its units are those in which the map to the device has the norm 1: the map shapes the
/// pen but never enlarges it, so width and dashes are lengths in device units.
class ZAMPrintCairoPen {
public:
    ZAMPrintCairoPen(const ZAMPrintPen& pen, const ZAMMath2x2Matrix& toDevice);

    /// False for a pen that leaves no mark, whatever the path.
    [[nodiscard]] bool Paints() const { return _Width > 0.0; }
    [[nodiscard]] double GetWidth() const { return _Width; }
    [[nodiscard]] const ZAMPrintColour& GetColour() const { return _Colour; }
    [[nodiscard]] cairo_line_cap_t GetCap() const { return _Cap; }
    [[nodiscard]] cairo_line_join_t GetJoin() const { return _Join; }
    /// It is a circle in device units, so its own are the same.
    [[nodiscard]] bool IsRound() const { return _IsRound; }
    /// Its units are of such different lengths along the axes that the numbers of paths in them become long.
    [[nodiscard]] bool IsFlat() const { return !_IsRound && std::abs(_ToDevice.Determinant()) < 1e-3; }
    /// Carries its units to those of the device.
    [[nodiscard]] const ZAMMath2x2Matrix& GetToDevice() const { return _ToDevice; }
    [[nodiscard]] const ZAMMath2x2Matrix& GetFromDevice() const { return _FromDevice; }
    [[nodiscard]] const std::vector<double>& GetDashes() const { return _Dashes; }
    /// How far into the dashes a path begins, in pen units.
    [[nodiscard]] double GetDashOffset() const { return _DashOffset; }
    [[nodiscard]] bool IsOpaque() const { return _Colour.alpha == 255; }
    /// How far from its path a mark can reach, in device units.
    [[nodiscard]] double GetReach() const;

    [[nodiscard]] bool IsDashed() const { return !_Dashes.empty(); }
    void MakeSolid() { _Dashes.clear(); }
    /// Dashes and gaps that a path of this length, in pen units, is made of.
    [[nodiscard]] double CountDashSteps(double length) const;
    /// The length, in pen units, of an offset in device units.
    [[nodiscard]] double Measure(const ZAMMathVector2D& offset) const;
    /// Likewise of a path's control polygon.
    [[nodiscard]] double Measure(const ZAMPrintPath& path) const;
    /// Whether the path, in device units, needs so many dashes that some may have to be left out.
    [[nodiscard]] bool HasManyDashes(const ZAMPrintPath& path) const;

    /// Strokes the context's path and forgets it. The dashes start as they do after `walked` pen units.
    void Stroke(cairo_t* context, double walked) const;

private:
    void ReadDashes(std::span<const float> dashes, double scale);
    void LeaveOutDots();

    ZAMPrintColour _Colour;
    cairo_line_cap_t _Cap;
    cairo_line_join_t _Join;
    ZAMMath2x2Matrix _ToDevice;
    ZAMMath2x2Matrix _FromDevice;
    double _Width = 0.0;
    bool _IsRound = true;
    std::vector<double> _Dashes;
    double _DashOffset = 0.0;
    double _Period = 0.0;
};
