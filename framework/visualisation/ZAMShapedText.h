// SPDX-License-Identifier: MIT
#pragma once

#include "framework/fonts/ZAMPrintFontsTable.h"
#include "framework/visualisation/ZAMTextLayout.h"

#include <memory>

/// A line of text in em, before size, anchor and the other numbers of a style: what is worth keeping between the one
/// who measures and the one who draws.
struct ZAMShapedText {
    struct Run {
        ZAMTextRun run; ///< without its map
        ZAMMathAffine2D shape;
        int quarterTurns = 0;
        double ascent = 0.0;
        double descent = 0.0;
    };

    double ascent = 0.0; ///< of the font asked for
    double descent = 0.0;
    std::vector<Run> runs;
    std::vector<ZAMFontsGlyph> glyphs;
    std::vector<ZAMTextCluster> clusters;

    /// The text must be clean. Recent results of the same thread are remembered. Never null; without runs when the text
    /// cannot be laid out.
    static std::shared_ptr<const ZAMShapedText> sShape(const std::string& text, const ZAMTextStyle& style);
};
