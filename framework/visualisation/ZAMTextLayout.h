// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/visualisation/ZAMTextFace.h"
#include "framework/visualisation/ZAMTextStyle.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// A glyph and the place of its origin, relative to the text's anchor point, in units, y upward.
struct ZAMTextGlyph {
    std::uint32_t id = 0;
    ZAMMathPoint2D origin;
};

/// The smallest pieces of text and glyphs that belong together; one of the two numbers may be 0.
struct ZAMTextCluster {
    std::uint32_t bytes = 0;
    std::uint32_t glyphs = 0;
};

/// Glyphs of one face, direction and shape.
struct ZAMTextRun {
    const ZAMTextFace* face = nullptr;
    /// Shapes each glyph: em space (see ZAMTextFace) to units about the glyph's origin. Size, expansion, slant,
    /// direction, the turn of vertical text and a synthetic oblique are in it; it has no translation.
    ZAMMathAffine2D emToUnits;
    bool rightToLeft = false;
    std::size_t textStart = 0; ///< the run's bytes of the layout's text
    std::size_t textLength = 0;
    std::size_t firstGlyph = 0; ///< of the layout's glyphs, in visual order
    std::size_t glyphCount = 0;
    std::size_t firstCluster = 0; ///< of the layout's clusters, in the order of the text
    std::size_t clusterCount = 0;
};

/// A text on one line, laid out: bidirectional and complex scripts, characters that the font lacks from other fonts.
///
/// Metrics are those of the font's design, without hinting, so that a layout is the same at every size. Control
/// characters are dropped; a tab or line break counts as a blank. A text that cannot be laid out (no font at hand, a
/// height that is not finite and positive, numbers that overflow) is empty.
///
/// Mode 0 runs left to right, 1 right to left: what decides is the base direction of neutral characters and the order
/// of mixed runs; start is the left end in mode 0 and the right end in mode 1. Mode 2 runs top to bottom: East Asian
/// characters stand upright and centred on the column, other scripts are turned clockwise. There start, middle and end
/// go down the column; baseline and middle are its centre line, bottom its left side, top its right side.
class ZAM_EXPORT ZAMTextLayout {
public:
    ZAMTextLayout(std::string_view text, const ZAMTextStyle& style);

    [[nodiscard]] bool IsEmpty() const { return _Runs.empty(); }
    /// The box around the line from the highest ascender to the lowest descender of its fonts and over its advances, in
    /// units, y upward, relative to the anchor point, with everything applied; empty for an empty layout.
    [[nodiscard]] const ZAMMathBox2D& GetExtents() const { return _Extents; }

    /// The text that the runs' bytes and clusters count in: valid UTF-8 without control characters.
    [[nodiscard]] std::string_view GetText() const { return _Text; }
    /// In visual order. The runs together cover the text.
    [[nodiscard]] std::span<const ZAMTextRun> GetRuns() const { return _Runs; }
    [[nodiscard]] std::string_view GetText(const ZAMTextRun& run) const {
        return std::string_view(_Text).substr(run.textStart, run.textLength);
    }
    [[nodiscard]] std::span<const ZAMTextGlyph> GetGlyphs(const ZAMTextRun& run) const {
        return std::span(_Glyphs).subspan(run.firstGlyph, run.glyphCount);
    }
    /// In the order of the text: in a right-to-left run the first cluster has the last glyphs.
    [[nodiscard]] std::span<const ZAMTextCluster> GetClusters(const ZAMTextRun& run) const {
        return std::span(_Clusters).subspan(run.firstCluster, run.clusterCount);
    }

    /// Traces the outlines of a run, relative to the anchor point, into a sink as ZAMGlyphOutline does.
    template <class Sink> void TraceOutlines(const ZAMTextRun& run, Sink& sink) const {
        for (const ZAMTextGlyph& glyph : GetGlyphs(run)) {
            ZAMMathAffine2D map = run.emToUnits;
            map.e = glyph.origin.x;
            map.f = glyph.origin.y;
            run.face->GetOutline(glyph.id).Trace(map, sink);
        }
    }

private:
    std::string _Text;
    std::vector<ZAMTextRun> _Runs;
    std::vector<ZAMTextGlyph> _Glyphs;
    std::vector<ZAMTextCluster> _Clusters;
    ZAMMathBox2D _Extents;
};
