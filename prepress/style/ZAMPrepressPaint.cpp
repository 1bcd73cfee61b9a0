// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressPaint.h"

#include "prepress/style/ZAMPrepressCssEscapes.h"

namespace {

using Kind = ZAMPrepressPaint::Kind;
using Type = ZAMPrepressCssTokenType;

struct Keyword {
    std::string_view name;
    Kind kind;
};

constexpr Keyword kKeywords[] = {
    {"none", Kind::None},
    {"currentColor", Kind::CurrentColour},
    {"context-fill", Kind::ContextFill},
    {"context-stroke", Kind::ContextStroke},
};

// A keyword or a colour; what follows a colour is one for another colour space, which no printer here has.
bool ReadPlain(ZAMPrepressCssTokenizer& tokens, ZAMPrepressPaint& paint) {
    for (const Keyword& keyword : kKeywords) {
        if (tokens.Peek().IsIdent(keyword.name)) {
            tokens.Next();
            paint.kind = keyword.kind;
            return true;
        }
    }
    const auto colour = ZAMPrepressColour::Parse(tokens);
    paint.kind = Kind::Colour;
    paint.colour = colour.value_or(ZAMPrepressColour());
    return colour.has_value();
}

bool ReadEnd(ZAMPrepressCssTokenizer& tokens) {
    tokens.SkipBlanks();
    if (tokens.Peek().IsFunction("icc-color")) {
        tokens.SkipComponent();
        tokens.SkipBlanks();
    }
    return tokens.Peek().type == Type::End;
}

} // namespace

std::string_view ZAMPrepressGetFragment(std::string_view address) {
    address = ZAMPrepressCss::Trim(address);
    return address.starts_with('#') ? address.substr(1) : std::string_view();
}

std::optional<std::string_view> ZAMPrepressReadUrl(ZAMPrepressCssTokenizer& tokens) {
    const ZAMPrepressCssToken token = tokens.Peek();
    if (token.type == Type::Url) {
        tokens.Next();
        return token.text;
    }
    if (!token.IsFunction("url")) {
        return std::nullopt;
    }
    tokens.Next();
    tokens.SkipBlanks();
    const ZAMPrepressCssToken address = tokens.Next();
    tokens.TakeBlock(')');
    return address.type == Type::String ? std::optional(address.text) : std::nullopt;
}

std::optional<ZAMPrepressPaint> ZAMPrepressPaint::Parse(std::string_view text) {
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(text, texts);
    ZAMPrepressPaint paint;
    tokens.SkipBlanks();
    if (const auto address = ZAMPrepressReadUrl(tokens)) {
        paint.reference = ZAMPrepressGetFragment(*address);
        tokens.SkipBlanks();
        if (tokens.Peek().type == Type::End) {
            return paint;
        }
    }
    return ReadPlain(tokens, paint) && ReadEnd(tokens) ? std::optional(paint) : std::nullopt;
}
