// SPDX-License-Identifier: MIT
// Picture files made by hand, byte by byte, so that no library that reads them has a part in what they hold.
#pragma once

#include "framework/visualisation/ZAMPixelImage.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

using FileBytes = std::vector<unsigned char>;

/// Bytes written as hexadecimal digits; blanks do not count.
FileBytes FromHex(std::string_view digits);

struct PngFile {
    std::uint32_t width = 1;
    std::uint32_t height = 1;
    std::uint32_t depth = 8;
    std::uint32_t colourType = 0;
    bool isInterlaced = false;
    /// The value of a channel at a place.
    std::function<std::uint32_t(std::uint32_t x, std::uint32_t y, std::uint32_t channel)> sample{};
    /// Whole chunks that stand before the pixels.
    FileBytes chunks{};

    static FileBytes Chunk(std::string_view type, const FileBytes& content);
    [[nodiscard]] std::uint32_t CountChannels() const;
    [[nodiscard]] FileBytes Make() const;
};

/// A picture of one colour: each component has one value everywhere.
struct JpegFile {
    std::uint32_t width = 8;
    std::uint32_t height = 8;
    std::vector<unsigned char> values{128};
    std::vector<unsigned char> names{1, 2, 3, 4};
    std::vector<unsigned char> sampling{0x11, 0x11, 0x11, 0x11}; ///< of each component, in the two halves of a byte
    bool hasJfif = false;
    int adobeTransform = -1; ///< below 0 there is no Adobe marker
    unsigned char frame = 0xC0;
    int refinements = 0; ///< scans behind the first in a progressive picture of one block

    [[nodiscard]] FileBytes Make() const;
};

struct BmpFile {
    std::int32_t width = 1;
    std::int32_t height = 1;
    std::uint32_t bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t headerSize = 40;
    std::uint32_t colourCount = 0;
    FileBytes laterFields{}; ///< what the header has behind its first 40 bytes; zeros are added
    FileBytes between{};     ///< bit fields and palette
    FileBytes data{};
    std::int32_t offsetError = 0; ///< added to where the data is said to be

    [[nodiscard]] FileBytes Make() const;
};

/// The rows of pixels separated by blanks, "null" when there is no picture.
std::string TextOf(const ZAMRef<ZAMPixelImage>& image);
/// The pixel of a colour from 0 to 255, as pictures hold it: multiplied by its alpha.
std::uint32_t PixelOf(double red, double green, double blue, double alpha);
