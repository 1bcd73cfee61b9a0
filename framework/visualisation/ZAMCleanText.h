// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A text as one line of valid UTF-8: control characters and bytes that are no UTF-8 are dropped; tabs, line breaks and
/// the separators of lines and paragraphs become blanks.
std::string ZAMCleanText(std::string_view text);
