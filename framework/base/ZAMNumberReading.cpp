// SPDX-License-Identifier: MIT
#include "framework/base/ZAMNumberReading.h"

#include "framework/base/ZAMTextCompare.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

void SkipSpace(std::string_view& text) {
    while (!text.empty() && IsSpace(text.front())) {
        text.remove_prefix(1);
    }
}

// Eats a sign; true when it was a minus.
bool TakeSign(std::string_view& text) {
    if (text.empty() || (text.front() != '-' && text.front() != '+')) {
        return false;
    }
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

bool StartsWithWord(std::string_view text, std::string_view word) {
    return text.size() >= word.size() && ZAMTextMatches(text.substr(0, word.size()), word);
}

// What from_chars refuses as out of range is either huge or tiny. The decimal exponent of the first digit that is not 0
// tells which: the count of digits before the point (or, negative, of zeros after it) plus the written exponent.
double OutOfRangeValue(std::string_view number, bool hexadecimal) {
    const std::string_view exponentMark = hexadecimal ? "pP" : "eE";
    const std::size_t mark = number.find_first_of(exponentMark);
    const std::string_view mantissa = number.substr(0, mark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t lead = mantissa.find_first_not_of("0.");
    auto magnitude = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(lead);
    if (mark != std::string_view::npos) {
        std::string_view exponent = number.substr(mark + 1);
        const bool negative = TakeSign(exponent);
        constexpr std::int64_t kFarOut = std::int64_t{1} << 60U; // beyond any count of digits, and sums do not overflow
        std::int64_t power = kFarOut;
        std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
        power = std::min(power, kFarOut);
        magnitude = magnitude * (hexadecimal ? 4 : 1) + (negative ? -power : power);
    }
    return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

// Reads unsigned digits; the scan has already decided that there is a number.
double ReadMagnitude(std::string_view text, std::chars_format format) {
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, format);
    if (result.ec == std::errc::result_out_of_range) {
        const auto length = static_cast<std::size_t>(result.ptr - text.data());
        return OutOfRangeValue(text.substr(0, length), format == std::chars_format::hex);
    }
    return value;
}

constexpr bool StartsDecimal(std::string_view text) {
    return !text.empty() && (IsDigit(text[0]) || (text[0] == '.' && text.size() > 1 && IsDigit(text[1])));
}

// Digits, a point, digits: coordinates are short. Up to 2^53 and 10^22 the digits and the power of ten are exact, so
// that their quotient is the correctly rounded value; what is longer, or has an exponent, is left to the library.
class ShortDecimal {
public:
    explicit ShortDecimal(std::string_view text) : _Rest(text) {
        TakeDigits();
        if (!_Rest.empty() && _Rest.front() == '.') {
            _Rest.remove_prefix(1);
            const std::size_t digits = _Digits;
            TakeDigits();
            _Decimals = _Digits - digits;
        }
    }

    [[nodiscard]] bool IsExact() const {
        constexpr std::uint64_t kLargestExact = std::uint64_t{1} << 53U;
        return _Digits <= std::numeric_limits<std::uint64_t>::digits10 && _Mantissa <= kLargestExact;
    }
    [[nodiscard]] double GetValue() const { return static_cast<double>(_Mantissa) / kPowersOfTen[_Decimals]; }
    /// What follows the number.
    [[nodiscard]] std::string_view GetRest() const { return _Rest; }

private:
    static constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,
                                              1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19};

    // More digits than the mantissa holds make it wrap; it is not used then.
    void TakeDigits() {
        std::size_t count = 0;
        for (; count < _Rest.size() && IsDigit(_Rest[count]); ++count) {
            _Mantissa = _Mantissa * 10 + static_cast<std::uint64_t>(_Rest[count] - '0');
        }
        _Digits += count;
        _Rest.remove_prefix(count);
    }

    std::string_view _Rest;
    std::uint64_t _Mantissa = 0;
    std::size_t _Digits = 0;
    std::size_t _Decimals = 0;
};

constexpr bool FoldsToE(char c) {
    return c == 'e' || c == 'E';
}

// The scan commits itself to a word or a hexadecimal number by its first letters and reads nothing when the rest is not
// there: "infi" and "0x" are no numbers, though "inf" and "0" would be.
int ReadUnsignedDouble(std::string_view text, double& value) {
    if (StartsWithWord(text, "nan")) {
        value = std::numeric_limits<double>::quiet_NaN();
        return 1;
    }
    if (StartsWithWord(text, "inf")) {
        if (StartsWithWord(text, "infi") && !StartsWithWord(text, "infinity")) {
            return 0;
        }
        value = std::numeric_limits<double>::infinity();
        return 1;
    }
    if (StartsWithWord(text, "0x")) {
        text.remove_prefix(2);
        if (text.empty() || std::string_view("0123456789abcdefABCDEF.").find(text.front()) == std::string_view::npos) {
            return 0;
        }
        value = ReadMagnitude(text, std::chars_format::hex);
        return 1;
    }
    if (!StartsDecimal(text)) {
        return 0;
    }
    const ShortDecimal number(text);
    const bool hasExponent = !number.GetRest().empty() && FoldsToE(number.GetRest().front());
    value = number.IsExact() && !hasExponent ? number.GetValue() : ReadMagnitude(text, std::chars_format::general);
    return 1;
}

} // namespace

int ZAMReadDouble(std::string_view text, double& value) noexcept {
    SkipSpace(text);
    if (text.empty()) {
        return -1;
    }
    const bool negative = TakeSign(text);
    double magnitude = 0.0;
    if (ReadUnsignedDouble(text, magnitude) != 1) {
        return 0;
    }
    value = negative ? -magnitude : magnitude;
    return 1;
}

int ZAMReadUnsigned(std::string_view text, unsigned int& value) noexcept {
    SkipSpace(text);
    if (text.empty()) {
        return -1;
    }
    const bool negative = TakeSign(text);
    if (text.empty() || !IsDigit(text.front())) {
        return 0;
    }
    std::uint64_t magnitude = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), magnitude);
    if (result.ec == std::errc::result_out_of_range) {
        value = std::numeric_limits<unsigned int>::max();
        return 1;
    }
    value = static_cast<unsigned int>(negative ? 0 - magnitude : magnitude);
    return 1;
}

bool ZAMTakePlainDouble(std::string_view& text, double& value) noexcept {
    const bool negative = !text.empty() && text.front() == '-';
    const std::string_view digits = text.substr(negative ? 1 : 0);
    if (!StartsDecimal(digits)) {
        return false;
    }
    const ShortDecimal number(digits);
    const double magnitude = number.IsExact() ? number.GetValue()
                                              : ReadMagnitude(digits.substr(0, digits.size() - number.GetRest().size()),
                                                              std::chars_format::fixed);
    if (std::isinf(magnitude)) {
        return false;
    }
    value = negative ? -magnitude : magnitude;
    text = number.GetRest();
    return true;
}

bool ZAMReadPlainDouble(std::string_view text, double& value) noexcept {
    std::string_view rest = text;
    double number = 0.0;
    if (!ZAMTakePlainDouble(rest, number)) {
        return false;
    }
    if (!rest.empty() && FoldsToE(rest.front())) {
        const char* const end = text.data() + text.size();
        const auto result = std::from_chars(text.data(), end, number);
        rest = result.ec == std::errc() && result.ptr == end ? std::string_view() : rest;
    }
    if (!rest.empty()) {
        return false;
    }
    value = number;
    return true;
}
