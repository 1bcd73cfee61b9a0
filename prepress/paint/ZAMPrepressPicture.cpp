// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPicture.h"

#include <algorithm>
#include <cmath>

std::uint32_t ZAMPrepressPicture::ToPixel(const ZAMPrepressPremultiplied& colour) {
    const auto toByte = [](double value) {
        return static_cast<std::uint32_t>(std::lround(255.0 * std::clamp(value, 0.0, 1.0)));
    };
    const std::uint32_t alpha = toByte(colour[3]);
    if (alpha == 0) {
        return 0;
    }
    return alpha << 24U | toByte(colour[0] / colour[3]) << 16U | toByte(colour[1] / colour[3]) << 8U |
           toByte(colour[2] / colour[3]);
}
