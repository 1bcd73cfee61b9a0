// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoMetadata.h"

#include <array>
#include <cstddef>

namespace {

/// The bytes of a code point that starts with `lead`, with its value's bits in that byte; length 0 when none starts so.
struct Lead {
    std::size_t length;
    char32_t bits;
    char32_t smallest;
};

Lead ReadLead(unsigned char lead) {
    if (lead < 0x80) {
        return {1, lead, 0};
    }
    if (lead >= 0xC0 && lead < 0xE0) {
        return {2, lead & 0x1FU, 0x80};
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return {3, lead & 0x0FU, 0x800};
    }
    if (lead >= 0xF0 && lead < 0xF8) {
        return {4, lead & 0x07U, 0x10000};
    }
    return {0, 0, 0};
}

bool IsCharacter(char32_t code) {
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    const bool isNoCharacter = (code >= 0xFDD0 && code <= 0xFDEF) || (code & 0xFFFEU) == 0xFFFEU;
    return code != 0 && code <= 0x10FFFF && !isSurrogate && !isNoCharacter;
}

/// The length of the character at the start of the text; 0 when there is none.
std::size_t CharacterLength(std::string_view text) {
    const Lead lead = ReadLead(static_cast<unsigned char>(text.front()));
    if (lead.length == 0 || lead.length > text.size()) {
        return 0;
    }
    char32_t code = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U) {
            return 0;
        }
        code = code << 6U | (byte & 0x3FU);
    }
    return code >= lead.smallest && IsCharacter(code) ? lead.length : 0;
}

} // namespace

std::string ZAMPrintCairoMetadata::KeepCharacters(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        kept.append(text.substr(0, length));
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return kept;
}

std::optional<std::tm> ZAMPrintCairoMetadata::ToCalendar(std::time_t time) {
    constexpr int kEpoch = 1900;
    std::tm calendar{};
    if (gmtime_r(&time, &calendar) == nullptr || calendar.tm_year < 1 - kEpoch || calendar.tm_year > 9999 - kEpoch) {
        return std::nullopt;
    }
    return calendar;
}

std::string ZAMPrintCairoMetadata::FormatDate(const std::tm& calendar) {
    // %Y of a year below 1000 has fewer digits than the four that a date needs.
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "-%m-%dT%H:%M:%SZ", &calendar);
    std::string year = std::to_string(calendar.tm_year + 1900);
    year.insert(0, 4 - year.size(), '0');
    return year.append(text.data(), length);
}
