// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <string>
#include <string_view>

/// Compares two UTF-8 texts: 2 when they are identical, 1 when they are equal but for letter case (Unicode simple case
/// folding), else 0.
ZAM_EXPORT int ZAMCompareText(std::string_view left, std::string_view right) noexcept;

/// The same text for all texts that are equal, letter case aside: a key to look names up by.
ZAM_EXPORT std::string ZAMFoldText(std::string_view text);

/// True when the texts are equal, letter case aside: how names and keywords are matched.
inline bool ZAMTextMatches(std::string_view left, std::string_view right) noexcept {
    // Most texts that are compared differ in their first letters, whatever their case.
    constexpr unsigned char kNotAscii = 0x80;
    constexpr unsigned char kCase = 'a' ^ 'A';
    const unsigned char first = left.empty() ? '\0' : static_cast<unsigned char>(left.front());
    const unsigned char other = right.empty() ? '\0' : static_cast<unsigned char>(right.front());
    if ((first | other) < kNotAscii && ((first ^ other) & ~kCase) != 0) {
        return false;
    }
    return ZAMCompareText(left, right) > 0;
}
