// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressRules.h"

#include <span>
#include <unordered_set>
#include <vector>

/// Finds the rules for the elements of a tree, which are entered and left in document order. It goes from the left of
/// each selector to the right and never back: what the ancestors and the siblings before an element were is remembered
/// as states of the rules.
class ZAMPrepressRuleMatcher {
public:
    explicit ZAMPrepressRuleMatcher(const ZAMPrepressRules& rules);

    /// The states with declarations whose selectors hold for the element, valid until the next call. It is the last one
    /// entered that has not been left which is the element's parent.
    [[nodiscard]] std::span<const std::uint32_t> Enter(const ZAMPrepressSubject& subject);
    /// Of the element entered last.
    void Leave();

private:
    // States that steps may follow, of one element and of its children so far.
    struct Level {
        std::size_t openBefore = 0;           // how many states were open before the element
        std::vector<std::uint32_t> own;       // sorted
        std::vector<std::uint32_t> lastChild; // sorted
        std::unordered_set<std::uint32_t> children;
    };

    [[nodiscard]] bool Holds(const ZAMPrepressRules::State& state, const ZAMPrepressSubject& subject) const;
    /// False when there is not enough left, and then nothing is spent.
    bool Spend(std::size_t work);
    void Meet(const ZAMPrepressRules::File& file, const ZAMPrepressSubject& subject, std::vector<std::uint32_t>& own);
    void Test(std::span<const std::uint32_t> states, const ZAMPrepressSubject& subject,
              std::vector<std::uint32_t>& own);

    const ZAMPrepressRules& _Rules;
    std::vector<Level> _Levels;             // one more than elements are open
    std::vector<std::uint32_t> _OpenCounts; // of each state: the open elements that have it
    std::vector<std::uint32_t> _Open;       // the states that open elements have
    std::vector<std::uint32_t> _Matched;
    std::size_t _WorkLeft;
};
