// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressSelector.h"

#include "framework/base/ZAMTextCompare.h"
#include "prepress/style/ZAMPrepressCssEscapes.h"

#include <algorithm>

namespace {

using Compound = ZAMPrepressCompound;

bool IsSame(std::string_view left, std::string_view right, bool ignoresCase) {
    return ignoresCase ? ZAMTextMatches(left, right) : left == right;
}

bool HasWord(std::string_view text, std::string_view word, bool ignoresCase) {
    while (!text.empty()) {
        const auto* const blank = std::ranges::find_if(text, ZAMPrepressCss::IsBlank);
        const auto end = static_cast<std::size_t>(blank - text.begin());
        if (end != 0 && IsSame(text.substr(0, end), word, ignoresCase)) {
            return true;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return false;
}

bool Contains(std::string_view text, std::string_view part, bool ignoresCase) {
    if (!ignoresCase) {
        return text.find(part) != std::string_view::npos;
    }
    return ZAMFoldText(text).find(ZAMFoldText(part)) != std::string::npos;
}

// "en" is the language of "en-GB", too.
bool IsLanguage(std::string_view language, std::string_view range) {
    return !range.empty() && IsSame(language.substr(0, range.size()), range, true) &&
           (language.size() == range.size() || language[range.size()] == '-');
}

} // namespace

bool Compound::AttributeTest::Matches(const ZAMPrepressElement& element) const {
    const auto found = element.Find(name);
    if (!found || operation == '\0') {
        return found.has_value();
    }
    const std::string_view text = *found;
    switch (operation) {
    case '=':
        return IsSame(text, value, ignoresCase);
    case '~':
        return HasWord(text, value, ignoresCase);
    case '|':
        return IsSame(text.substr(0, value.size()), value, ignoresCase) &&
               (text.size() == value.size() || text[value.size()] == '-');
    case '^':
        return !value.empty() && IsSame(text.substr(0, value.size()), value, ignoresCase);
    case '$':
        return !value.empty() && text.size() >= value.size() &&
               IsSame(text.substr(text.size() - value.size()), value, ignoresCase);
    default:
        return !value.empty() && Contains(text, value, ignoresCase);
    }
}

bool Compound::PositionTest::Matches(const ZAMPrepressSubject& subject) const {
    const ZAMPrepressPlace& place = isOfType ? subject.typePlace : subject.place;
    const std::size_t position = isFromEnd ? place.count - place.index + 1 : place.index;
    const long long distance = static_cast<long long>(position) - offset;
    return step == 0 ? distance == 0 : distance % step == 0 && distance / step >= 0;
}

bool Compound::Matches(const ZAMPrepressSubject& subject) const {
    const ZAMPrepressElement& element = *subject.element;
    const auto hasClass = [&](std::string_view name) { return std::ranges::binary_search(subject.classes, name); };
    const auto isIn = [&](std::string_view range) { return IsLanguage(subject.language, range); };
    return !isNever && (tag.empty() || element.name == tag) && (id.empty() || element.Get("id") == id) &&
           (!isRoot || element.parent == nullptr) && (!isLink || (element.name == "a" && element.Has("xlink:href"))) &&
           (!isEmpty || element.children.empty()) && std::ranges::all_of(classes, hasClass) &&
           std::ranges::all_of(attributes, [&](const AttributeTest& test) { return test.Matches(element); }) &&
           std::ranges::all_of(positions, [&](const PositionTest& test) { return test.Matches(subject); }) &&
           std::ranges::all_of(languages, [&](const auto& ranges) { return std::ranges::any_of(ranges, isIn); }) &&
           std::ranges::none_of(exclusions, [&](const Compound& each) { return each.Matches(subject); });
}

std::size_t Compound::CountTests() const {
    std::size_t count = classes.size() + attributes.size() + positions.size();
    for (const auto& ranges : languages) {
        count += ranges.size();
    }
    for (const Compound& exclusion : exclusions) {
        count += 1 + exclusion.CountTests();
    }
    return count;
}

bool Compound::AsksForType() const {
    return std::ranges::any_of(positions, &PositionTest::isOfType) ||
           std::ranges::any_of(exclusions, &Compound::AsksForType);
}
