// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMPixelImage.h"

#include <cstddef>
#include <cstdint>
#include <memory>

/// Where a reader puts its pixels, and what checks the size before there is room for them.
class ZAMPixelCanvas {
public:
    /// Room for the pixels of a picture, which count against the thread's ZAMAllocationBudget; nothing is written to
    /// it, so what a damaged file leaves unused costs no memory. Null when the picture is too large or memory is out.
    std::uint32_t* Begin(std::uint32_t width, std::uint32_t height) noexcept;

    /// The finished picture, or null when memory is out. The canvas is empty then.
    ZAMRef<ZAMPixelImage> Finish(std::shared_ptr<const ZAMPixelImage::Bytes> jpeg = nullptr);

private:
    int _Width = 0;
    int _Height = 0;
    std::unique_ptr<std::uint32_t[]> _Pixels;
};
