// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMBitmapHeader.h"

/// Decodes the run lengths of a BMP file, RLE8 or RLE4.
class ZAMBitmapRuns {
public:
    ZAMBitmapRuns(const ZAMBitmapHeader& header, std::uint32_t* pixels) : _Header(header), _Pixels(pixels) {}

    /// Writes every pixel; false when the data is cut short before the picture ends.
    bool Decode();

private:
    [[nodiscard]] bool IsFull() const;
    bool Take(std::size_t count, const unsigned char*& bytes);
    void Put(std::uint32_t index);
    void RepeatColours(std::size_t count, std::uint32_t colours);
    bool CopyColours(std::size_t count);
    bool Move();

    const ZAMBitmapHeader& _Header;
    std::uint32_t* _Pixels;
    std::size_t _Position = 0;
    std::size_t _X = 0;
    std::size_t _Y = 0;
};
