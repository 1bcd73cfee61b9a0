// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressFontValues.h"

#include "prepress/style/ZAMPrepressCssTokenizer.h"

#include <algorithm>
#include <cmath>

namespace {

using Result = ZAMPrepressValues::Result;
using Bases = ZAMPrepressValues::Bases;
using Type = ZAMPrepressCssTokenType;

struct Size {
    std::string_view keyword;
    double size;           ///< in user units, or
    bool isFactor = false; ///< a multiple of the parent's size
};

// CSS Fonts 4, 2.5: medium is 16 units; one step up or down is a factor of 1.2.
constexpr Size kSizes[] = {
    {"xx-small", 9.6},
    {"x-small", 12.0},
    {"small", 16.0 * 8.0 / 9.0},
    {"medium", 16.0},
    {"large", 19.2},
    {"x-large", 24.0},
    {"xx-large", 32.0},
    {"xxx-large", 48.0},
    {"larger", 1.2, true},
    {"smaller", 1.0 / 1.2, true},
};

constexpr std::string_view kGenericFamilies[] = {"serif",     "sans-serif", "cursive",       "fantasy",     "monospace",
                                                 "system-ui", "ui-serif",   "ui-sans-serif", "ui-monospace"};

struct Decoration {
    std::string_view name;
    bool isDrawn = false;
};

// Lengths whose percentages count against the font's size.
std::optional<double> ReadFontLength(std::string_view text, const Bases& bases) {
    return ZAMPrepressReadLength(text, {bases.fontSize, bases.fontSize});
}

// CSS Fonts 4, 2.2.1.
int GetBolder(int weight) {
    return weight < 350 ? 400 : weight < 550 ? 700 : std::max(weight, 900);
}

int GetLighter(int weight) {
    return weight < 550 ? std::min(weight, 100) : weight < 750 ? 400 : 700;
}

std::string Quote(std::string_view name) {
    const char quote = name.find('\'') == std::string_view::npos ? '\'' : '"';
    return quote + std::string(name) + quote;
}

// One name of a list: a string, or words. Nothing when there is neither.
Result ReadFamily(ZAMPrepressCssTokenizer& tokens) {
    tokens.SkipBlanks();
    if (tokens.Peek().type == Type::String) {
        const std::string name(tokens.Next().text);
        tokens.SkipBlanks();
        return Quote(name);
    }
    std::string name;
    for (; tokens.Peek().type == Type::Ident; tokens.SkipBlanks()) {
        name.append(name.empty() ? "" : " ").append(tokens.Next().text);
    }
    const auto matches = [&](std::string_view generic) { return ZAMTextMatches(name, generic); };
    if (name.empty() || std::ranges::any_of(kGenericFamilies, matches)) {
        return name.empty() ? std::nullopt : Result(name);
    }
    return Quote(name);
}

} // namespace

Result ZAMPrepressValues::ComputeFontSize(std::string_view value, const Bases& bases) {
    for (const Size& each : kSizes) {
        if (IsWord(value, each.keyword)) {
            return ZAMPrepressNumberText(each.size * (each.isFactor ? bases.fontSize : 1.0));
        }
    }
    const auto length = ReadFontLength(value, bases);
    return length && *length >= 0.0 ? Result(ZAMPrepressNumberText(*length)) : std::nullopt;
}

Result ZAMPrepressValues::ComputeFontWeight(std::string_view value, const Bases& bases) {
    static constexpr Keyword kKeywords[] = {{"normal", "400"}, {"bold", "700"}};
    if (Result named = ComputeKeyword<kKeywords>(value, bases)) {
        return named;
    }
    if (IsWord(value, "bolder")) {
        return std::to_string(GetBolder(bases.parentWeight));
    }
    if (IsWord(value, "lighter")) {
        return std::to_string(GetLighter(bases.parentWeight));
    }
    const auto number = ZAMPrepressReadNumber(value);
    if (!number || *number < 1.0 || *number > 1000.0) {
        return std::nullopt;
    }
    return std::to_string(std::clamp(std::lround(*number / 100.0), 1L, 9L) * 100);
}

Result ZAMPrepressValues::ComputeFontFamily(std::string_view value, const Bases& /*bases*/) {
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(value, texts);
    std::string list;
    do {
        const Result name = ReadFamily(tokens);
        if (!name) {
            return std::nullopt;
        }
        list.append(list.empty() ? "" : ", ").append(*name);
    } while (tokens.Eat(','));
    return tokens.Peek().type == Type::End ? Result(list) : std::nullopt;
}

Result ZAMPrepressValues::ComputeSpacing(std::string_view value, const Bases& bases) {
    if (IsWord(value, "normal")) {
        return "0";
    }
    const auto length = ReadFontLength(value, bases);
    return length ? Result(ZAMPrepressNumberText(*length)) : std::nullopt;
}

// Style, colour and thickness of the lines are left out, for printed lines have those of the text.
Result ZAMPrepressValues::ComputeDecoration(std::string_view value, const Bases& /*bases*/) {
    Decoration decorations[] = {{"underline"}, {"overline"}, {"line-through"}};
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(value, texts);
    for (; tokens.Peek().type != Type::End; tokens.Next()) {
        for (Decoration& decoration : decorations) {
            decoration.isDrawn = decoration.isDrawn || tokens.Peek().IsIdent(decoration.name);
        }
    }
    std::string drawn;
    for (const Decoration& decoration : decorations) {
        if (decoration.isDrawn) {
            drawn.append(drawn.empty() ? "" : " ").append(decoration.name);
        }
    }
    return drawn.empty() ? "none" : drawn;
}

Result ZAMPrepressValues::ComputeBaselineShift(std::string_view value, const Bases& bases) {
    static constexpr Keyword kKeywords[] = {{"baseline"}, {"sub"}, {"super"}};
    if (Result named = ComputeKeyword<kKeywords>(value, bases)) {
        return named;
    }
    const auto length = ReadFontLength(value, bases);
    return length ? Result(*length == 0.0 ? "baseline" : ZAMPrepressNumberText(*length)) : std::nullopt;
}
