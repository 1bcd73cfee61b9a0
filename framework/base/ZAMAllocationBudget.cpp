// SPDX-License-Identifier: MIT
#include "framework/base/ZAMAllocationBudget.h"

#include <limits>
#include <utility>

namespace {

thread_local ZAMAllocationBudget* current = nullptr;

} // namespace

ZAMAllocationBudget::ZAMAllocationBudget(std::size_t elements, std::size_t pathCommands)
    : _Before(std::exchange(current, this)), _Elements(elements), _PathCommands(pathCommands) {}

ZAMAllocationBudget::~ZAMAllocationBudget() {
    current = _Before;
}

ZAMAllocationBudget* ZAMAllocationBudget::GetCurrent() noexcept {
    return current;
}

void ZAMAllocationBudget::Earn(std::size_t bytes) noexcept {
    const std::size_t elements = bytes / ZAMLimits::kBytesForEachReused;
    if (current != nullptr && current->_Elements <= std::numeric_limits<std::size_t>::max() - elements) {
        current->_Elements += elements;
    }
}

bool ZAMAllocationBudget::Spend(std::size_t elements) noexcept {
    if (current == nullptr) {
        return true;
    }
    if (current->_IsSpent || elements > current->_Elements) {
        current->_IsSpent = true;
        return false;
    }
    current->_Elements -= elements;
    return true;
}

bool ZAMAllocationBudget::SpendPixels(std::size_t pixels) noexcept {
    if (current == nullptr) {
        return true;
    }
    if (pixels > current->_Pixels) {
        return false;
    }
    current->_Pixels -= pixels;
    return true;
}

std::size_t ZAMAllocationBudget::GetMostPathCommands() noexcept {
    return current == nullptr ? std::numeric_limits<std::size_t>::max() : current->_PathCommands;
}

void ZAMAllocationBudget::EndLongPath() noexcept {
    if (current != nullptr) {
        current->_IsSpent = true;
        current->_HasLongPath = true;
    }
}

std::size_t ZAMAllocationBudget::GetLeft() noexcept {
    if (current == nullptr) {
        return std::numeric_limits<std::size_t>::max();
    }
    return current->_IsSpent ? 0 : current->_Elements;
}

bool ZAMAllocationBudget::IsCurrentSpent() noexcept {
    return current != nullptr && current->_IsSpent;
}
