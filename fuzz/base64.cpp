// SPDX-License-Identifier: MIT
// Base64: no more bytes than characters come of it.
#include "ZAMPrtInterpreterSVG/base64/ConvertFromBase64Buffer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<unsigned char> bytes(size);
    unsigned int length = 0;
    ConvertFromBase64Buffer(reinterpret_cast<const char*>(data), static_cast<unsigned int>(size), bytes.data(), length);
    if (length > size) {
        std::abort();
    }
    return 0;
}
