// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtChildren.h"

#include <algorithm>

namespace {

// True when the subtree neither holds `forbidden` nor is higher than `height`: one walk finds both.
bool IsFit(const ZAMPrtGraphicPrimitiveElt& element, const ZAMPrtGraphicPrimitiveElt& forbidden, int height) {
    if (&element == &forbidden || height < 1) {
        return false;
    }
    return std::ranges::all_of(element.GetChildren(),
                               [&](const auto& child) { return IsFit(*child, forbidden, height - 1); });
}

} // namespace

void ZAMPrtChildren::Add(const ZAMPrtGraphicPrimitiveElt& owner, ZAMPrtGraphicPrimitiveElt* child) {
    if (child != nullptr && IsFit(*child, owner, kZAMPrtMaximumHeight)) {
        _Children.push_back(ZAMRef<ZAMPrtGraphicPrimitiveElt>::Share(child));
    }
}

void ZAMPrtChildren::Remove(const ZAMPrtGraphicPrimitiveElt* child) {
    const auto found = std::ranges::find_if(_Children, [child](const auto& each) { return each.Get() == child; });
    if (found != _Children.end()) {
        _Children.erase(found);
    }
}

void ZAMPrtChildren::Own() {
    std::vector<ZAMRef<ZAMPrtGraphicPrimitiveElt>> copies;
    copies.reserve(_Children.size());
    for (const auto& child : _Children) {
        if (auto copy = child->Duplicate()) {
            copies.push_back(std::move(copy));
        }
    }
    _Children = std::move(copies);
}
