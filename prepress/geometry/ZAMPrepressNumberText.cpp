// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressNumberText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr int kDigits = 10;

constexpr std::array<double, 23> PowersOfTen() {
    std::array<double, 23> powers{1.0};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers.at(i) = powers.at(i - 1) * 10.0;
    }
    return powers;
}
constexpr std::array<double, 23> kPowersOfTen = PowersOfTen(); // all of them exact

// The double that is nearest to the number's first digits, whose shortest form is just these. Much quicker than asking
// for so many digits.
double Rounded(double number) {
    const int decimals = kDigits - 1 - static_cast<int>(std::floor(std::log10(std::abs(number))));
    const auto power = static_cast<std::size_t>(std::abs(decimals));
    if (power >= kPowersOfTen.size()) {
        return number;
    }
    const double scale = kPowersOfTen.at(power);
    return decimals >= 0 ? std::round(number * scale) / scale : std::round(number / scale) * scale;
}

} // namespace

void ZAMPrepressAppendNumber(std::string& text, double number) {
    if (!std::isfinite(number) || number == 0.0) { // and no "-0"
        text += '0';
        return;
    }
    const double magnitude = std::abs(number);
    const bool isUsual = magnitude >= 1e-4 && magnitude < 1e15;
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), Rounded(number),
                                      isUsual ? std::chars_format::fixed : std::chars_format::scientific);
    text.append(digits.data(), result.ptr);
}

std::string ZAMPrepressNumberText(double number) {
    std::string text;
    ZAMPrepressAppendNumber(text, number);
    return text;
}
