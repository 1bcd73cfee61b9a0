// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/print/ZAMPrintPath.h"

/// A path in device units, without segments that touch a point that is not finite; the path goes on behind them with a
/// move. A contour that lost a segment is closed with a line to its start.
class ZAMPrintCairoDevicePath {
public:
    /// Keeps the memory of the path before.
    void Assign(const ZAMPrintPath& path, const ZAMMathAffine2D& toDevice);

    [[nodiscard]] const ZAMPrintPath& GetPath() const { return _Path; }
    /// No point needs to be cut away.
    [[nodiscard]] bool IsNear() const { return _IsNear; }

private:
    void MoveTo(const ZAMMathPoint2D& point);
    void LineTo(const ZAMMathPoint2D& point);
    void CubicTo(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2, const ZAMMathPoint2D& end);
    void ClosePath();
    /// A segment was left out; the path goes on at its end, if that is a place.
    void Resume(const ZAMMathPoint2D& point);
    [[nodiscard]] const ZAMMathPoint2D& Measure(const ZAMMathPoint2D& point);

    ZAMPrintPath _Path;
    ZAMMathPoint2D _Start;
    bool _HasPoint = false; ///< there is a current point
    bool _IsWhole = false;  ///< no segment of the contour was left out
    bool _IsNear = true;
};
