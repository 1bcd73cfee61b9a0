// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMTextLayout.h"

#include <cairo.h>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// A run of glyphs with the text that they stand for, in device units and as cairo takes them. Letters that touch a
/// place out of reach are left out.
///
/// Text that runs from right to left comes backward, as its glyphs stand: readers of PDF order such text by themselves,
/// and take glyphs that are shown from right to left for so many words. A mark has no text of its own: it counts as its
/// letter's, since readers take a glyph above or below the line for the beginning of another line.
class ZAMPrintCairoGlyphs {
public:
    ZAMPrintCairoGlyphs(const ZAMTextLayout& layout, const ZAMTextRun& run, const ZAMMathAffine2D& toDevice);

    /// With the context's font and colour.
    void Show(cairo_t* context) const;

private:
    void AddText(std::string_view text, bool isBackward);
    void AddGlyphs(std::span<const cairo_glyph_t> glyphs, std::size_t bytes, std::size_t marks);

    std::string _Text;
    std::vector<cairo_glyph_t> _Glyphs;
    std::vector<cairo_text_cluster_t> _Clusters;
};
