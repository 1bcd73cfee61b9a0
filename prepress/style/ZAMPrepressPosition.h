// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressSelector.h"

/// Reads positions among siblings: "odd", "even", "3", "2n+1" (CSS Syntax 3, section 6). Nothing for other texts.
[[nodiscard]] std::optional<ZAMPrepressCompound::PositionTest> ZAMPrepressReadPosition(std::string_view text);
