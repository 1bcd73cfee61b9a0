// SPDX-License-Identifier: MIT
#include "framework/base/ZAMUnicodeString.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"

#include <algorithm>

int ZAMUnicodeString::GetLengthInChar() const noexcept {
    constexpr auto startsCodePoint = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
    return static_cast<int>(std::count_if(_Text.begin(), _Text.end(), startsCodePoint));
}

int ZAMUnicodeString::Compare(std::string_view other) const noexcept {
    return ZAMCompareText(_Text, other);
}

int ZAMUnicodeString::ConvertToNum(double* value, std::string_view format) const noexcept {
    return format == "%le" ? ZAMReadDouble(_Text, *value) : 0;
}

int ZAMUnicodeString::ConvertToNum(unsigned int* value, std::string_view format) const noexcept {
    return format == "%u" ? ZAMReadUnsigned(_Text, *value) : 0;
}

int ZAMUnicodeString::SearchSubString(std::string_view pattern, std::size_t from) const noexcept {
    const std::size_t position = _Text.find(pattern, from);
    return position == std::string::npos ? -1 : static_cast<int>(position);
}

void ZAMUnicodeString::Remove(std::size_t position, std::size_t count) {
    if (position < _Text.size()) {
        _Text.erase(position, count);
    }
}

void ZAMUnicodeString::ReplaceAll(std::string_view pattern, std::string_view replacement) {
    if (pattern.empty() || _Text.find(pattern) == std::string::npos) {
        return;
    }
    std::string result;
    std::string_view rest = _Text;
    for (std::size_t found = rest.find(pattern); found != std::string_view::npos; found = rest.find(pattern)) {
        result.append(rest.substr(0, found)).append(replacement);
        rest.remove_prefix(found + pattern.size());
    }
    _Text = result.append(rest);
}
