// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMLimits.h"

#include <cstddef>

/// Keeps a small document from becoming a huge model. While a budget lives it is that of its thread: copies of elements
/// and elements that are attached a second time cost what it takes to draw them, and decoded pictures cost their
/// pixels. What a document spells out is free; it costs what the document costs.
///
/// A budget that does not suffice is spent: from then on ZAMNew gives null on its thread, so that whoever builds does
/// what it does when memory is out. Nothing is given back. Without a budget nothing is limited.
class ZAM_EXPORT ZAMAllocationBudget {
public:
    /// Becomes the budget of the thread until its destructor puts back the one before.
    explicit ZAMAllocationBudget(std::size_t elements = ZAMLimits::kReusedElements,
                                 std::size_t pathCommands = ZAMLimits::kPathCommands);
    ZAMAllocationBudget(const ZAMAllocationBudget&) = delete;
    ZAMAllocationBudget& operator=(const ZAMAllocationBudget&) = delete;
    ~ZAMAllocationBudget();

    /// The thread's budget, or null.
    [[nodiscard]] static ZAMAllocationBudget* GetCurrent() noexcept;

    // These speak to the thread's budget, if there is one.

    /// A document of so many bytes is read: the larger it is, the more it may reuse. Whoever sets up a budget says so,
    /// once for each document.
    static void Earn(std::size_t bytes) noexcept;
    /// Takes what reused elements cost. False when the budget did not suffice, now or before.
    [[nodiscard]] static bool Spend(std::size_t elements) noexcept;
    /// Takes the pixels of a picture that is to be decoded. False when so many are not left; that spends nothing.
    [[nodiscard]] static bool SpendPixels(std::size_t pixels) noexcept;
    /// How many commands, and how many points, a path may have.
    [[nodiscard]] static std::size_t GetMostPathCommands() noexcept;
    /// A path has more: that spends the budget.
    static void EndLongPath() noexcept;
    /// What reused elements may still cost; the largest number when nothing is limited.
    [[nodiscard]] static std::size_t GetLeft() noexcept;
    [[nodiscard]] static bool IsCurrentSpent() noexcept;

    [[nodiscard]] bool IsSpent() const noexcept { return _IsSpent; }
    /// It was spent on a path that is too long.
    [[nodiscard]] bool HasLongPath() const noexcept { return _HasLongPath; }

private:
    ZAMAllocationBudget* _Before;
    std::size_t _Elements;
    std::size_t _Pixels = ZAMLimits::kPicturePixelsOfAll;
    std::size_t _PathCommands;
    bool _IsSpent = false;
    bool _HasLongPath = false;
};
