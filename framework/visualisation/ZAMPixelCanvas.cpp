// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMPixelCanvas.h"

#include <new>

std::uint32_t* ZAMPixelCanvas::Begin(std::uint32_t width, std::uint32_t height) noexcept {
    const std::uint64_t count = std::uint64_t{width} * height;
    if (count == 0 || count > ZAMLimits::kPicturePixels || !ZAMAllocationBudget::SpendPixels(count)) {
        return nullptr;
    }
    _Width = static_cast<int>(width);
    _Height = static_cast<int>(height);
    _Pixels.reset(new (std::nothrow) std::uint32_t[count]);
    return _Pixels.get();
}

ZAMRef<ZAMPixelImage> ZAMPixelCanvas::Finish(std::shared_ptr<const ZAMPixelImage::Bytes> jpeg) {
    return ZAMNew<ZAMPixelImage>(_Width, _Height, std::move(_Pixels), std::move(jpeg));
}
