// SPDX-License-Identifier: MIT
// The XML layer: whatever could be read is there in full.
#include "framework/base/ZAMLimits.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "fuzz/Documents.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Walk(const ZAMLightXmlElement& element, int depth) {
    if (depth > ZAMLimits::kElementDepth || element.GetAttributeCount() > ZAMLimits::kAttributesOfElement) {
        std::abort();
    }
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        const auto attribute = element.GetAttributeAt(i);
        if (attribute.name.empty() || attribute.value.size() < element.GetAttribute(attribute.name).size()) {
            std::abort(); // a document with an attribute twice is none
        }
    }
    static_cast<void>(element.GetTextContent());
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        Walk(element.GetNextChild(position), depth + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedDocument document(data, size);
    Walk(document.GetRoot(), 1);
    return 0;
}
