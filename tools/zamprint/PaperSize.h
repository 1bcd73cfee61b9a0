// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathVector2D.h"

#include <optional>
#include <string_view>

/// Points in a length with a unit: "12mm", "1.5cm", "2in", "36pt"; without one points. Nothing for any other text, and
/// for what is negative or no number.
[[nodiscard]] std::optional<double> ReadPaperLength(std::string_view text);

/// A paper's width and height in points: a name (ISO 216 "A0" to "A6", "Letter", "Legal", "Tabloid"; upright, case
/// aside) or two lengths ("210x297mm", where the first may leave its unit to the second). Sides are from 1 to 14,400
/// points. Nothing for any other text.
[[nodiscard]] std::optional<ZAMMathVector2D> FindPaperSize(std::string_view text);
