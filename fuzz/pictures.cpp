// SPDX-License-Identifier: MIT
// The readers of pictures, and base64: the first byte says which.
#include "framework/visualisation/ZAMPixelImageReaders.h"
#include "ZAMPrtInterpreterSVG/base64/ConvertFromBase64Buffer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

namespace {

void Decode(std::span<const unsigned char> text) {
    std::vector<unsigned char> bytes(text.size());
    unsigned int length = 0;
    ConvertFromBase64Buffer(reinterpret_cast<const char*>(text.data()), static_cast<unsigned int>(text.size()),
                            bytes.data(), length);
    if (length > text.size()) {
        std::abort();
    }
}

void Check(const ZAMRef<ZAMPixelImage>& image) {
    if (image && image->GetPixels().size() !=
                     static_cast<std::size_t>(image->GetWidth()) * static_cast<std::size_t>(image->GetHeight())) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::span<const unsigned char> rest(data + 1, size - 1);
    switch (data[0] % 4) {
    case 0:
        Check(ReadMemoryPNGPixelImage(rest, ZAMReadOnlyState::Memory));
        break;
    case 1:
        Check(ReadMemoryJPEGPixelImage(rest, ZAMReadOnlyState::Memory));
        break;
    case 2:
        Check(ReadMemBMPPixelImage(rest, ZAMReadOnlyState::Memory));
        break;
    default:
        Decode(rest);
        break;
    }
    return 0;
}
