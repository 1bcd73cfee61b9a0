// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/visualisation/ZAMGlyphOutline.h"

#include <cstdint>
#include <string>

/// A face as the runs of a layout name it: all that is needed to open the font elsewhere. There is one object for each
/// face in use; they live as long as the process, so that their addresses can serve as keys.
struct ZAM_EXPORT ZAMTextFace {
    std::string file;
    int faceIndex = 0;          ///< as FreeType counts it: a named instance in the upper 16 bits
    std::string variations;     ///< axis settings "wght=250,wdth=80" on top of the instance; mostly empty
    bool syntheticBold = false; ///< the face is too light and is to be made bolder (ZAMGlyphOutline is already)
    bool hasOutlines = true;    ///< false for fonts of colour bitmaps (emoji), which have no outlines to fill

    /// The glyph in em space (1 is the em, y upward, origin on the baseline), unhinted; empty for blanks, for glyphs
    /// without outlines and for a font that cannot be read. Fill it with the non-zero rule.
    [[nodiscard]] ZAMGlyphOutline GetOutline(std::uint32_t glyph) const;

    bool operator==(const ZAMTextFace&) const = default;
};
