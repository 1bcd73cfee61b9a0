// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressElement.h"

#include <cstdint>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where an element stands among others.
struct ZAMPrepressPlace {
    std::size_t index = 1; ///< from 1
    std::size_t count = 1; ///< of all of them, itself included
};

/// An element as selectors see it.
struct ZAMPrepressSubject {
    const ZAMPrepressElement* element = nullptr;
    std::vector<std::string_view> classes; ///< sorted, each once
    ZAMPrepressPlace place;                ///< among its parent's child elements
    ZAMPrepressPlace typePlace;            ///< among those of its name
    std::string_view language;             ///< of its text ("en-GB"), empty when nothing says it
};

/// A part of a selector without combinators: what one element must be.
struct ZAMPrepressCompound {
    struct AttributeTest {
        std::string_view name;
        std::string_view value;
        char operation = '\0'; ///< '=', or the sign before it (~ | ^ $ *); none asks only for the attribute
        bool ignoresCase = false;

        [[nodiscard]] bool Matches(const ZAMPrepressElement& element) const;
    };
    /// The element's index is step * n + offset for an n that is not negative.
    struct PositionTest {
        long long step = 0;
        long long offset = 1;
        bool isFromEnd = false;
        bool isOfType = false; ///< among the siblings of its name

        [[nodiscard]] bool Matches(const ZAMPrepressSubject& subject) const;
    };

    std::string_view source; ///< as written: the same text is the same compound
    std::string_view tag;    ///< empty for any
    std::string_view id;
    std::vector<std::string_view> classes;
    std::vector<AttributeTest> attributes;
    std::vector<PositionTest> positions;
    std::vector<std::vector<std::string_view>> languages; ///< of each list one must be that of the element
    std::vector<ZAMPrepressCompound> exclusions;          ///< what the element must not be
    bool isRoot = false;
    bool isLink = false;
    bool isEmpty = false;
    bool isNever = false; ///< asks for what print knows nothing of, as where the pointer is

    [[nodiscard]] bool Matches(const ZAMPrepressSubject& subject) const;
    /// How many things are asked for, one by one.
    [[nodiscard]] std::size_t CountTests() const;
    /// Whether a position among siblings of the same name is asked for.
    [[nodiscard]] bool AsksForType() const;
};

/// A selector (Selectors 3).
struct ZAMPrepressSelector {
    struct Step {
        char combinator = '\0'; ///< to the step before: blank, '>', '+', '~'; none for the first
        ZAMPrepressCompound compound;
    };
    std::vector<Step> steps; ///< from left to right, at least one
    /// Ids, then classes and the like, then names, 10 bits each.
    std::uint32_t specificity = 0;
};

/// Reads selectors with commas between them. Nothing when one of them is in error, for then none counts. Texts point
/// into `text` or into `texts`.
[[nodiscard]] std::optional<std::vector<ZAMPrepressSelector>> ZAMPrepressReadSelectors(std::string_view text,
                                                                                       std::list<std::string>& texts);
