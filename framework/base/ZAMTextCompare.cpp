// SPDX-License-Identifier: MIT
#include "framework/base/ZAMTextCompare.h"

#include <utf8proc.h>

namespace {

constexpr unsigned char FoldAscii(unsigned char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

// Lower case of upper case is Unicode's simple folding but for the two Turkish letters, which fold to themselves.
utf8proc_int32_t FoldCodePoint(utf8proc_int32_t codePoint) {
    constexpr utf8proc_int32_t kDottedCapitalI = 0x130;
    constexpr utf8proc_int32_t kDotlessSmallI = 0x131;
    if (codePoint == kDottedCapitalI || codePoint == kDotlessSmallI) {
        return codePoint;
    }
    return utf8proc_tolower(utf8proc_toupper(codePoint));
}

constexpr bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

// Eats one code point; a byte that starts no valid sequence stands for itself, outside the Unicode range.
utf8proc_int32_t NextFolded(std::string_view& text) {
    utf8proc_int32_t codePoint = 0;
    const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                         static_cast<utf8proc_ssize_t>(text.size()), &codePoint);
    if (length <= 0) {
        codePoint = -1 - static_cast<unsigned char>(text.front());
        text.remove_prefix(1);
        return codePoint;
    }
    text.remove_prefix(static_cast<std::size_t>(length));
    return FoldCodePoint(codePoint);
}

bool FoldedEqual(std::string_view left, std::string_view right) {
    while (!left.empty() && !right.empty()) {
        if (NextFolded(left) != NextFolded(right)) {
            return false;
        }
    }
    return left.empty() && right.empty();
}

} // namespace

int ZAMCompareText(std::string_view left, std::string_view right) noexcept {
    bool identical = left.size() == right.size();
    const std::size_t common = left.size() < right.size() ? left.size() : right.size();
    for (std::size_t i = 0; i < common; ++i) {
        const auto leftByte = static_cast<unsigned char>(left[i]);
        const auto rightByte = static_cast<unsigned char>(right[i]);
        if (leftByte == rightByte && leftByte < 0x80) {
            continue;
        }
        if ((leftByte | rightByte) >= 0x80) {
            if (identical && left.substr(i) == right.substr(i)) {
                return 2;
            }
            return FoldedEqual(left.substr(i), right.substr(i)) ? 1 : 0;
        }
        if (FoldAscii(leftByte) != FoldAscii(rightByte)) {
            return 0;
        }
        identical = false;
    }
    if (left.size() != right.size()) {
        return 0;
    }
    return identical ? 2 : 1;
}

std::string ZAMFoldText(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        const char first = text.front();
        if (IsAscii(first)) {
            folded += static_cast<char>(FoldAscii(static_cast<unsigned char>(first)));
            text.remove_prefix(1);
            continue;
        }
        const utf8proc_int32_t codePoint = NextFolded(text);
        utf8proc_uint8_t bytes[4];
        const auto length = codePoint < 0 ? 0 : utf8proc_encode_char(codePoint, bytes);
        length == 0 ? folded += first : folded.append(bytes, bytes + length);
    }
    return folded;
}
