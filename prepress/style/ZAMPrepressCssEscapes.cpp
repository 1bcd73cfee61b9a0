// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressCssEscapes.h"

#include <charconv>
#include <cstdint>

namespace {

constexpr std::size_t kMostDigits = 6;
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";

// The digits of a code point after a backslash.
std::string_view GetDigits(std::string_view text) {
    const std::string_view digits = text.substr(1, kMostDigits);
    const std::size_t end = digits.find_first_not_of(kHexDigits);
    return digits.substr(0, end);
}

void AppendCodePoint(std::uint32_t code, std::string& text) {
    constexpr std::uint32_t kReplacement = 0xFFFD;
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    code = code == 0 || isSurrogate || code > 0x10FFFF ? kReplacement : code;
    const auto append = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        append(code);
        return;
    }
    if (code < 0x800) {
        append(0xC0U | (code >> 6U));
    } else {
        if (code < 0x10000) {
            append(0xE0U | (code >> 12U));
        } else {
            append(0xF0U | (code >> 18U));
            append(0x80U | ((code >> 12U) & 0x3FU));
        }
        append(0x80U | ((code >> 6U) & 0x3FU));
    }
    append(0x80U | (code & 0x3FU));
}

// What the escape at the start of the text stands for.
void AppendEscaped(std::string_view escape, std::string& text) {
    const std::string_view digits = GetDigits(escape);
    if (digits.empty()) {
        if (escape.size() > 1 && !ZAMPrepressCss::IsLineBreak(escape[1])) {
            text += escape[1];
        }
        return;
    }
    std::uint32_t code = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    AppendCodePoint(code, text);
}

} // namespace

std::string_view ZAMPrepressCss::Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::size_t ZAMPrepressCss::MeasureEscape(std::string_view text) {
    const std::size_t digits = GetDigits(text).size();
    std::size_t length = 1 + (digits == 0 ? 1 : digits);
    // A line break of two characters counts as one, after digits and where it is escaped itself.
    if (digits != 0 && length < text.size() && IsBlank(text[length])) {
        length += text.substr(length).starts_with("\r\n") ? 2U : 1U;
    } else if (digits == 0 && text.substr(1).starts_with("\r\n")) {
        ++length;
    }
    return length < text.size() ? length : text.size();
}

std::string ZAMPrepressCss::RemoveEscapes(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t plain = text.substr(0, text.find('\\')).size();
        result.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty()) {
            AppendEscaped(text, result);
            text.remove_prefix(MeasureEscape(text));
        }
    }
    return result;
}
