// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtTextCodes.h"

class ZAMFont;

/// How text is set: a value, cheap to copy. Lengths are in user units, angles in radians.
class ZAM_EXPORT ZAMPrtTextAttributes {
public:
    /// Null for the default serif family. Fonts live as long as the process; none is owned here.
    [[nodiscard]] ZAMFont* GetFont() const { return _Font; }
    void SetFont(ZAMFont* font) { _Font = font; }

    [[nodiscard]] ZAMPrintTextAttribute GetWeight() const { return _Weight; }
    void SetWeight(ZAMPrintTextAttribute weight) { _Weight = weight; }

    /// The em size. Text whose height is not finite and positive is not drawn.
    [[nodiscard]] double GetHeight() const { return _Height; }
    void SetHeight(double height) { _Height = height; }

    /// Which point of the text its position is.
    [[nodiscard]] ZAMPrintTextAttribute GetAnchor() const { return _Anchor; }
    void SetAnchor(ZAMPrintTextAttribute anchor) { _Anchor = anchor; }

    /// The angle by which upright strokes lean to the right.
    [[nodiscard]] float GetSlant() const { return _Slant; }
    void SetSlant(float slant) { _Slant = slant; }

    /// The angle by which the text is turned about its position, counter-clockwise.
    [[nodiscard]] float GetDirection() const { return _Direction; }
    void SetDirection(float direction) { _Direction = direction; }

    /// Added between characters.
    [[nodiscard]] double GetExtraSpacing() const { return _ExtraSpacing; }
    void SetExtraSpacing(double spacing) { _ExtraSpacing = spacing; }

    /// A factor along the line of text.
    [[nodiscard]] double GetExpansion() const { return _Expansion; }
    void SetExpansion(double expansion) { _Expansion = expansion; }

    [[nodiscard]] ZAMPrtTextWritingMode GetWritingMode() const { return _WritingMode; }
    void SetWritingMode(ZAMPrtTextWritingMode mode) { _WritingMode = mode; }

    bool operator==(const ZAMPrtTextAttributes&) const = default;

private:
    ZAMFont* _Font = nullptr;
    double _Height = 16.0;
    double _ExtraSpacing = 0.0;
    double _Expansion = 1.0;
    float _Slant = 0.0F;
    float _Direction = 0.0F;
    ZAMPrintTextAttribute _Weight = ZAMPrintTextAttribute::WeightNormal;
    ZAMPrintTextAttribute _Anchor = ZAMPrintTextAttribute::AnchorStartBaseline;
    ZAMPrtTextWritingMode _WritingMode = ZAMPrtTextWritingMode::LeftToRight;
};
