// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGDataText.h"

#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/base64/ConvertFromBase64Buffer.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace ZAMPrintSVGDataText {

namespace {

std::string DecodePercent(std::string_view text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned int code = 0;
        const char* const end = text.data() + std::min(at + 3, text.size());
        const bool isEscape =
            text[at] == '%' && at + 2 < text.size() && std::from_chars(text.data() + at + 1, end, code, 16).ptr == end;
        bytes += isEscape ? static_cast<char>(code) : text[at];
        at += isEscape ? 2 : 0;
    }
    return bytes;
}

// In the one form that the decoder reads.
std::string NormalisedBase64(std::string_view text) {
    std::string digits;
    for (const char c : text.substr(0, text.find('='))) {
        const char digit = c == '-' ? '+' : c == '_' ? '/' : c;
        const bool isLetter = (digit >= 'A' && digit <= 'Z') || (digit >= 'a' && digit <= 'z');
        if (isLetter || (digit >= '0' && digit <= '9') || digit == '+' || digit == '/') {
            digits += digit;
        }
    }
    digits.resize((digits.size() + 3) / 4 * 4, '=');
    return digits;
}

std::vector<unsigned char> DecodeBase64(std::string_view text) {
    const std::string digits = NormalisedBase64(text);
    std::vector<unsigned char> bytes(digits.size());
    unsigned int length = 0;
    const bool isDecoded =
        digits.size() <= std::numeric_limits<unsigned int>::max() &&
        ConvertFromBase64Buffer(digits.data(), static_cast<unsigned int>(digits.size()), bytes.data(), length) >= 0;
    bytes.resize(isDecoded ? length : 0);
    return bytes;
}

} // namespace

bool IsData(std::string_view reference) {
    reference.remove_prefix(std::min(reference.find_first_not_of(' '), reference.size()));
    return ZAMTextMatches(reference.substr(0, 5), "data:");
}

std::vector<unsigned char> Decode(std::string_view reference) {
    const std::size_t comma = std::min(reference.find(','), reference.size());
    const std::string data = DecodePercent(reference.substr(std::min(comma + 1, reference.size())));
    std::string_view kind = reference.substr(0, comma);
    kind = kind.substr(0, kind.find_last_not_of(' ') + 1);
    const std::size_t semicolon = kind.rfind(';');
    const std::string_view coding = semicolon == std::string_view::npos ? std::string_view() : kind.substr(semicolon);
    return ZAMTextMatches(coding, ";base64") ? DecodeBase64(data)
                                             : std::vector<unsigned char>(data.begin(), data.end());
}

std::string PathOfAddress(std::string_view address) {
    constexpr std::string_view kScheme = "file://";
    address.remove_prefix(address.starts_with(kScheme) ? kScheme.size() : 0);
    return DecodePercent(address);
}

} // namespace ZAMPrintSVGDataText
