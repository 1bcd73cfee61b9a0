// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtAllElements.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace {

// How many allocations of this thread still succeed; below 0 all do.
thread_local int allocationsLeft = -1;

} // namespace

// Kept out of line: g++ sees a mismatch when it inlines one of these without the other.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (allocationsLeft == 0) {
        throw std::bad_alloc();
    }
    allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
    void* const memory = std::malloc(size == 0 ? 1 : size);
    return memory != nullptr ? memory : throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

// Whichever allocation fails, a copy is null or whole but for children that could not be had; nothing leaks or throws.
TEST(AllocationFailureTest, ADuplicateIsNullWhenMemoryIsOut) {
    const auto group = ZAMNew<ZAMPrtGroupElt>();
    const auto child = ZAMNew<ZAMPrtCircleElt>();
    child->SetTitle("a title that is too long for the string's own place");
    group->SetDescription("a description that is too long as well for such a place");
    group->AddChild(child.Get());
    group->AddChild(child.Get());
    int nulls = 0;
    std::size_t copied = 0;
    for (int budget = 0; budget < 100 && copied < 2; ++budget) {
        allocationsLeft = budget;
        const auto copy = group->Duplicate();
        allocationsLeft = -1;
        nulls += copy ? 0 : 1;
        copied = copy ? copy->GetChildren().size() : 0;
        EXPECT_EQ(child->GetReferenceCount(), 3U);
    }
    EXPECT_EQ(copied, 2U);
    EXPECT_GE(nulls, 4); // the group, its texts, its list of children
}
