// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <span>

/// Where the XML parser takes its bytes from.
class ZAM_EXPORT ZAMLightXmlInputStream {
public:
    ZAMLightXmlInputStream() = default;
    ZAMLightXmlInputStream(const ZAMLightXmlInputStream&) = delete;
    ZAMLightXmlInputStream& operator=(const ZAMLightXmlInputStream&) = delete;
    virtual ~ZAMLightXmlInputStream();

    /// The whole document; valid as long as the stream.
    [[nodiscard]] virtual std::span<const char> GetBytes() const = 0;
};
