// SPDX-License-Identifier: MIT
#include "prepress/ZAMPrepress.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "prepress/ZAMPrepressRewrite.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace {

// A set of rewrites, a bit each.
using Rewrites = std::uint32_t;

constexpr Rewrites BitOf(std::size_t rewrite) {
    return Rewrites{1} << rewrite;
}

// Those that an element, or one below it, gives something to do; those that have it already are not asked again.
void FindConcerned(const ZAMLightXmlElementItf& element, Rewrites& concerned) {
    const auto rewrites = ZAMPrepressGetRewrites();
    for (std::size_t i = 0; i < rewrites.size(); ++i) {
        if ((concerned & BitOf(i)) == 0 && rewrites[i].concerns(element)) {
            concerned |= BitOf(i);
        }
    }
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        FindConcerned(element.GetNextChild(position), concerned);
    }
}

// Those that are to be done: the ones that the source concerns, what they rely on, and what they may leave to do.
Rewrites FindNeeded(Rewrites needed) {
    const auto rewrites = ZAMPrepressGetRewrites();
    bool isFollowed = false;
    for (std::size_t i = 0; i < rewrites.size(); ++i) {
        const bool isStyle = rewrites[i].name == kZAMPrepressStyleRewrite;
        const bool isReliedOn = isStyle && std::ranges::any_of(rewrites, [&](const ZAMPrepressRewrite& each) {
                                    const auto index = static_cast<std::size_t>(&each - rewrites.data());
                                    return each.needsStyle && (needed & BitOf(index)) != 0;
                                });
        needed |= isFollowed || isReliedOn ? BitOf(i) : 0;
        isFollowed = isFollowed || (rewrites[i].isFollowed && (needed & BitOf(i)) != 0);
    }
    return needed;
}

void Empty(ZAMPrepressTree& tree) {
    for (ZAMPrepressElement* drawing : tree.GetDrawings()) {
        drawing->children.clear();
    }
}

} // namespace

ZAMLightXmlElement ZAMPrepress::Prepare(const ZAMLightXmlElement& root, ZAMPrepressTileRenderer* renderer,
                                        std::string_view path) noexcept {
    try {
        Rewrites needed = 0;
        FindConcerned(root, needed);
        if (needed == 0) {
            return root;
        }
        needed = FindNeeded(needed);
        std::optional<ZAMAllocationBudget> budget;
        if (ZAMAllocationBudget::GetCurrent() == nullptr) {
            budget.emplace();
            ZAMAllocationBudget::Earn(root.GetDocumentSize());
        }
        ZAMPrepressTree tree(root);
        tree.SetTileRenderer(renderer);
        tree.SetPath(path);
        const auto rewrites = ZAMPrepressGetRewrites();
        for (std::size_t i = 0; i < rewrites.size(); ++i) {
            if ((needed & BitOf(i)) == 0) {
                continue;
            }
            rewrites[i].rewrite(tree);
            if (ZAMAllocationBudget::IsCurrentSpent()) {
                Empty(tree);
                break;
            }
        }
        return tree.ToDocument();
    } catch (...) { // memory
        return root;
    }
}
