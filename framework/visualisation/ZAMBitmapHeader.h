// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

/// What stands before the pixels of a BMP file: its header, bit fields and palette.
struct ZAMBitmapHeader {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    bool isTopDown = false;
    bool isRunLengthCoded = false;            ///< RLE4 or RLE8, as bitsPerPixel says
    std::uint32_t bitsPerPixel = 0;           ///< 1, 4, 8, 16, 24 or 32
    std::array<std::uint32_t, 4> masks{};     ///< red, green, blue, alpha of 16 to 32 bits; no alpha is 0
    std::array<std::uint32_t, 256> palette{}; ///< of up to 8 bits, as ZAMPixelImage has its pixels
    std::span<const unsigned char> data;      ///< from the first pixel to the end of the file

    /// Nothing when this is no BMP file of a known kind, or when its data cannot hold a picture of that size.
    static std::optional<ZAMBitmapHeader> Read(std::span<const unsigned char> file);

    /// Bytes of a stored row, without and with its padding; of no meaning for run lengths.
    [[nodiscard]] std::uint64_t GetRowSize() const { return (std::uint64_t{width} * bitsPerPixel + 7) / 8; }
    [[nodiscard]] std::uint64_t GetStride() const { return (GetRowSize() + 3) / 4 * 4; }

    /// Where the row that is stored as number y, counted from 0, begins in a picture whose top row is the first.
    [[nodiscard]] std::size_t GetStartOfRow(std::size_t y) const {
        return (isTopDown ? y : height - 1 - y) * std::size_t{width};
    }
};
