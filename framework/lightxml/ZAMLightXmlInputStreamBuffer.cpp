// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"

#include <cstddef>

ZAMLightXmlInputStreamBuffer::ZAMLightXmlInputStreamBuffer(const unsigned char* data, int length) {
    if (data != nullptr && length > 0) {
        _Bytes = {reinterpret_cast<const char*>(data), static_cast<std::size_t>(length)};
    }
}
