// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressDataReference.h"

#include "framework/base/ZAMTextCompare.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

constexpr std::string_view kScheme = "data:";
constexpr std::string_view kBase64 = "base64";

constexpr std::uint8_t kNoDigit = 64;

// The value of each character of the usual alphabet and of the one for addresses (RFC 4648, 4 and 5).
constexpr std::array<std::uint8_t, 256> kDigits = [] {
    std::array<std::uint8_t, 256> digits{};
    digits.fill(kNoDigit);
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::uint8_t value = 0;
    for (const char c : kAlphabet) {
        digits.at(static_cast<unsigned char>(c)) = value++;
    }
    digits['-'] = 62;
    digits['_'] = 63;
    return digits;
}();

int HexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string DecodeBase64(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    int count = 0;
    for (const char c : text) {
        const std::uint8_t digit = kDigits.at(static_cast<unsigned char>(c));
        if (c == '=') {
            break;
        }
        if (digit == kNoDigit) {
            continue;
        }
        bits = bits << 6U | digit;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> static_cast<unsigned>(count) & 0xFFU);
        }
    }
    return bytes;
}

} // namespace

std::string ZAMPrepressDecodePercent(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape =
            text[i] == '%' && i + 2 < text.size() && HexDigit(text[i + 1]) >= 0 && HexDigit(text[i + 2]) >= 0;
        bytes += isEscape ? static_cast<char>(HexDigit(text[i + 1]) * 16 + HexDigit(text[i + 2])) : text[i];
        i += isEscape ? 2 : 0;
    }
    return bytes;
}

bool ZAMPrepressIsDataReference(std::string_view link) {
    link.remove_prefix(std::min(link.find_first_not_of(" \t\r\n"), link.size()));
    return ZAMTextMatches(link.substr(0, kScheme.size()), kScheme);
}

std::optional<std::string> ZAMPrepressReadDataReference(std::string_view link) {
    const auto comma = link.find(',');
    if (!ZAMPrepressIsDataReference(link) || comma == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view kind = link.substr(0, link.find_last_not_of(' ', comma - 1) + 1);
    const std::string_view data = link.substr(comma + 1);
    const bool isBase64 =
        kind.size() > kBase64.size() && ZAMTextMatches(kind.substr(kind.size() - kBase64.size()), kBase64);
    if (!isBase64) {
        return ZAMPrepressDecodePercent(data);
    }
    return data.find('%') == std::string_view::npos ? DecodeBase64(data) : DecodeBase64(ZAMPrepressDecodePercent(data));
}
