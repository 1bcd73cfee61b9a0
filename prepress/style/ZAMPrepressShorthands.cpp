// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressShorthands.h"

#include "prepress/style/ZAMPrepressCssTokenizer.h"

#include <algorithm>
#include <span>

namespace {

using Property = ZAMPrepressProperty;
using Type = ZAMPrepressCssTokenType;
using Declarations = std::vector<std::pair<Property, std::string_view>>;

constexpr Property kFont[] = {Property::FontStyle,   Property::FontVariant, Property::FontWeight,
                              Property::FontStretch, Property::FontSize,    Property::FontFamily};
constexpr std::size_t kFontSizeIndex = 4;
constexpr std::size_t kFontFamilyIndex = 5;
constexpr Property kMarkers[] = {Property::MarkerStart, Property::MarkerMid, Property::MarkerEnd};
constexpr Property kDecoration[] = {Property::TextDecoration};

constexpr std::string_view kInitial = "initial";
constexpr std::string_view kSystemFonts[] = {"caption", "icon", "menu", "message-box", "small-caption", "status-bar"};

Declarations ForAll(std::span<const Property> properties, std::string_view value) {
    Declarations declarations;
    for (const Property property : properties) {
        declarations.emplace_back(property, value);
    }
    return declarations;
}

Declarations ExpandSame(std::span<const Property> properties, std::string_view value) {
    return ZAMPrepressIsValue(properties.front(), value) ? ForAll(properties, value) : Declarations();
}

// Style, variant, weight and stretch may come in any order before the size.
void ReadFontKeywords(ZAMPrepressCssTokenizer& tokens, Declarations& font) {
    for (;; tokens.Next()) {
        tokens.SkipBlanks();
        const std::string_view word = tokens.Peek().source;
        const auto takes = [&](const auto& each) { return ZAMPrepressIsValue(each.first, word); };
        const auto end = font.begin() + kFontSizeIndex;
        const auto taking = std::find_if(font.begin(), end, takes);
        if (taking == end) {
            return;
        }
        taking->second = word;
    }
}

Declarations ExpandFont(std::span<const Property> properties, std::string_view value) {
    const bool isSystemFont =
        std::ranges::any_of(kSystemFonts, [&](std::string_view name) { return ZAMTextMatches(name, value); });
    if (isSystemFont) {
        return ForAll(properties, kInitial);
    }
    if (ZAMPrepressReadWideKeyword(value) != ZAMPrepressWideKeyword::None) {
        return ForAll(properties, value);
    }
    Declarations font = ForAll(properties, kInitial);
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(value, texts);
    ReadFontKeywords(tokens, font);
    font[kFontSizeIndex].second = tokens.Next().source;
    tokens.SkipBlanks();
    if (tokens.Eat('/')) { // the height of lines
        tokens.SkipBlanks();
        tokens.SkipComponent();
        tokens.SkipBlanks();
    }
    font[kFontFamilyIndex].second = value.substr(static_cast<std::size_t>(tokens.Peek().source.data() - value.data()));
    const auto isValue = [](const auto& each) { return ZAMPrepressIsValue(each.first, each.second); };
    return std::ranges::all_of(font, isValue) ? font : Declarations();
}

struct Shorthand {
    std::string_view name;
    std::span<const Property> properties;
    Declarations (*expand)(std::span<const Property> properties, std::string_view value);
};

constexpr Shorthand kShorthands[] = {
    {"font", kFont, ExpandFont},
    {"marker", kMarkers, ExpandSame},
    {"text-decoration-line", kDecoration, ExpandSame},
};

} // namespace

Declarations ZAMPrepressExpandShorthand(std::string_view name, std::string_view value) {
    const auto* const found = std::ranges::find(kShorthands, name, &Shorthand::name);
    return found == std::end(kShorthands) ? Declarations() : found->expand(found->properties, value);
}
