// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtFillPattern.h"
#include "framework/model/ZAMPrtPaintCodes.h"

#include <memory>

/// How interiors are filled: a value, cheap to copy (the pattern is shared until it is set anew).
class ZAM_EXPORT ZAMPrtFillAttributes {
public:
    [[nodiscard]] unsigned int GetFillColourIndex() const { return _ColourIndex; }
    /// A colour ends whatever style was set before: the fill is solid afterwards, and the pattern is dropped.
    void SetFillColourIndex(unsigned int index) {
        _ColourIndex = index;
        _Style = ZAMPrtFillStyle::Solid;
        _Pattern.reset();
    }

    /// 255 opaque, 0 invisible.
    [[nodiscard]] unsigned char GetFillColourTransparency() const { return _Transparency; }
    void SetFillColourTransparency(unsigned char transparency) { _Transparency = transparency; }

    [[nodiscard]] ZAMPrtFillRule GetFillRule() const { return _Rule; }
    void SetFillRule(ZAMPrtFillRule rule) { _Rule = rule; }

    [[nodiscard]] ZAMPrtFillStyle GetFillStyle() const { return _Style; }
    void SetFillStyle(ZAMPrtFillStyle style) { _Style = style; }

    /// What the style Pattern fills with; null when nothing was set, and then it fills with the colour.
    [[nodiscard]] const ZAMPrtFillPattern* GetPattern() const { return _Pattern.get(); }
    /// Sets the bitmap, its drawn size and the distance to the next; the reference point stays. Takes a reference.
    void SetPattern(ZAMPixelImage* image, const ZAMMathVector2D& size, const ZAMMathVector2D& step);
    /// The lower left corner of one drawn bitmap.
    void SetPatternRefPoint(const ZAMMathPoint2D& point);
    /// Takes over the pattern, or the lack of one, of another fill.
    void SetPatternOf(const ZAMPrtFillAttributes& other) { _Pattern = other._Pattern; }

    bool operator==(const ZAMPrtFillAttributes& other) const;

private:
    [[nodiscard]] ZAMPrtFillPattern CopyPattern() const { return _Pattern ? *_Pattern : ZAMPrtFillPattern(); }

    std::shared_ptr<const ZAMPrtFillPattern> _Pattern;
    unsigned int _ColourIndex = 0;
    unsigned char _Transparency = 255;
    ZAMPrtFillRule _Rule = ZAMPrtFillRule::NonZero;
    ZAMPrtFillStyle _Style = ZAMPrtFillStyle::Solid;
};
