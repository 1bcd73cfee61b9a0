// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

/// What a document says about itself, made fit for the formats that carry it.
namespace ZAMPrintCairoMetadata {

/// The program that an output names as its creator.
inline constexpr const char* kCreator = "ZAM print";

/// The text without what is not well-formed UTF-8, without NUL and without code points that are no characters (U+FFFE,
/// say), all of which cairo refuses or stops at.
[[nodiscard]] std::string KeepCharacters(std::string_view text);

/// Calendar time in UTC; nothing outside the years 1 to 9999, which the formats cannot name.
[[nodiscard]] std::optional<std::tm> ToCalendar(std::time_t time);

/// ISO 8601, as in 2001-02-03T04:05:06Z.
[[nodiscard]] std::string FormatDate(const std::tm& calendar);

} // namespace ZAMPrintCairoMetadata
