// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintColour.h"

#include <optional>
#include <string_view>

/// Reads "#rgb", "#rrggbb", a colour keyword of SVG 1.1, or "none" or "transparent", which give no colour; letter case
/// does not count. False, and `colour` as it was, for any other text.
bool ReadBackgroundColour(std::string_view text, std::optional<ZAMPrintColour>& colour);
