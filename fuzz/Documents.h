// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"

#include <cstddef>
#include <cstdint>

/// What surrounds a document that is fuzzed: no files, and so few reused elements that an input that doubles itself is
/// still quick.
class FuzzedDocument {
public:
    FuzzedDocument(const std::uint8_t* data, std::size_t size) {
        const ZAMLightXmlInputStreamBuffer stream(data, static_cast<int>(size));
        ZAMLightXmlParser().Parse(stream, _Root);
    }

    /// The root, as far as the document could be read.
    [[nodiscard]] const ZAMLightXmlElement& GetRoot() const { return _Root; }

private:
    static constexpr std::size_t kReusedElements = 5000;

    ZAMFileAccessPolicy _Policy = ZAMFileAccessPolicy::None();
    ZAMAllocationBudget _Budget{kReusedElements};
    ZAMLightXmlElement _Root;
};
