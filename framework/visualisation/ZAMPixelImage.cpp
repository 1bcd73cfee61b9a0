// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMPixelImage.h"

#include "framework/base/ZAMFile.h"
#include "framework/visualisation/ZAMPixelImageReaders.h"

#include <algorithm>
#include <utility>

namespace {

std::unique_ptr<std::uint32_t[]> CopyOf(std::span<const std::uint32_t> pixels, int width, int height) {
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    auto copy = std::make_unique<std::uint32_t[]>(count);
    std::copy_n(pixels.begin(), std::min(count, pixels.size()), copy.get());
    return copy;
}

} // namespace

ZAMPixelImage::ZAMPixelImage(int width, int height, std::unique_ptr<std::uint32_t[]> pixels,
                             std::shared_ptr<const Bytes> jpeg)
    : _Width(width), _Height(height), _Pixels(std::move(pixels)), _Jpeg(std::move(jpeg)),
      _IsOpaque(std::ranges::all_of(GetPixels(), [](std::uint32_t pixel) { return pixel >= 0xFF000000U; })) {}

ZAMPixelImage::ZAMPixelImage(int width, int height, std::span<const std::uint32_t> pixels,
                             std::shared_ptr<const Bytes> jpeg)
    : ZAMPixelImage(width, height, CopyOf(pixels, width, height), std::move(jpeg)) {}

ZAMPixelImage::~ZAMPixelImage() = default;

ZAMRef<ZAMPixelImage> ZAMPixelImage::CreateFromFile(const ZAMString& fileName, ZAMReadOnlyState state,
                                                    int /*reserved*/) {
    Bytes bytes;
    if (ZAMReadFile(fileName, ZAMLimits::kPictureBytes, bytes) < 0) {
        return {};
    }
    // Each of them looks at the first bytes first.
    for (const auto read : {ReadMemoryPNGPixelImage, ReadMemoryJPEGPixelImage, ReadMemBMPPixelImage}) {
        if (ZAMRef<ZAMPixelImage> image = read(bytes, state)) {
            return image;
        }
    }
    return {};
}

std::span<const unsigned char> ZAMPixelImage::GetJpeg() const {
    return _Jpeg == nullptr ? std::span<const unsigned char>() : std::span<const unsigned char>(*_Jpeg);
}
