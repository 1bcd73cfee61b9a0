// SPDX-License-Identifier: MIT
#pragma once

/// A resolved colour: sRGB components and opacity (255 opaque).
struct ZAMPrintColour {
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    unsigned char alpha = 255;

    bool operator==(const ZAMPrintColour&) const = default;
};
