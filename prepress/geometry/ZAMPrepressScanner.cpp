// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressScanner.h"

#include "framework/base/ZAMNumberReading.h"

namespace {

std::size_t SkipDigits(std::string_view text, std::size_t from) {
    while (from < text.size() && ZAMPrepressScanner::IsDigit(text[from])) {
        ++from;
    }
    return from;
}

std::size_t SkipSign(std::string_view text, std::size_t from) {
    return from < text.size() && (text[from] == '-' || text[from] == '+') ? from + 1 : from;
}

// Digits with at most one point among them; `from` when there is no digit.
std::size_t SkipMantissa(std::string_view text, std::size_t from) {
    std::size_t end = SkipDigits(text, from);
    bool digits = end > from;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fraction = end + 1;
        end = SkipDigits(text, fraction);
        digits = digits || end > fraction;
    }
    return digits ? end : from;
}

// An "e" without digits behind it belongs to what follows the number ("1em").
std::size_t SkipExponent(std::string_view text, std::size_t from) {
    if (from >= text.size() || (text[from] != 'e' && text[from] != 'E')) {
        return from;
    }
    const std::size_t digits = SkipSign(text, from + 1);
    const std::size_t end = SkipDigits(text, digits);
    return end > digits ? end : from;
}

} // namespace

std::string_view ZAMPrepressScanner::TakeNumber() {
    const std::size_t start = SkipSign(_Rest, 0);
    const std::size_t mantissa = SkipMantissa(_Rest, start);
    return TakePrefix(mantissa == start ? 0 : SkipExponent(_Rest, mantissa));
}

std::string_view ZAMPrepressScanner::TakeWord() {
    std::size_t length = 0;
    while (length < _Rest.size() && IsLetter(_Rest[length])) {
        ++length;
    }
    return TakePrefix(length);
}

double ZAMPrepressNumber(std::string_view number) {
    double value = 0.0;
    if (!ZAMReadPlainDouble(number, value)) {
        ZAMReadDouble(number, value);
    }
    return value;
}
