// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/mathematics/ZAMMathVector2D.h"

#include <array>
#include <cmath>

/// The direction of length 1 that an angle leads to, clockwise from the x axis on paper. Quarter turns are exact.
[[nodiscard]] inline ZAMMathVector2D ZAMPrepressDirection(double degrees) {
    const double quarters = degrees / 90.0;
    if (quarters == std::round(quarters)) {
        constexpr std::array<ZAMMathVector2D, 4> kQuarters{{{1.0, 0.0}, {0.0, 1.0}, {-1.0, 0.0}, {0.0, -1.0}}};
        const double place = std::fmod(std::fmod(quarters, 4.0) + 4.0, 4.0);
        return kQuarters.at(static_cast<std::size_t>(place));
    }
    return {std::cos(degrees * ZAMDegreeToRadian), std::sin(degrees * ZAMDegreeToRadian)};
}
