// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/text/ZAMPrepressFonts.h"

/// The box of a text element of one run, in its own units: its line as the render lays it out. Empty when it cannot be
/// laid out.
[[nodiscard]] ZAMMathBox2D ZAMPrepressGetTextBox(const ZAMPrepressElement& text, ZAMPrepressFonts& fonts);
