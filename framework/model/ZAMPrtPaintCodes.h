// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// @file
/// The codes of the attribute objects. Every type takes any value of its range: what stands in no list draws as the
/// default.

/// Which parts of an element are drawn. A bit each for the outline and the interior but for the last, the state that an
/// explicit stroke or fill leaves behind.
enum class ZAMPrtDrawStyle : std::uint8_t { None = 0, Stroke = 1, Fill = 2, StrokeAndFill = 3, Explicit = 4 };

/// Line types, caps and joins share one row of codes.
enum class ZAMPrintLineAttribute : std::uint8_t {
    Solid = 0,
    UserPattern = 7,
    CapButt = 10,
    CapSquare = 11,
    CapRound = 12,
    JoinMiter = 13,
    JoinRound = 14,
    JoinBevel = 15,
};

enum class ZAMPrtFillRule : std::uint8_t { NonZero = 0, EvenOdd = 1 };

enum class ZAMPrtFillStyle : std::uint8_t { Solid = 0, Pattern = 2 };

/// Where a link opens; 0 when nothing was said.
enum class ZAMPrtLinkShow : std::uint8_t { Unset = 0, New = 1, Replace = 2 };

/// The colour index that paints nothing. An index outside the image's colour table paints nothing either.
inline constexpr unsigned int kZAMPrtNoColour = 0xFFFFFFFFU;
