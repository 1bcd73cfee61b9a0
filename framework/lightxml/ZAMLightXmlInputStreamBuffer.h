// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/lightxml/ZAMLightXmlInputStream.h"

/// A document in memory. The buffer is borrowed and must outlive the stream.
class ZAM_EXPORT ZAMLightXmlInputStreamBuffer : public ZAMLightXmlInputStream {
public:
    /// A null buffer or a length below 1 is an empty document.
    ZAMLightXmlInputStreamBuffer(const unsigned char* data, int length);

    [[nodiscard]] std::span<const char> GetBytes() const override { return _Bytes; }

private:
    std::span<const char> _Bytes;
};
