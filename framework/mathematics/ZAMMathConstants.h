// SPDX-License-Identifier: MIT
#pragma once

#include <numbers>

inline constexpr double ZAMPI = std::numbers::pi;
inline constexpr double ZAM2PI = 2.0 * std::numbers::pi;
/// Radians in a degree.
inline constexpr double ZAMDegreeToRadian = std::numbers::pi / 180.0;
