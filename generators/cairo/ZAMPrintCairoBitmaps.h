// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMTextFace.h"
#include "generators/cairo/ZAMPrintCairoBitmap.h"
#include "generators/cairo/ZAMPrintCairoFonts.h"

#include <cstdint>
#include <map>
#include <utility>

/// The glyphs of fonts that hold no outlines but coloured bitmaps: emoji, for a surface that keeps the marks. Cairo
/// itself would paint them there with one pixel to the unit.
class ZAMPrintCairoBitmaps {
public:
    /// Pixels to the em, about as many as the fonts have.
    static constexpr double kEm = 128.0;

    /// Valid until the next call.
    [[nodiscard]] const ZAMPrintCairoBitmap& Find(const ZAMTextFace& face, std::uint32_t glyph,
                                                  ZAMPrintCairoFonts& fonts);

private:
    std::map<std::pair<const ZAMTextFace*, std::uint32_t>, ZAMPrintCairoBitmap> _Bitmaps;
};
