// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPlainText.h"

#include <algorithm>
#include <array>
#include <cmath>

void ZAMPrintCairoPlainText::AddFixed(std::int64_t units, int decimals) {
    Separate();
    bool isNegative = units < 0;
    auto rest = static_cast<std::uint64_t>(isNegative ? -units : units);
    for (; decimals > 0 && rest % 10 == 0; --decimals) {
        rest /= 10;
    }
    // From the end to the start; "-.5" is as good as "-0.5".
    std::array<char, 32> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): only what is filled is read
    char* const end = digits.data() + digits.size();
    char* start = end;
    for (; decimals > 0; --decimals) {
        *--start = static_cast<char>('0' + rest % 10);
        rest /= 10;
        if (decimals == 1) {
            *--start = '.';
        }
    }
    for (; rest != 0 || start == end; rest /= 10) {
        *--start = static_cast<char>('0' + rest % 10);
    }
    if (isNegative) {
        *--start = '-';
    }
    _Text.append(start, end);
}

void ZAMPrintCairoPlainText::AddNumber(double number) {
    AddFixed(std::llround(number * 1e6), 6);
}

void ZAMPrintCairoPlainText::AddWord(std::string_view word) {
    constexpr std::size_t kBlock = 65536;
    if (word != "]") {
        Separate();
    }
    _Text += word;
    if (_Text.size() > kBlock) {
        Pack();
        // The separator of what follows.
        _Text.assign(1, '\n');
    }
}

std::string ZAMPrintCairoPlainText::Finish() {
    Pack();
    return _Deflater->Finish();
}

void ZAMPrintCairoPlainText::Pack() {
    if (!_Deflater) {
        _Deflater.emplace(_Text.size());
    }
    _Deflater->Add(_Text);
}

/// Lines end with their operators, so that they stay short.
void ZAMPrintCairoPlainText::Separate() {
    if (_Text.empty() || _Text.back() == '\n' || _Text.back() == '[') {
        return;
    }
    const char last = _Text.back();
    const bool isNumber = (last >= '0' && last <= '9') || last == ']';
    _Text += isNumber ? ' ' : '\n';
}
