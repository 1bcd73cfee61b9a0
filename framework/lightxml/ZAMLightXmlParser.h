// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMLimits.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/lightxml/ZAMLightXmlInputStream.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// Why a document could not be read to its end.
struct ZAMLightXmlError {
    std::string reason;       ///< in words for a person
    std::uint32_t line = 0;   ///< from 1
    std::uint32_t column = 0; ///< from 1, in characters
};

/// Reads XML 1.0 documents within ZAMLimits: what is beyond one is a parse error. Internal entities are expanded within
/// bounds; nothing outside the document is ever opened.
/// Read are UTF-8, UTF-16, ISO-8859-1, ASCII and the single-byte encodings that the C library knows.
class ZAM_EXPORT ZAMLightXmlParser {
public:
    /// Parses the document into `root`, which becomes its root element. 1 done; -1 on a parse error or when memory is
    /// out. The elements read before the error stay, `root` among them.
    int Parse(const ZAMLightXmlInputStream& stream, ZAMLightXmlElement& root);

    /// How many elements a document may have; kElements unless it is set.
    void SetMostElements(std::size_t elements) { _MostElements = elements; }

    /// The error of the last Parse; meaningful after it returned -1.
    [[nodiscard]] const ZAMLightXmlError& GetError() const { return _Error; }

private:
    ZAMLightXmlError _Error;
    std::size_t _MostElements = ZAMLimits::kElements;
};
