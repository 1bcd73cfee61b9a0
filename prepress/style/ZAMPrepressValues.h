// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMTextCompare.h"
#include "prepress/style/ZAMPrepressCssEscapes.h"
#include "prepress/style/ZAMPrepressProperties.h"

/// How values are computed, by kind. Each gives nothing for a text that is no such value.
namespace ZAMPrepressValues {

using Result = std::optional<std::string>;
using Bases = ZAMPrepressValueBases;

struct Keyword {
    std::string_view text;
    std::string_view computed = {}; ///< empty: the keyword itself
};

/// Whether the value is the keyword, letter case and blanks around it aside.
[[nodiscard]] inline bool IsWord(std::string_view value, std::string_view keyword) {
    const std::string_view word = ZAMPrepressCss::Trim(value);
    return word.size() == keyword.size() && ZAMTextMatches(word, keyword);
}

template <const auto& kKeywords> Result ComputeKeyword(std::string_view value, const Bases& /*bases*/) {
    for (const Keyword& keyword : kKeywords) {
        if (IsWord(value, keyword.text)) {
            return std::string(keyword.computed.empty() ? keyword.text : keyword.computed);
        }
    }
    return std::nullopt;
}

/// From 0 to 1; percentages become numbers.
Result ComputeOpacity(std::string_view value, const Bases& bases);
/// A number of user units.
Result ComputeLength(std::string_view value, const Bases& bases);
/// The same, but not negative.
Result ComputeSize(std::string_view value, const Bases& bases);
Result ComputeMiterLimit(std::string_view value, const Bases& bases);
/// "none", or numbers of user units with a blank between them, not all of them 0.
Result ComputeDashes(std::string_view value, const Bases& bases);
/// "normal", or "stroke" when outlines come first.
Result ComputePaintOrder(std::string_view value, const Bases& bases);
/// "none" or "url(#id)". What refers to another document is none.
Result ComputeReference(std::string_view value, const Bases& bases);

/// Paints stay as they are written, for what they refer to depends on the element that is painted.
Result ComputePaint(std::string_view value, const Bases& bases);
/// A colour that has no relation to another, or "currentColor".
Result ComputeColour(std::string_view value, const Bases& bases);
/// A colour as it is written.
Result ComputeStopColour(std::string_view value, const Bases& bases);

} // namespace ZAMPrepressValues
