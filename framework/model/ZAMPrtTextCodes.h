// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Weights and anchors share one row of codes. An anchor is 28 + 4·horizontal + vertical: horizontal 0 start, 1 middle,
/// 2 end; vertical 0 bottom, 1 baseline, 2 middle, 3 top.
enum class ZAMPrintTextAttribute : std::uint8_t {
    WeightLight = 24,
    WeightNormal = 25,
    WeightBold = 26,
    WeightBlack = 27,
    AnchorFirst = 28,
    AnchorStartBaseline = 29,
    AnchorLast = 39,
};

enum class ZAMPrtTextWritingMode : std::uint8_t { LeftToRight = 0, RightToLeft = 1, TopToBottom = 2 };
