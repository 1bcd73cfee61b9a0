// SPDX-License-Identifier: MIT
#pragma once

#include "framework/lightxml/ZAMLightXmlElement.h"

#include <list>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

/// Where the texts of a tree live: those of its source documents, and those that rewrites make. The documents made of
/// the tree hold it as well, so that no text is copied on its way.
class ZAMPrepressTextStore {
public:
    /// The text, held as long as this lives.
    std::string_view Keep(std::string_view text);
    std::string_view Keep(std::string&& text);

    /// Keeps the document alive that the element is of, and so its texts.
    void KeepDocumentOf(const ZAMLightXmlElementItf& element) { _Documents.emplace_back().Assign(element); }

    /// Where readers of style sheets keep what they have to spell out.
    [[nodiscard]] std::list<std::string>& GetLong() { return _Long; }

private:
    std::vector<ZAMLightXmlElement> _Documents;
    std::pmr::monotonic_buffer_resource _Short;
    std::list<std::string> _Long;
};
