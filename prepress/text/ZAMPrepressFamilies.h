// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Lists of font families (CSS Fonts 3, 3.1), as the interpreter takes them apart.
namespace ZAMPrepressFamilies {

/// Takes the next name off the list: quotes count for nothing, wherever they stand.
[[nodiscard]] std::string TakeName(std::string_view& families);

/// The list in names that the interpreter knows, up to a generic family, which is always there. Where the list has none
/// it is the one that the names are likest to.
[[nodiscard]] std::string Complete(std::string_view families);

/// The font that the interpreter takes for a generic family; null for any other name.
[[nodiscard]] const char* FindGeneric(std::string_view name);

} // namespace ZAMPrepressFamilies
