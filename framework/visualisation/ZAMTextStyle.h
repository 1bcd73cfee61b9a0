// SPDX-License-Identifier: MIT
#pragma once

class ZAMFont;

/// How a text is laid out. "Units" are those of the drawing, in a frame whose y points up. The codes are the print
/// model's; codes and numbers outside their ranges count as the default, except for the height.
struct ZAMTextStyle {
    const ZAMFont* font = nullptr; ///< null: the default serif family
    int weight = 25;               ///< 24 light, 25 the font's own, 26 bold, 27 black
    double height = 16.0;          ///< size of the em in units; not finite or not positive: nothing is laid out
    int anchor = 29;               ///< 28 + 4·(0 start, 1 middle, 2 end) + (0 bottom, 1 baseline, 2 middle, 3 top)
    float slant = 0.0F;            ///< radians by which uprights lean to the right
    float direction = 0.0F;        ///< radians, counter-clockwise: turns the whole text about its anchor
    double extraSpacing = 0.0;     ///< units added between two characters, not changed by the expansion
    double expansion = 1.0;        ///< factor on the width of the glyphs, finite and positive
    int writingMode = 0;           ///< 0 left to right, 1 right to left, 2 top to bottom

    bool operator==(const ZAMTextStyle&) const = default;
};
