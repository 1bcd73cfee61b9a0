// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressDeclarations.h"

#include "prepress/style/ZAMPrepressCssEscapes.h"
#include "prepress/style/ZAMPrepressCssTokenizer.h"
#include "prepress/style/ZAMPrepressShorthands.h"

#include <algorithm>

namespace {

using Declaration = ZAMPrepressDeclaration;
using Token = ZAMPrepressCssToken;
using Type = ZAMPrepressCssTokenType;

struct Value {
    std::string_view text;
    bool isImportant = false;
    bool isGood = true;
};

constexpr bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}

// In lower case, as nearly all names are written.
std::string_view ToLower(std::string_view name, std::string& lower) {
    if (std::ranges::none_of(name, IsUpper)) {
        return name;
    }
    lower = name;
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

// Comments would be in the way of those who read values without tokens.
std::string_view WithoutComments(std::string_view value, std::list<std::string>& texts) {
    if (value.find("/*") == std::string_view::npos) {
        return value;
    }
    std::string rest;
    for (ZAMPrepressCssTokenizer tokens(value, texts); tokens.Peek().type != Type::End;) {
        rest.append(tokens.Next().source);
    }
    return texts.emplace_back(std::move(rest));
}

// Up to a semicolon that is in no bracket, or to the end.
Value ReadValue(ZAMPrepressCssTokenizer& tokens, std::list<std::string>& texts) {
    Value value;
    const char* const begin = tokens.Peek().source.data();
    const char* mark = nullptr; // where the last "!" is
    while (tokens.Peek().type != Type::End && !tokens.Peek().Is(';')) {
        const Token& token = tokens.Peek();
        value.isGood = value.isGood && token.type != Type::BadString && token.type != Type::BadUrl;
        mark = token.Is('!') ? token.source.data() : mark;
        tokens.SkipComponent();
    }
    const char* const end = tokens.Peek().source.data();
    const auto getText = [&](const char* from, const char* to) {
        const std::string_view text(from, static_cast<std::size_t>(to - from));
        return ZAMPrepressCss::Trim(WithoutComments(text, texts));
    };
    value.text = getText(begin, mark == nullptr ? end : mark);
    if (mark != nullptr) {
        value.isImportant = ZAMTextMatches(getText(mark + 1, end), "important");
        value.isGood = value.isGood && value.isImportant;
    }
    return value;
}

void AddDeclaration(std::string_view name, const Value& value, std::vector<Declaration>& declarations) {
    if (name.starts_with("--")) {
        declarations.push_back({ZAMPrepressProperty::Custom, value.isImportant, name, value.text});
        return;
    }
    std::string lower;
    const std::string_view key = ToLower(name, lower);
    if (const ZAMPrepressPropertyRow* const row = ZAMPrepressFindProperty(key)) {
        if (ZAMPrepressHasVariables(value.text) || ZAMPrepressIsValue(row->property, value.text)) {
            declarations.push_back({row->property, value.isImportant, {}, value.text});
        }
        return;
    }
    for (const auto& [property, text] : ZAMPrepressExpandShorthand(key, value.text)) {
        declarations.push_back({property, value.isImportant, {}, text});
    }
}

void SkipAtRule(ZAMPrepressCssTokenizer& tokens) {
    while (tokens.Peek().type != Type::End && !tokens.Peek().Is(';') && !tokens.Peek().Is('{')) {
        tokens.SkipComponent();
    }
    tokens.SkipComponent();
}

// What is none goes on to the next semicolon as well.
void ReadDeclaration(ZAMPrepressCssTokenizer& tokens, std::list<std::string>& texts,
                     std::vector<Declaration>& declarations) {
    bool isDeclaration = tokens.Peek().type == Type::Ident;
    const std::string_view name = tokens.Peek().text;
    if (isDeclaration) {
        tokens.Next();
        tokens.SkipBlanks();
        isDeclaration = tokens.Eat(':');
    }
    const Value value = ReadValue(tokens, texts);
    if (isDeclaration && value.isGood) {
        AddDeclaration(name, value, declarations);
    }
}

} // namespace

bool ZAMPrepressHasVariables(std::string_view value) {
    return value.find("var(") != std::string_view::npos;
}

void ZAMPrepressReadDeclarations(std::string_view text, std::list<std::string>& texts,
                                 std::vector<Declaration>& declarations) {
    ZAMPrepressCssTokenizer tokens(text, texts);
    while (tokens.Peek().type != Type::End) {
        const Token name = tokens.Peek();
        if (name.type == Type::AtKeyword) {
            SkipAtRule(tokens);
        } else if (name.type == Type::Blank || name.Is(';')) {
            tokens.Next();
        } else {
            ReadDeclaration(tokens, texts, declarations);
        }
    }
}
