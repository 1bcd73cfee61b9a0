// SPDX-License-Identifier: MIT
// The reader of BMP.
#include "framework/visualisation/ZAMPixelImageReaders.h"
#include "fuzz/Picture.h"

#include <cstddef>
#include <cstdint>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const unsigned char> bytes(data, size);
    CheckFuzzedPicture(ReadMemBMPPixelImage(bytes, ZAMReadOnlyState::Memory));
    return 0;
}
