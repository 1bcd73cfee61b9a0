// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressMedia.h"

#include "prepress/style/ZAMPrepressCssEscapes.h"
#include "prepress/style/ZAMPrepressCssTokenizer.h"

#include <algorithm>

namespace {

using Type = ZAMPrepressCssTokenType;

// What paper has. Its size is not known to sheets, so that questions for it do not hold.
constexpr std::string_view kFeatures[] = {"color", "prefers-color-scheme:light", "scripting:none", "update:none"};
constexpr std::string_view kMedia[] = {"all", "print"};

bool HasFeature(std::string_view condition) {
    std::string plain(condition);
    std::erase_if(plain, ZAMPrepressCss::IsBlank);
    const auto matches = [&](std::string_view feature) { return ZAMTextMatches(feature, plain); };
    return std::ranges::any_of(kFeatures, matches);
}

bool IsPaper(std::string_view medium) {
    const auto matches = [&](std::string_view name) { return ZAMTextMatches(name, medium); };
    return std::ranges::any_of(kMedia, matches);
}

// One query, up to a comma: a medium and features that must all be there.
bool ReadQuery(ZAMPrepressCssTokenizer& tokens) {
    bool isNegated = false;
    bool holds = true;
    for (; tokens.Peek().type != Type::End && !tokens.Peek().Is(','); tokens.SkipBlanks()) {
        const ZAMPrepressCssToken token = tokens.Next();
        if (token.IsIdent("not")) {
            isNegated = !isNegated;
        } else if (token.Is('(')) {
            holds = HasFeature(tokens.TakeBlock(')')) && holds;
        } else if (token.type == Type::Ident && !token.IsIdent("only") && !token.IsIdent("and")) {
            holds = IsPaper(token.text) && holds;
        } else if (token.type != Type::Blank && token.type != Type::Ident) {
            return false;
        }
    }
    return holds != isNegated;
}

} // namespace

bool ZAMPrepressMediaHolds(std::string_view queries) {
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(queries, texts);
    tokens.SkipBlanks();
    if (tokens.Peek().type == Type::End) {
        return true;
    }
    for (;;) {
        if (ReadQuery(tokens)) {
            return true;
        }
        while (tokens.Peek().type != Type::End && !tokens.Peek().Is(',')) {
            tokens.SkipComponent();
        }
        if (!tokens.Eat(',')) {
            return false;
        }
    }
}
