// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressPosition.h"

#include "framework/base/ZAMTextCompare.h"
#include "prepress/style/ZAMPrepressCssEscapes.h"

#include <charconv>

namespace {

// A whole number; where it may be a sign alone, or nothing, that is one.
std::optional<long long> ReadInteger(std::string_view text, bool mayBeSign) {
    const bool isSigned = text.starts_with('+') || text.starts_with('-');
    const std::string_view digits = text.substr(isSigned ? 1 : 0);
    const long long sign = text.starts_with('-') ? -1 : 1;
    if (digits.empty()) {
        return mayBeSign ? std::optional(sign) : std::nullopt;
    }
    int value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (digits.starts_with('-') || result.ptr != digits.data() + digits.size() || result.ec != std::errc()) {
        return std::nullopt;
    }
    return sign * value;
}

} // namespace

std::optional<ZAMPrepressCompound::PositionTest> ZAMPrepressReadPosition(std::string_view text) {
    std::string plain(text);
    std::erase_if(plain, ZAMPrepressCss::IsBlank);
    if (ZAMTextMatches(plain, "odd")) {
        plain = "2n+1";
    } else if (ZAMTextMatches(plain, "even")) {
        plain = "2n";
    }
    const std::string_view rest = plain;
    const std::size_t n = rest.find_first_of("nN");
    if (n == std::string_view::npos) {
        const auto offset = ReadInteger(rest, false);
        return offset ? std::optional(ZAMPrepressCompound::PositionTest{0, *offset}) : std::nullopt;
    }
    const auto step = ReadInteger(rest.substr(0, n), true);
    const auto offset = n + 1 == rest.size() ? std::optional(0LL) : ReadInteger(rest.substr(n + 1), false);
    if (!step || !offset) {
        return std::nullopt;
    }
    return ZAMPrepressCompound::PositionTest{*step, *offset};
}
