// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

/// What the markers of a JPEG file (ISO/IEC 10918-1, annex B) tell without any decoding.
struct ZAMImagesJpegMarkers {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int components = 0;
    bool hasRgbNames = false; ///< the components are named 'R', 'G', 'B'
    bool hasJfif = false;
    bool hasAdobe = false;
    int adobeTransform = 0; ///< of the Adobe marker: 0 none, 1 YCbCr, 2 YCCK
    std::size_t scans = 0;
    std::size_t end = 0; ///< how many bytes there are with the EOI marker, which ends the file
};

/// Walks along the markers up to EOI. Nothing unless the bytes are one picture of that structure, sequential or
/// progressive with Huffman codes and 8 bits: what browsers show and PDF takes. It does not look at the coded data.
std::optional<ZAMImagesJpegMarkers> ZAMImagesReadJpegMarkers(std::span<const unsigned char> data);
