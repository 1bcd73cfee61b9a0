// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMCleanText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

struct Character {
    std::uint32_t code = 0;
    std::size_t bytes = 0; ///< 0: not UTF-8
};

std::size_t LengthOf(unsigned char lead) {
    return lead < 0x80 ? 1 : (lead >= 0xF0 ? 4 : (lead >= 0xE0 ? 3 : 2));
}

// Overlong forms, surrogates and what is beyond Unicode are no UTF-8.
bool IsWellFormed(std::uint32_t code, std::size_t bytes) {
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return code >= smallest[bytes] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

Character ReadCharacter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t bytes = LengthOf(lead);
    if ((lead >= 0x80 && lead < 0xC0) || lead >= 0xF8 || text.size() < bytes) {
        return {};
    }
    std::uint32_t code = bytes == 1 ? lead : lead & (0xFFU >> (bytes + 1));
    for (const char next : text.substr(1, bytes - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if ((byte & 0xC0U) != 0x80U) {
            return {};
        }
        code = code << 6U | (byte & 0x3FU);
    }
    return IsWellFormed(code, bytes) ? Character{code, bytes} : Character{};
}

bool IsBreak(std::uint32_t code) {
    return code == '\t' || code == '\n' || code == '\r' || code == 0x85 || code == 0x2028 || code == 0x2029;
}
bool IsControl(std::uint32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

} // namespace

std::string ZAMCleanText(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    while (!text.empty()) {
        const Character next = ReadCharacter(text);
        if (next.bytes > 0 && IsBreak(next.code)) {
            clean += ' ';
        } else if (next.bytes > 0 && !IsControl(next.code)) {
            clean += text.substr(0, next.bytes);
        }
        text.remove_prefix(std::max<std::size_t>(next.bytes, 1));
    }
    return clean;
}
