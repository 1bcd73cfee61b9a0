// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtPaintCodes.h"

#include <memory>
#include <span>
#include <vector>

/// How outlines are drawn: a value, cheap to copy (the dash pattern is shared until it is set anew). The miter limit is
/// 4, dash patterns start at their beginning.
class ZAM_EXPORT ZAMPrtStrokeAttributes {
public:
    [[nodiscard]] unsigned int GetStrokeColourIndex() const { return _ColourIndex; }
    void SetStrokeColourIndex(unsigned int index) { _ColourIndex = index; }

    /// 255 opaque, 0 invisible.
    [[nodiscard]] unsigned char GetStrokeColourTransparency() const { return _Transparency; }
    void SetStrokeColourTransparency(unsigned char transparency) { _Transparency = transparency; }

    /// Solid or UserPattern. Setting the type leaves the dash pattern alone.
    [[nodiscard]] ZAMPrintLineAttribute GetStrokeType() const { return _Type; }
    void SetStrokeType(ZAMPrintLineAttribute type) { _Type = type; }

    /// In the element's own units; a width that is not finite and positive paints nothing.
    [[nodiscard]] double GetStrokeWidth() const { return _Width; }
    void SetStrokeWidth(double width) { _Width = width; }

    [[nodiscard]] unsigned char GetStrokeStyle() const { return _Style; }
    void SetStrokeStyle(unsigned char style) { _Style = style; }

    [[nodiscard]] ZAMPrintLineAttribute GetStrokeCap() const { return _Cap; }
    void SetStrokeCap(ZAMPrintLineAttribute cap) { _Cap = cap; }

    [[nodiscard]] ZAMPrintLineAttribute GetStrokeJoin() const { return _Join; }
    void SetStrokeJoin(ZAMPrintLineAttribute join) { _Join = join; }

    /// Lengths of dashes and gaps in turn, in the element's own units. Copies `count` values; a count of 0 clears the
    /// pattern. A list with a negative, non-finite or only zero entries draws solid.
    void SetStrokeTypePattern(const float* lengths, unsigned char count);
    [[nodiscard]] std::span<const float> GetStrokeTypePattern() const;
    /// Takes over the pattern, or the lack of one, of another stroke.
    void SetStrokeTypePatternOf(const ZAMPrtStrokeAttributes& other) { _Pattern = other._Pattern; }

    bool operator==(const ZAMPrtStrokeAttributes& other) const;

private:
    double _Width = 1.0;
    std::shared_ptr<const std::vector<float>> _Pattern;
    unsigned int _ColourIndex = kZAMPrtNoColour;
    unsigned char _Transparency = 255;
    ZAMPrintLineAttribute _Type = ZAMPrintLineAttribute::Solid;
    unsigned char _Style = 0;
    ZAMPrintLineAttribute _Cap = ZAMPrintLineAttribute::CapButt;
    ZAMPrintLineAttribute _Join = ZAMPrintLineAttribute::JoinMiter;
};
