// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressCssTokenizer.h"

#include "prepress/geometry/ZAMPrepressScanner.h"
#include "prepress/style/ZAMPrepressCssEscapes.h"

#include <algorithm>
#include <vector>

namespace {

using Type = ZAMPrepressCssTokenType;

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool IsNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

constexpr bool IsNameCharacter(char c) {
    return IsNameStart(c) || IsDigit(c) || c == '-';
}

constexpr char GetClosing(const ZAMPrepressCssToken& token) {
    if (token.type == Type::Function || token.Is('(')) {
        return ')';
    }
    return token.Is('{') ? '}' : token.Is('[') ? ']' : '\0';
}

std::size_t CountDigits(std::string_view text, std::size_t from) {
    std::size_t end = from;
    while (end < text.size() && IsDigit(text[end])) {
        ++end;
    }
    return end - from;
}

// The length of the number that the text starts with.
std::size_t MeasureNumber(std::string_view text) {
    std::size_t length = text.front() == '+' || text.front() == '-' ? 1 : 0;
    length += CountDigits(text, length);
    if (length < text.size() && text[length] == '.') {
        const std::size_t fraction = CountDigits(text, length + 1);
        length += fraction == 0 ? 0 : fraction + 1;
    }
    if (length < text.size() && (text[length] == 'e' || text[length] == 'E')) {
        const bool isSigned = length + 1 < text.size() && (text[length + 1] == '+' || text[length + 1] == '-');
        const std::size_t exponent = length + (isSigned ? 2U : 1U);
        const std::size_t digits = CountDigits(text, exponent);
        length = digits == 0 ? length : exponent + digits;
    }
    return length;
}

// What is too large for a double becomes merely large, so that no infinity gets into a document.
double ToNumber(std::string_view text) {
    constexpr double kLargest = 1e38;
    return std::clamp(ZAMPrepressNumber(text), -kLargest, kLargest);
}

} // namespace

ZAMPrepressCssToken ZAMPrepressCssTokenizer::Next() {
    const ZAMPrepressCssToken token = _Token;
    SkipComments();
    _Token = {};
    const std::string_view before = _Rest;
    if (!_Rest.empty()) {
        ReadToken(_Token);
    }
    _Token.source = before.substr(0, before.size() - _Rest.size());
    return token;
}

void ZAMPrepressCssTokenizer::SkipBlanks() {
    while (_Token.type == Type::Blank) {
        Next();
    }
}

bool ZAMPrepressCssTokenizer::Eat(char character) {
    if (!_Token.Is(character)) {
        return false;
    }
    Next();
    return true;
}

// Brackets nest as deeply as a text likes, so that the open ones are listed instead of recursing.
std::string_view ZAMPrepressCssTokenizer::TakeBlock(char closing) {
    const char* const begin = _Token.source.data();
    std::vector<char> open{closing};
    for (;;) {
        const ZAMPrepressCssToken token = Next();
        if (token.Is(open.back())) {
            open.pop_back();
        } else if (const char inner = GetClosing(token); inner != '\0') {
            open.push_back(inner);
        }
        if (open.empty() || token.type == Type::End) {
            return {begin, static_cast<std::size_t>(token.source.data() - begin)};
        }
    }
}

void ZAMPrepressCssTokenizer::SkipComponent() {
    if (const char closing = GetClosing(Next()); closing != '\0') {
        TakeBlock(closing);
    }
}

void ZAMPrepressCssTokenizer::SkipComments() {
    while (_Rest.starts_with("/*")) {
        const std::size_t end = _Rest.find("*/", 2);
        _Rest.remove_prefix(end == std::string_view::npos ? _Rest.size() : end + 2);
    }
}

bool ZAMPrepressCssTokenizer::IsEscape(std::size_t index) const {
    return At(index) == '\\' && index + 1 < _Rest.size() && !ZAMPrepressCss::IsLineBreak(_Rest[index + 1]);
}

bool ZAMPrepressCssTokenizer::StartsName(std::size_t index) const {
    if (At(index) == '-') {
        return At(index + 1) == '-' || IsNameStart(At(index + 1)) || IsEscape(index + 1);
    }
    return IsNameStart(At(index)) || IsEscape(index);
}

bool ZAMPrepressCssTokenizer::StartsNumber() const {
    const std::size_t first = At(0) == '+' || At(0) == '-' ? 1 : 0;
    return IsDigit(At(first)) || (At(first) == '.' && IsDigit(At(first + 1)));
}

void ZAMPrepressCssTokenizer::ReadToken(ZAMPrepressCssToken& token) {
    const char first = _Rest.front();
    if (ZAMPrepressCss::IsBlank(first)) {
        token.type = Type::Blank;
        while (!_Rest.empty() && ZAMPrepressCss::IsBlank(_Rest.front())) {
            _Rest.remove_prefix(1);
        }
    } else if (first == '"' || first == '\'') {
        ReadString(token);
    } else if (StartsNumber()) {
        ReadNumber(token);
    } else if (_Rest.starts_with("<!--") || _Rest.starts_with("-->")) {
        token.type = Type::HtmlComment;
        _Rest.remove_prefix(first == '<' ? 4 : 3);
    } else if (StartsName(0)) {
        ReadIdent(token);
    } else if (first == '#') {
        ReadHash(token);
    } else if (first == '@' && StartsName(1)) {
        _Rest.remove_prefix(1);
        token.type = Type::AtKeyword;
        token.text = ReadName();
    } else {
        ReadDelim(token);
    }
}

std::string_view ZAMPrepressCssTokenizer::ReadName() {
    std::size_t end = 0;
    while (IsNameCharacter(At(end)) || IsEscape(end)) {
        end += At(end) == '\\' ? ZAMPrepressCss::MeasureEscape(_Rest.substr(end)) : 1;
    }
    const std::string_view source = _Rest.substr(0, end);
    _Rest.remove_prefix(end);
    return Keep(source);
}

std::string_view ZAMPrepressCssTokenizer::Keep(std::string_view source) {
    if (source.find('\\') == std::string_view::npos) {
        return source;
    }
    return _Texts->emplace_back(ZAMPrepressCss::RemoveEscapes(source));
}

void ZAMPrepressCssTokenizer::ReadDelim(ZAMPrepressCssToken& token) {
    token.type = Type::Delim;
    token.text = _Rest.substr(0, 1);
    _Rest.remove_prefix(1);
}

void ZAMPrepressCssTokenizer::ReadHash(ZAMPrepressCssToken& token) {
    if (!IsNameCharacter(At(1)) && !IsEscape(1)) {
        ReadDelim(token);
        return;
    }
    token.type = Type::Hash;
    token.isIdentifier = StartsName(1);
    _Rest.remove_prefix(1);
    token.text = ReadName();
}

void ZAMPrepressCssTokenizer::ReadIdent(ZAMPrepressCssToken& token) {
    token.type = Type::Ident;
    token.text = ReadName();
    if (At(0) != '(') {
        return;
    }
    _Rest.remove_prefix(1);
    token.type = Type::Function;
    if (!ZAMTextMatches(token.text, "url")) {
        return;
    }
    const std::size_t content = _Rest.find_first_not_of(ZAMPrepressCss::kBlanks);
    if (At(content) != '"' && At(content) != '\'') {
        ReadUrl(token);
    }
}

// An address without quotes, after its parenthesis.
void ZAMPrepressCssTokenizer::ReadUrl(ZAMPrepressCssToken& token) {
    std::size_t end = 0;
    while (end < _Rest.size() && _Rest[end] != ')') {
        end += IsEscape(end) ? ZAMPrepressCss::MeasureEscape(_Rest.substr(end)) : 1;
    }
    end = end < _Rest.size() ? end : _Rest.size();
    const std::string_view address = ZAMPrepressCss::Trim(_Rest.substr(0, end));
    _Rest.remove_prefix(end < _Rest.size() ? end + 1 : end);
    const bool isBad = address.find_first_of("\"'( \t\r\n\f") != std::string_view::npos;
    token.type = isBad ? Type::BadUrl : Type::Url;
    token.text = Keep(address);
}

void ZAMPrepressCssTokenizer::ReadString(ZAMPrepressCssToken& token) {
    const char quote = _Rest.front();
    std::size_t end = 1;
    while (end < _Rest.size() && _Rest[end] != quote && !ZAMPrepressCss::IsLineBreak(_Rest[end])) {
        end += _Rest[end] == '\\' ? ZAMPrepressCss::MeasureEscape(_Rest.substr(end)) : 1;
    }
    end = end < _Rest.size() ? end : _Rest.size();
    token.type = end < _Rest.size() && _Rest[end] != quote ? Type::BadString : Type::String;
    token.text = Keep(_Rest.substr(1, end - 1));
    _Rest.remove_prefix(At(end) == quote ? end + 1 : end);
}

void ZAMPrepressCssTokenizer::ReadNumber(ZAMPrepressCssToken& token) {
    const std::size_t length = MeasureNumber(_Rest);
    token.number = ToNumber(_Rest.substr(0, length));
    _Rest.remove_prefix(length);
    if (At(0) == '%') {
        token.type = Type::Percentage;
        _Rest.remove_prefix(1);
    } else if (StartsName(0)) {
        token.type = Type::Dimension;
        token.text = ReadName();
    } else {
        token.type = Type::Number;
    }
}
