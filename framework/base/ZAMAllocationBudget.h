// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <cstddef>

/// Keeps a small document from becoming a huge model. While a budget lives it is that of its thread: copies of elements
/// and elements that are attached a second time cost what it takes to draw them, and decoded pictures cost their
/// pixels. What a document spells out is free; it costs what the document costs.
///
/// A budget that does not suffice is spent: from then on ZAMNew gives null on its thread, so that whoever builds does
/// what it does when memory is out. Nothing is given back. Without a budget nothing is limited.
class ZAM_EXPORT ZAMAllocationBudget {
public:
    /// Enough for any drawing that people make, and some seconds of work.
    static constexpr std::size_t kElements = 1'000'000;
    /// What each element that is read adds, so that large documents may reuse more.
    static constexpr std::size_t kElementsForEachRead = 10;
    /// 1 GiB of pictures.
    static constexpr std::size_t kPixels = std::size_t{1} << 28U;

    /// Becomes the budget of the thread until its destructor puts back the one before.
    explicit ZAMAllocationBudget(std::size_t elements = kElements);
    ZAMAllocationBudget(const ZAMAllocationBudget&) = delete;
    ZAMAllocationBudget& operator=(const ZAMAllocationBudget&) = delete;
    ~ZAMAllocationBudget();

    /// The thread's budget, or null.
    [[nodiscard]] static ZAMAllocationBudget* GetCurrent() noexcept;

    // These speak to the thread's budget, if there is one.

    /// An element of the document was read.
    static void Earn() noexcept;
    /// Takes what reused elements cost. False when the budget did not suffice, now or before.
    [[nodiscard]] static bool Spend(std::size_t elements) noexcept;
    /// Takes the pixels of a picture that is to be decoded. False when so many are not left; that spends nothing.
    [[nodiscard]] static bool SpendPixels(std::size_t pixels) noexcept;
    /// What reused elements may still cost; the largest number when nothing is limited.
    [[nodiscard]] static std::size_t GetLeft() noexcept;
    [[nodiscard]] static bool IsCurrentSpent() noexcept;

    [[nodiscard]] bool IsSpent() const noexcept { return _IsSpent; }

private:
    ZAMAllocationBudget* _Before;
    std::size_t _Elements;
    std::size_t _Pixels = kPixels;
    bool _IsSpent = false;
};
