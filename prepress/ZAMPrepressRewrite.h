// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

#include <span>
#include <string_view>

/// One rewrite of a document.
struct ZAMPrepressRewrite {
    std::string_view name;
    /// Whether the element gives the rewrite something to do. Asked of each element of the source, so it is quick.
    bool (*concerns)(const ZAMLightXmlElementItf& element);
    void (*rewrite)(ZAMPrepressTree& tree);
    /// What it leaves may concern those behind it, though the source does not.
    bool isFollowed = true;
    /// It relies on leaves that bear their own style, as the rewrite of that leaves them.
    bool needsStyle = false;
};

inline constexpr std::string_view kZAMPrepressStyleRewrite = "style";

/// All rewrites, in the order in which they are done: each may rely on those before it.
[[nodiscard]] std::span<const ZAMPrepressRewrite> ZAMPrepressGetRewrites();
