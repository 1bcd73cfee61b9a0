// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtStrokeAttributes.h"

#include <algorithm>

void ZAMPrtStrokeAttributes::SetStrokeTypePattern(const float* lengths, unsigned char count) {
    if (count == 0) {
        _Pattern.reset();
        return;
    }
    _Pattern = std::make_shared<const std::vector<float>>(lengths, lengths + count);
}

std::span<const float> ZAMPrtStrokeAttributes::GetStrokeTypePattern() const {
    return _Pattern ? std::span<const float>(*_Pattern) : std::span<const float>();
}

bool ZAMPrtStrokeAttributes::operator==(const ZAMPrtStrokeAttributes& other) const {
    return _ColourIndex == other._ColourIndex && _Transparency == other._Transparency && _Type == other._Type &&
           _Width == other._Width && _Style == other._Style && _Cap == other._Cap && _Join == other._Join &&
           (_Pattern == other._Pattern || std::ranges::equal(GetStrokeTypePattern(), other.GetStrokeTypePattern()));
}
