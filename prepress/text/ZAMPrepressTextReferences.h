// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressPathLine.h"

#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>

/// What the elements of texts refer to. The document's ids are looked through with the first question, for few texts
/// refer to anything.
class ZAMPrepressTextReferences {
public:
    explicit ZAMPrepressTextReferences(ZAMPrepressTree& tree) : _Tree(tree) {}

    struct Path {
        ZAMPrepressPathLine line;
        double scale; ///< from the author's own measure of the path, if there is one, to user units
    };

    /// Null when it refers to nothing in the document.
    [[nodiscard]] const ZAMPrepressElement* FindTarget(const ZAMPrepressElement& element);
    /// What a textPath element refers to, read once; null when that is nothing that leads anywhere.
    [[nodiscard]] const Path* FindPath(const ZAMPrepressElement& textPath);

private:
    ZAMPrepressTree& _Tree;
    std::optional<ZAMPrepressIds> _Ids;
    std::unordered_map<const ZAMPrepressElement*, std::unique_ptr<const Path>> _Paths;
};
