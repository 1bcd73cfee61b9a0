// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Blanks and escapes of CSS text.
namespace ZAMPrepressCss {

inline constexpr std::string_view kBlanks = " \t\r\n\f";

[[nodiscard]] constexpr bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

[[nodiscard]] constexpr bool IsLineBreak(char c) {
    return c == '\n' || c == '\r' || c == '\f';
}

/// The text without blanks at either end.
[[nodiscard]] std::string_view Trim(std::string_view text);
/// The length of the escape that the text starts with, its backslash included; at least 1.
[[nodiscard]] std::size_t MeasureEscape(std::string_view text);
/// The text with what its escapes stand for.
[[nodiscard]] std::string RemoveEscapes(std::string_view text);

} // namespace ZAMPrepressCss
