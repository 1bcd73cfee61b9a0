// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGNumberText.h"

#include "framework/base/ZAMNumberReading.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::string_view kSeparators = " ,\t\r\n\f";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

} // namespace

// 0 when no number stands next.
std::size_t ZAMPrintSVGNumberText::NumberLength() const {
    const auto at = [&](std::size_t index) { return index < _Rest.size() ? _Rest[index] : '\0'; };
    const std::size_t sign = at(0) == '-' || at(0) == '+' ? 1 : 0;
    std::size_t end = SkipDigits(_Rest, sign);
    const bool hasPoint = at(end) == '.';
    const std::size_t fraction = hasPoint ? SkipDigits(_Rest, end + 1) : end;
    if (fraction - sign == (hasPoint ? 1U : 0U)) {
        return 0;
    }
    end = fraction;
    if (at(end) == 'e' || at(end) == 'E') {
        const std::size_t digits = end + (at(end + 1) == '-' || at(end + 1) == '+' ? 2 : 1);
        end = IsDigit(at(digits)) ? SkipDigits(_Rest, digits) : end;
    }
    return end;
}

// The fourth and the fifth of the seven numbers of an arc.
bool ZAMPrintSVGNumberText::IsFlagNext() const {
    const bool isArc = _Kind == Kind::Path && (_Command == 'A' || _Command == 'a');
    return isArc && (_Index % 7 == 3 || _Index % 7 == 4);
}

ZAMPrintSVGNumberText::Token ZAMPrintSVGNumberText::Next() {
    const std::size_t separators = std::min(_Rest.find_first_not_of(kSeparators), _Rest.size());
    _Rest.remove_prefix(separators);
    if (_Rest.empty()) {
        return {};
    }
    const bool isFlag = IsFlagNext() && (_Rest.front() == '0' || _Rest.front() == '1');
    const std::size_t length = isFlag ? 1 : NumberLength();
    if (length == 0) {
        const char letter = _Rest.front();
        _Command = letter;
        _Index = 0;
        _IsBehindNumber = false;
        _Rest.remove_prefix(1);
        return {Token::Letter, letter, 0.0};
    }
    const std::string_view number = _Rest.substr(0, length);
    const bool isApart = separators > 0 || !_IsBehindNumber;
    const bool isOwnSign = _Kind == Kind::Path && number.front() == '-';
    // An exponent in upper case does not hold its minus sign in path data.
    const bool isTorn = _Kind == Kind::Path && number.find("E-") != std::string_view::npos;
    _AreCrowded = _AreCrowded || (!isApart && !isOwnSign) || isTorn;
    _IsBehindNumber = true;
    ++_Index;
    double value = 0.0;
    ZAMReadDouble(number, value);
    _Rest.remove_prefix(length);
    return {Token::Number, '\0', value};
}

bool ZAMPrintSVGNumberText::HasCrowdedNumbers(std::string_view text, Kind kind) {
    ZAMPrintSVGNumberText numbers(text, kind);
    while (!numbers._AreCrowded && numbers.Next().kind != Token::End) {
    }
    return numbers._AreCrowded;
}
