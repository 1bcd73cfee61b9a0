// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

/// What the first bytes of a picture say, whatever it was said to be.
struct ZAMPrepressPictureHeader {
    enum class Format : std::uint8_t { Unknown, Png, Jpeg, Bmp, Svg };

    Format format = Format::Unknown;
    double width = 0.0; ///< in pixels; 0 for documents and where it cannot be read
    double height = 0.0;

    [[nodiscard]] static ZAMPrepressPictureHeader Read(std::string_view bytes);
};
