// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtChildren.h"

#include <algorithm>

namespace {

constexpr std::size_t kFewChildren = 3; // fill the smallest block that an allocator hands out

// Walks a subtree that is to become a child. Shared parts are walked as often as they would be drawn, so the walk ends
// when the cost exceeds what the budget has left.
class Inspection {
public:
    Inspection(const ZAMPrtGraphicPrimitiveElt& forbidden, bool isReuse) : _Forbidden(forbidden), _IsReuse(isReuse) {}

    // True when the subtree neither holds the forbidden element nor is higher than `height`.
    bool Passes(const ZAMPrtGraphicPrimitiveElt& element, int height) {
        if (&element == &_Forbidden || height < 1) {
            return false;
        }
        if (_IsReuse && (_Cost += element.GetCost()) > _Left) {
            return true;
        }
        return std::ranges::all_of(element.GetChildren(),
                                   [&](const auto& child) { return Passes(*child, height - 1); });
    }

    [[nodiscard]] std::size_t GetCost() const { return _Cost; }

private:
    const ZAMPrtGraphicPrimitiveElt& _Forbidden;
    bool _IsReuse;
    std::size_t _Cost = 0;
    std::size_t _Left = ZAMAllocationBudget::GetLeft();
};

} // namespace

void ZAMPrtChildren::Add(const ZAMPrtGraphicPrimitiveElt& owner, ZAMPrtGraphicPrimitiveElt* child) {
    if (child == nullptr) {
        return;
    }
    Inspection inspection(owner, child->_WasAttached);
    if (inspection.Passes(*child, ZAMLimits::kModelHeight) && ZAMAllocationBudget::Spend(inspection.GetCost())) {
        if (_Children.capacity() == 0) {
            _Children.reserve(kFewChildren);
        }
        _Children.push_back(ZAMRef<ZAMPrtGraphicPrimitiveElt>::Share(child));
        child->_WasAttached = true;
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
            copy->_WasAttached = true;
            copies.push_back(std::move(copy));
        }
    }
    _Children = std::move(copies);
}
