// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

#include <string_view>
#include <unordered_map>

/// The elements of a tree by their ids, as the tree stood when the index was made. Of elements with the same id the
/// first one counts.
class ZAMPrepressIds {
public:
    explicit ZAMPrepressIds(ZAMPrepressTree& tree);

    /// Null when there is no such element.
    [[nodiscard]] ZAMPrepressElement* Find(std::string_view id) const;
    /// What a link to the document itself ("#id", blanks around it ignored) refers to; null for any other text.
    [[nodiscard]] ZAMPrepressElement* FindLink(std::string_view link) const;
    /// What the "url(#id)" at the start of a property's value refers to; null for any other text.
    [[nodiscard]] ZAMPrepressElement* FindUrl(std::string_view value) const;

    /// The id of a text that starts with "url(#id)", quoted or not; empty for any other text.
    [[nodiscard]] static std::string_view IdOfUrl(std::string_view value);

    /// An id that no element has: the stem and a number. It is kept by the tree and never given twice.
    std::string_view NewId(std::string_view stem);

private:
    void Add(ZAMPrepressElement& element);

    ZAMPrepressTree& _Tree;
    std::unordered_map<std::string_view, ZAMPrepressElement*> _Elements;
    std::size_t _NewIds = 0;
};
