// SPDX-License-Identifier: MIT
#include "tools/zamprint/BackgroundColour.h"

#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/parser/SVG_ColorKeywordTab.h"

#include <array>
#include <charconv>

namespace {

// `size` hexadecimal digits from `position`.
bool ReadComponent(std::string_view digits, std::size_t position, std::size_t size, unsigned char& component) {
    unsigned int value = 0;
    const char* end = digits.data() + position + size;
    const auto [stop, error] = std::from_chars(digits.data() + position, end, value, 16);
    // One digit stands for two: #f80 is #ff8800.
    component = static_cast<unsigned char>(size == 1 ? value * 0x11U : value);
    return error == std::errc() && stop == end;
}

bool ReadHexadecimal(std::string_view digits, ZAMPrintColour& colour) {
    const std::size_t size = digits.size() / 3;
    return (digits.size() == 3 || digits.size() == 6) && ReadComponent(digits, 0, size, colour.red) &&
           ReadComponent(digits, size, size, colour.green) && ReadComponent(digits, 2 * size, size, colour.blue);
}

bool ReadKeyword(std::string_view name, ZAMPrintColour& colour) {
    for (const ZAMPrintSVGColorKeyword& keyword : SVG_ColorKeywordTab) {
        if (ZAMTextMatches(name, keyword.name)) {
            colour = {keyword.red, keyword.green, keyword.blue};
            return true;
        }
    }
    return false;
}

} // namespace

bool ReadBackgroundColour(std::string_view text, std::optional<ZAMPrintColour>& colour) {
    if (ZAMTextMatches(text, "none") || ZAMTextMatches(text, "transparent")) {
        colour.reset();
        return true;
    }
    ZAMPrintColour found;
    if (!(text.starts_with('#') ? ReadHexadecimal(text.substr(1), found) : ReadKeyword(text, found))) {
        return false;
    }
    colour = found;
    return true;
}
