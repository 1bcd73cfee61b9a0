// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtPaintCodes.h"

/// How interiors are filled: a value, cheap to copy.
class ZAM_EXPORT ZAMPrtFillAttributes {
public:
    [[nodiscard]] unsigned int GetFillColourIndex() const { return _ColourIndex; }
    /// A colour ends whatever style was set before: the fill is solid afterwards.
    void SetFillColourIndex(unsigned int index) {
        _ColourIndex = index;
        _Style = ZAMPrtFillStyle::Solid;
    }

    /// 255 opaque, 0 invisible.
    [[nodiscard]] unsigned char GetFillColourTransparency() const { return _Transparency; }
    void SetFillColourTransparency(unsigned char transparency) { _Transparency = transparency; }

    [[nodiscard]] ZAMPrtFillRule GetFillRule() const { return _Rule; }
    void SetFillRule(ZAMPrtFillRule rule) { _Rule = rule; }

    [[nodiscard]] ZAMPrtFillStyle GetFillStyle() const { return _Style; }
    void SetFillStyle(ZAMPrtFillStyle style) { _Style = style; }

    bool operator==(const ZAMPrtFillAttributes&) const = default;

private:
    unsigned int _ColourIndex = 0;
    unsigned char _Transparency = 255;
    ZAMPrtFillRule _Rule = ZAMPrtFillRule::NonZero;
    ZAMPrtFillStyle _Style = ZAMPrtFillStyle::Solid;
};
