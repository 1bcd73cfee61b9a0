// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressRamp.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// Pixels that are being made: the top row first, each 0xAARRGGBB, the colours as they are (not multiplied by alpha).
struct ZAMPrepressPicture {
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<std::uint32_t> pixels;

    /// The pixel of a colour.
    [[nodiscard]] static std::uint32_t ToPixel(const ZAMPrepressPremultiplied& colour);
};
