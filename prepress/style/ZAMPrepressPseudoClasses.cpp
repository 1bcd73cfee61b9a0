// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressPseudoClasses.h"

#include "framework/base/ZAMTextCompare.h"
#include "prepress/style/ZAMPrepressCssTokenizer.h"
#include "prepress/style/ZAMPrepressPosition.h"

#include <algorithm>

namespace {

using Compound = ZAMPrepressCompound;
using Position = Compound::PositionTest;
using Type = ZAMPrepressCssTokenType;

constexpr Position kFirst{0, 1, false, false};
constexpr Position kLast{0, 1, true, false};
constexpr Position kFirstOfType{0, 1, false, true};
constexpr Position kLastOfType{0, 1, true, true};

template <bool Compound::*kFlag> void SetFlag(Compound& compound) {
    compound.*kFlag = true;
}

template <const Position&... kPositions> void AddPositions(Compound& compound) {
    (compound.positions.push_back(kPositions), ...);
}

struct Pseudo {
    std::string_view name;
    void (*apply)(Compound& compound);
};

constexpr Pseudo kPseudos[] = {
    {"root", SetFlag<&Compound::isRoot>},        {"link", SetFlag<&Compound::isLink>},
    {"any-link", SetFlag<&Compound::isLink>},    {"empty", SetFlag<&Compound::isEmpty>},
    {"first-child", AddPositions<kFirst>},       {"last-child", AddPositions<kLast>},
    {"only-child", AddPositions<kFirst, kLast>}, {"first-of-type", AddPositions<kFirstOfType>},
    {"last-of-type", AddPositions<kLastOfType>}, {"only-of-type", AddPositions<kFirstOfType, kLastOfType>},
};

// States that a person at a screen brings about.
constexpr std::string_view kNever[] = {
    "hover", "active", "focus", "visited", "target", "focus-within", "focus-visible", "checked", "disabled", "enabled",
};

struct Counting {
    std::string_view name;
    bool isFromEnd;
    bool isOfType;
};
constexpr Counting kCountings[] = {
    {"nth-child", false, false},
    {"nth-last-child", true, false},
    {"nth-of-type", false, true},
    {"nth-last-of-type", true, true},
};

auto IsNamed(std::string_view name) {
    return [name](std::string_view each) { return ZAMTextMatches(each, name); };
}

// Names or strings with commas between them.
bool ReadLanguages(std::string_view text, std::list<std::string>& texts, std::vector<std::string_view>& languages) {
    ZAMPrepressCssTokenizer tokens(text, texts);
    do {
        tokens.SkipBlanks();
        const ZAMPrepressCssToken language = tokens.Next();
        if (language.type != Type::Ident && language.type != Type::String) {
            return false;
        }
        languages.push_back(language.text);
        tokens.SkipBlanks();
    } while (tokens.Eat(','));
    return tokens.Peek().type == Type::End;
}

} // namespace

bool ZAMPrepressApplyPseudoClass(std::string_view name, Compound& compound) {
    if (std::ranges::any_of(kNever, IsNamed(name))) {
        compound.isNever = true;
        return true;
    }
    const auto* const found = std::ranges::find_if(kPseudos, IsNamed(name), &Pseudo::name);
    if (found == std::end(kPseudos)) {
        return false;
    }
    found->apply(compound);
    return true;
}

bool ZAMPrepressApplyPseudoClass(std::string_view name, std::string_view arguments, std::list<std::string>& texts,
                                 Compound& compound) {
    if (ZAMTextMatches(name, "lang")) {
        return ReadLanguages(arguments, texts, compound.languages.emplace_back());
    }
    const auto* const found = std::ranges::find_if(kCountings, IsNamed(name), &Counting::name);
    const auto position = found == std::end(kCountings) ? std::nullopt : ZAMPrepressReadPosition(arguments);
    if (!position) {
        return false;
    }
    compound.positions.push_back({position->step, position->offset, found->isFromEnd, found->isOfType});
    return true;
}
