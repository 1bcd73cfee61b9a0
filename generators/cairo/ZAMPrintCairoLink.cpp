// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoLink.h"

#include "generators/cairo/ZAMPrintCairoMetadata.h"

#include <array>
#include <charconv>

namespace {

std::string_view TrimBlanks(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\n\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view{}
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// What a URI must not hold, and what would end the string that cairo or the PDF writes it in: cairo 1.16 puts
/// parentheses and backslashes into the PDF as they are.
bool NeedsPercent(char c) {
    constexpr std::string_view kUnsafe = "\"<>\\^`{|}()";
    return c <= ' ' || c >= '\x7F' || kUnsafe.find(c) != std::string_view::npos;
}

void AppendPercent(std::string& text, char c) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    text += {'%', kDigits[byte >> 4U], kDigits[byte & 0x0FU]};
}

void AppendAddress(std::string& text, std::string_view address) {
    for (const char c : address) {
        if (NeedsPercent(c)) {
            AppendPercent(text, c);
        } else {
            text += c == '\'' ? std::string_view("\\'") : std::string_view(&c, 1);
        }
    }
}

void AppendNumber(std::string& text, double value) {
    std::array<char, 400> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 4);
    text.append(digits.data(), result.ptr);
}

std::string MakeArea(const ZAMMathBox2D& area) {
    std::string text = "rect=[";
    for (const double value : {area.xMin, area.yMin, area.Width(), area.Height()}) {
        AppendNumber(text, value);
        text += ' ';
    }
    return text += ']';
}

} // namespace

std::optional<std::string> ZAMPrintCairoLink::MakeAttributes(const ZAMMathBox2D& area, std::string_view address) {
    address = TrimBlanks(address);
    if (address.empty() || ZAMPrintCairoMetadata::KeepCharacters(address) != address) {
        return std::nullopt;
    }
    std::string text = MakeArea(area) + " uri='";
    AppendAddress(text, address);
    return text += '\'';
}

std::string ZAMPrintCairoLink::MakeAttributes(const ZAMMathBox2D& area, std::size_t destination) {
    return MakeArea(area) + " dest='" + std::to_string(destination) + '\'';
}

std::string ZAMPrintCairoLink::MakeDestination(std::size_t number, const ZAMMathPoint2D& place) {
    // Cairo writes links to later pages by name, and names that are marked as internal into no list.
    std::string text = "name='" + std::to_string(number) + "' x=";
    AppendNumber(text, place.x);
    text += " y=";
    AppendNumber(text, place.y);
    return text;
}
