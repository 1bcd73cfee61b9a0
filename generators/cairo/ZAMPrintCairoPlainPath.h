// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMath2x2Matrix.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/print/ZAMPrintPath.h"
#include "generators/cairo/ZAMPrintCairoPlainText.h"

#include <cstdint>

/// Writes paths with the operators of a PDF content stream (ISO 32000-1, 8.5.2), each in the shortest form that draws
/// the same.
class ZAMPrintCairoPlainPath {
public:
    explicit ZAMPrintCairoPlainPath(ZAMPrintCairoPlainText& text) : _Text(text) {}

    /// `fills`: the path is only filled or clipped with, which needs no closing. The map shapes the path; its
    /// coordinates get so many decimals.
    void Write(const ZAMPrintPath& path, const ZAMMath2x2Matrix& map, bool fills, int decimals);

private:
    // A point in units of the last decimal.
    struct Place {
        std::int64_t x = 0;
        std::int64_t y = 0;

        bool operator==(const Place&) const = default;
    };

    [[nodiscard]] Place Round(const ZAMMathPoint2D& point) const;
    void Add(const Place& place);
    [[nodiscard]] bool WriteRectangle(const ZAMPrintPath& path);
    void MoveTo(const ZAMMathPoint2D& point);
    void LineTo(const ZAMMathPoint2D& point, ZAMPrintPath::Verb next);
    [[nodiscard]] Place Lengthen(const Place& place, const ZAMMathPoint2D& point) const;
    void CubicTo(const ZAMMathPoint2D* points, ZAMPrintPath::Verb next);

    ZAMPrintCairoPlainText& _Text;
    int _Decimals = 0;
    double _Units = 1.0; ///< to the point
    ZAMMath2x2Matrix _Map;
    bool _Fills = false;
    ZAMMathPoint2D _Origin; ///< where the contour starts, as it was given
    Place _Start;           ///< and as it is written
    Place _Current;
    bool _IsMoved = false; ///< the contour has no segment yet
};
