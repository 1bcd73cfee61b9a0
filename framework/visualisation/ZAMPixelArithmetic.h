// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// value × factor / 255, rounded to the nearest; both are at most 255.
constexpr std::uint32_t ZAMMultipliedBy255th(std::uint32_t value, std::uint32_t factor) {
    return (value * factor + 127U) / 255U;
}

/// A pixel of ZAMPixelImage from colours and alpha of 8 bits.
constexpr std::uint32_t ZAMPremultiplied(std::uint32_t red, std::uint32_t green, std::uint32_t blue,
                                         std::uint32_t alpha) {
    if (alpha != 255U) {
        red = ZAMMultipliedBy255th(red, alpha);
        green = ZAMMultipliedBy255th(green, alpha);
        blue = ZAMMultipliedBy255th(blue, alpha);
    }
    return alpha << 24U | red << 16U | green << 8U | blue;
}
