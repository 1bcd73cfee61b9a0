// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPixels.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr std::ptrdiff_t kPixelSize = sizeof(std::uint32_t);
constexpr std::size_t kChannels = 4;
constexpr std::array<unsigned int, kChannels> kShifts{0, 8, 16, 24};

/// The sums of the channels of a row's new pixels, each old pixel counted as much as it overlaps.
class MeanRow {
public:
    explicit MeanRow(int width) : _Sums(static_cast<std::size_t>(width) * kChannels) {}

    void Clear() { std::ranges::fill(_Sums, 0.0F); }

    void Add(const std::uint32_t* row, int oldWidth, float weight) {
        const std::size_t width = _Sums.size() / kChannels;
        const double ratio = static_cast<double>(oldWidth) / static_cast<double>(width);
        int old = 0;
        double from = 0.0;
        for (std::size_t x = 0; x < width; ++x) {
            const double end = x + 1 == width ? oldWidth : static_cast<double>(x + 1) * ratio;
            while (from < end) {
                const double to = std::min(end, old + 1.0);
                AddPixel(x, row[old], weight * static_cast<float>(to - from));
                from = to;
                old += to == old + 1.0 ? 1 : 0;
            }
        }
    }

    /// The pixels, when the overlaps of each add up to `total`.
    void Store(std::uint32_t* row, float total) const {
        for (std::size_t x = 0; x < _Sums.size() / kChannels; ++x) {
            std::uint32_t pixel = 0;
            for (std::size_t i = 0; i < kChannels; ++i) {
                const float mean = _Sums[x * kChannels + i] / total + 0.5F;
                pixel |= static_cast<std::uint32_t>(std::min(mean, 255.0F)) << kShifts[i];
            }
            row[x] = pixel;
        }
    }

private:
    void AddPixel(std::size_t x, std::uint32_t pixel, float weight) {
        for (std::size_t i = 0; i < kChannels; ++i) {
            _Sums[x * kChannels + i] += weight * static_cast<float>(pixel >> kShifts[i] & 0xFFU);
        }
    }

    std::vector<float> _Sums;
};

/// Null unless the surface is sound.
ZAMPrintCairoSurface Checked(cairo_surface_t* created) {
    ZAMPrintCairoSurface surface(created);
    return cairo_surface_status(created) == CAIRO_STATUS_SUCCESS ? std::move(surface) : nullptr;
}

std::uint32_t* RowOf(cairo_surface_t* surface, int y) {
    return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface) +
                                            std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface));
}

} // namespace

ZAMPrintCairoPixels::ZAMPrintCairoPixels(const ZAMPixelImage& image)
    : _First(image.GetPixels().data()), _Stride(image.GetWidth()), _Width(image.GetWidth()), _Height(image.GetHeight()),
      _IsOpaque(image.IsOpaque()) {}

ZAMPrintCairoPixels::ZAMPrintCairoPixels(cairo_surface_t* surface)
    : _First(RowOf(surface, 0)), _Stride(cairo_image_surface_get_stride(surface) / kPixelSize),
      _Width(cairo_image_surface_get_width(surface)), _Height(cairo_image_surface_get_height(surface)),
      _IsOpaque(cairo_image_surface_get_format(surface) == CAIRO_FORMAT_RGB24) {}

ZAMPrintCairoPixels ZAMPrintCairoPixels::Cut(int x, int y, int width, int height) const {
    ZAMPrintCairoPixels part = *this;
    part._First = GetRow(y) + x;
    part._Width = width;
    part._Height = height;
    return part;
}

ZAMPrintCairoSurface ZAMPrintCairoPixels::Wrap() const {
    // Cairo asks for bytes that may be written to, and writes only when something is drawn on them.
    auto* bytes = const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(_First));
    return Checked(cairo_image_surface_create_for_data(bytes, GetFormat(), _Width, _Height,
                                                       static_cast<int>(_Stride * kPixelSize)));
}

ZAMPrintCairoSurface ZAMPrintCairoPixels::Shrink(int width, int height) const {
    ZAMPrintCairoSurface surface = Checked(cairo_image_surface_create(GetFormat(), width, height));
    if (surface == nullptr) {
        return nullptr;
    }
    const double ratio = static_cast<double>(_Height) / height;
    const double pixelArea = static_cast<double>(_Width) / width * ratio;
    MeanRow row(width);
    for (int y = 0; y < height; ++y) {
        const double start = y * ratio;
        const double end = y + 1 == height ? _Height : (y + 1) * ratio;
        row.Clear();
        for (int old = static_cast<int>(start); old < end; ++old) {
            row.Add(GetRow(old), _Width, static_cast<float>(std::min(end, old + 1.0) - std::max(start, double(old))));
        }
        row.Store(RowOf(surface.get(), y), static_cast<float>(pixelArea));
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

ZAMPrintCairoSurface ZAMPrintCairoPixels::Repeat(int x, int y, int width, int height) const {
    ZAMPrintCairoSurface surface = Checked(cairo_image_surface_create(GetFormat(), width, height));
    if (surface == nullptr) {
        return nullptr;
    }
    for (int row = 0; row < height; ++row) {
        std::uint32_t* to = RowOf(surface.get(), row);
        const std::uint32_t* from = GetRow((y + row) % _Height);
        for (int left = width, column = x % _Width; left > 0; column = 0) {
            const int count = std::min(left, _Width - column);
            to = std::copy_n(from + column, count, to);
            left -= count;
        }
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}
