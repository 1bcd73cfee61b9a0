// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMPixelImage.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"

#include <cstddef>
#include <cstdint>

/// A rectangle of pixels of a picture, borrowed from it, and what can be made of them.
class ZAMPrintCairoPixels {
public:
    /// All pixels of the image.
    explicit ZAMPrintCairoPixels(const ZAMPixelImage& image);
    /// Those of a surface that is made here.
    explicit ZAMPrintCairoPixels(cairo_surface_t* surface);

    [[nodiscard]] int GetWidth() const { return _Width; }
    [[nodiscard]] int GetHeight() const { return _Height; }

    /// A part, which lies inside.
    [[nodiscard]] ZAMPrintCairoPixels Cut(int x, int y, int width, int height) const;

    // Each gives a surface without alpha when the image is opaque, or null when there is no memory or a side is longer
    // than those of cairo's image surfaces.

    /// These pixels themselves: they live as long as the image does.
    [[nodiscard]] ZAMPrintCairoSurface Wrap() const;
    /// The picture with fewer pixels, each the mean of those whose place it takes.
    [[nodiscard]] ZAMPrintCairoSurface Shrink(int width, int height) const;
    /// A window on these pixels put side by side without end: from a pixel on, which is not negative.
    [[nodiscard]] ZAMPrintCairoSurface Repeat(int x, int y, int width, int height) const;

private:
    [[nodiscard]] const std::uint32_t* GetRow(int y) const { return _First + y * _Stride; }
    [[nodiscard]] cairo_format_t GetFormat() const { return _IsOpaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32; }

    const std::uint32_t* _First;
    std::ptrdiff_t _Stride; ///< in pixels
    int _Width;
    int _Height;
    bool _IsOpaque;
};
