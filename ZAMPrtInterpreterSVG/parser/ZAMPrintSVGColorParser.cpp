// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGColorParser.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/parser/SVG_ColorKeywordTab.h"

#include <algorithm>
#include <string>

namespace {

bool ReadHexadecimalDigit(char digit, unsigned int& value) {
    if (digit >= '0' && digit <= '9') {
        value = static_cast<unsigned int>(digit - '0');
        return true;
    }
    const char small = static_cast<char>(digit | ('a' - 'A'));
    if (small >= 'a' && small <= 'f') {
        value = static_cast<unsigned int>(small - 'a') + 10;
        return true;
    }
    return false;
}

// A component is one whole number: "12.5" is none, though a scan would read its 12.
bool ReadComponent(std::string_view text, unsigned int& value) {
    const std::size_t lastDigit = text.find_last_of("0123456789");
    const std::size_t firstDigit = text.find_first_of("0123456789");
    const bool whole = lastDigit != std::string_view::npos && lastDigit + 1 == text.size() &&
                       std::all_of(text.begin() + static_cast<std::ptrdiff_t>(firstDigit), text.end(),
                                   [](char c) { return c >= '0' && c <= '9'; });
    return whole && ZAMReadUnsigned(text, value) == 1;
}

// Eats a component with its end mark and, where more than one is asked for, the characters behind that.
bool TakeComponent(std::string_view& rest, char endMark, std::size_t eaten, unsigned int& value) {
    const std::size_t end = rest.find(endMark);
    if (end == std::string_view::npos) {
        return false;
    }
    const std::string_view component = rest.substr(0, end);
    rest.remove_prefix(std::min(eaten == 0 ? 0 : end + eaten, rest.size()));
    return ReadComponent(component, value);
}

} // namespace

ZAMPrintSVGColorParser::~ZAMPrintSVGColorParser() = default;

int ZAMPrintSVGColorParser::SetColorTable(ZAMPrtColourTable* table) {
    _ColorTable = table;
    return 1;
}

int ZAMPrintSVGColorParser::ParseColorString(ZAMUnicodeString& text, unsigned int& index) const {
    if (text.IsEmpty() || _ColorTable == nullptr) {
        return -1;
    }
    text.ReplaceAll(" ", "");
    if (text.View().starts_with('#')) {
        return ParseHexadecimal(text, index);
    }
    std::string_view rest = text;
    if (rest.starts_with("rgb")) {
        rest.remove_prefix(3);
    }
    const int result = rest.starts_with('(') ? ParseFunction(rest, index) : ParseKeyword(rest, index);
    text = rest;
    return result;
}

int ZAMPrintSVGColorParser::ParseHexadecimal(ZAMUnicodeString& text, unsigned int& index) const {
    std::string digits;
    const std::size_t repeat = text.View().size() == 4 ? 2 : 1; // "#rgb" stands for "#rrggbb"
    for (const char digit : text.View().substr(1)) {
        digits.append(repeat, digit);
    }
    text = digits;
    if (digits.size() != 6) {
        return -1;
    }
    unsigned int value[6];
    for (std::size_t i = 0; i < 6; ++i) {
        if (!ReadHexadecimalDigit(digits[i], value[i])) {
            return -1;
        }
    }
    return Store(16 * value[0] + value[1], 16 * value[2] + value[3], 16 * value[4] + value[5], index);
}

int ZAMPrintSVGColorParser::ParseFunction(std::string_view& rest, unsigned int& index) const {
    rest.remove_prefix(1);
    unsigned int red = 0;
    unsigned int green = 0;
    unsigned int blue = 0;
    const std::size_t percent = rest.find('%');
    if (percent != std::string_view::npos && percent > 0) {
        // The percent sign goes together with the separator behind it, whatever that is.
        if (!TakeComponent(rest, '%', 2, red) || !TakeComponent(rest, '%', 2, green) ||
            !TakeComponent(rest, '%', 0, blue)) {
            return -1;
        }
        return Store(red * 255 / 100, green * 255 / 100, blue * 255 / 100, index);
    }
    if (!TakeComponent(rest, ',', 1, red) || !TakeComponent(rest, ',', 1, green) ||
        !TakeComponent(rest, ')', 0, blue)) {
        return -1;
    }
    return Store(red, green, blue, index);
}

int ZAMPrintSVGColorParser::ParseKeyword(std::string_view text, unsigned int& index) const {
    const auto nameOf = [](const ZAMPrintSVGColorKeyword& keyword) { return std::string_view(keyword.name); };
    // The table is nearly in the order of the alphabet, but not quite.
    static const auto keywords = [nameOf] {
        auto sorted = SVG_ColorKeywordTab;
        std::ranges::sort(sorted, {}, nameOf);
        return sorted;
    }();
    const std::string name = ZAMFoldText(text);
    const auto* const keyword = std::ranges::lower_bound(keywords, std::string_view(name), {}, nameOf);
    if (keyword == keywords.end() || name != keyword->name) {
        return -1;
    }
    return Store(keyword->red, keyword->green, keyword->blue, index);
}

// Only the low eight bits of a component count.
int ZAMPrintSVGColorParser::Store(unsigned int red, unsigned int green, unsigned int blue, unsigned int& index) const {
    const auto redByte = static_cast<unsigned char>(red);
    const auto greenByte = static_cast<unsigned char>(green);
    const auto blueByte = static_cast<unsigned char>(blue);
    if (_ColorTable->FindColour(index, redByte, greenByte, blueByte) > 0 ||
        _ColorTable->AddColour(redByte, greenByte, blueByte, index) > 0) {
        return 1;
    }
    return -1;
}
