// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtFillAttributes.h"

#include <utility>

void ZAMPrtFillAttributes::SetPattern(ZAMPixelImage* image, const ZAMMathVector2D& size, const ZAMMathVector2D& step) {
    ZAMPrtFillPattern pattern = CopyPattern();
    pattern.image = ZAMRef<ZAMPixelImage>::Share(image);
    pattern.size = size;
    pattern.step = step;
    _Pattern = std::make_shared<const ZAMPrtFillPattern>(std::move(pattern));
}

void ZAMPrtFillAttributes::SetPatternRefPoint(const ZAMMathPoint2D& point) {
    ZAMPrtFillPattern pattern = CopyPattern();
    pattern.refPoint = point;
    _Pattern = std::make_shared<const ZAMPrtFillPattern>(std::move(pattern));
}

bool ZAMPrtFillAttributes::operator==(const ZAMPrtFillAttributes& other) const {
    const bool samePattern = _Pattern == other._Pattern || (_Pattern && other._Pattern && *_Pattern == *other._Pattern);
    return _ColourIndex == other._ColourIndex && _Transparency == other._Transparency && _Rule == other._Rule &&
           _Style == other._Style && samePattern;
}
