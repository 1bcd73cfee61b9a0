// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The dash list that does without an offset what the list (numbers with blanks between them, not all of them 0) does
/// with it, all of it times a factor. A list that would start within a gap begins with a dash of no length, which only
/// butt ends do not show.
[[nodiscard]] std::string ZAMPrepressShiftDashes(std::string_view dashes, double offset, double scale,
                                                 bool hasButtEnds);
