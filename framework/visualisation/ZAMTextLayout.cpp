// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMTextLayout.h"

#include "framework/visualisation/ZAMCleanText.h"
#include "framework/visualisation/ZAMShapedText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

enum WritingMode : int { kLeftToRight = 0, kRightToLeft = 1, kTopToBottom = 2 };

// A style whose numbers are all usable.
ZAMTextStyle Repaired(ZAMTextStyle style) {
    const ZAMTextStyle standard;
    const auto repair = [](auto& number, auto otherwise, bool usable) { number = usable ? number : otherwise; };
    repair(style.anchor, standard.anchor, style.anchor >= 28 && style.anchor <= 39);
    repair(style.writingMode, standard.writingMode, style.writingMode >= 0 && style.writingMode <= 2);
    repair(style.slant, standard.slant, std::isfinite(style.slant));
    repair(style.direction, standard.direction, std::isfinite(style.direction));
    repair(style.extraSpacing, standard.extraSpacing, std::isfinite(style.extraSpacing));
    repair(style.expansion, standard.expansion, std::isfinite(style.expansion) && style.expansion > 0.0);
    return style;
}

ZAMMathAffine2D QuarterTurns(int turns) {
    constexpr std::array<int, 4> cosines{1, 0, -1, 0};
    const double cosine = cosines[static_cast<std::size_t>(turns & 3)];
    const double sine = cosines[static_cast<std::size_t>((turns + 3) & 3)];
    return {cosine, sine, -sine, cosine, 0.0, 0.0};
}

// Puts the glyphs of a shaped line in their places. The line's own frame has the pen's way along it, from 0 to its
// length, and "across" upward from the baseline, or to the right of a column's centre line.
class LinePlacement {
public:
    LinePlacement(const ZAMShapedText& shaped, const ZAMTextStyle& style)
        : _Shaped(shaped), _Style(style), _Vertical(style.writingMode == kTopToBottom),
          _Shear(std::tan(static_cast<double>(style.slant))) {
        const double turn = static_cast<double>(style.direction);
        _Direction = {std::cos(turn), std::sin(turn), -std::sin(turn), std::cos(turn), 0.0, 0.0};
    }

    void Place(std::vector<ZAMTextGlyph>& glyphs, std::vector<ZAMTextRun>& runs);
    [[nodiscard]] ZAMMathBox2D Extents() const;

private:
    void PlaceRun(const ZAMShapedText::Run& run, ZAMTextGlyph* glyphs);
    void PlaceGlyph(const ZAMShapedText::Run& run, const ZAMFontsGlyph& glyph, ZAMTextGlyph& placed);
    void Reach(const ZAMShapedText::Run& run);
    [[nodiscard]] ZAMMathAffine2D MapOf(const ZAMShapedText::Run& run) const;
    [[nodiscard]] ZAMMathAffine2D Align() const;
    [[nodiscard]] double AlignAlong() const;
    [[nodiscard]] double AlignAcross() const;

    static bool IsUpright(const ZAMShapedText::Run& run) { return run.quarterTurns % 2 != 0; }
    // From the line's frame to the page's, about the baseline.
    [[nodiscard]] ZAMMathPoint2D OnPage(double along, double across) const {
        return _Vertical ? ZAMMathPoint2D{across, -along} : ZAMMathPoint2D{along + across * _Shear, across};
    }

    const ZAMShapedText& _Shaped;
    const ZAMTextStyle& _Style;
    bool _Vertical;
    double _Shear;
    ZAMMathAffine2D _Direction;
    double _Pen = 0.0;
    bool _SpacingDue = false; ///< before the next cluster
    double _Above = 0.0;      ///< how far the line reaches across, in units
    double _Below = 0.0;
};

void LinePlacement::Place(std::vector<ZAMTextGlyph>& glyphs, std::vector<ZAMTextRun>& runs) {
    glyphs.resize(_Shaped.glyphs.size());
    runs.reserve(_Shaped.runs.size());
    _Above = _Style.height * (_Vertical ? 0.5 * _Style.expansion : _Shaped.ascent);
    _Below = _Style.height * (_Vertical ? 0.5 * _Style.expansion : _Shaped.descent);
    for (const ZAMShapedText::Run& run : _Shaped.runs) {
        PlaceRun(run, glyphs.data() + run.run.firstGlyph);
        Reach(run);
        runs.push_back(run.run);
        runs.back().emToUnits = MapOf(run);
    }
    const ZAMMathAffine2D align = Align();
    for (ZAMTextGlyph& glyph : glyphs) {
        glyph.origin = align.Apply(glyph.origin);
    }
}

// In visual order, because the spacing stands between clusters and not between their glyphs.
void LinePlacement::PlaceRun(const ZAMShapedText::Run& run, ZAMTextGlyph* glyphs) {
    const ZAMFontsGlyph* next = _Shaped.glyphs.data() + run.run.firstGlyph;
    for (std::size_t i = 0; i < run.run.clusterCount; ++i) {
        const std::size_t place = run.run.rightToLeft ? run.run.clusterCount - 1 - i : i;
        const ZAMTextCluster& cluster = _Shaped.clusters[run.run.firstCluster + place];
        if (cluster.glyphs > 0) {
            _Pen += _SpacingDue ? _Style.extraSpacing : 0.0;
            _SpacingDue = true;
        }
        for (std::uint32_t glyph = 0; glyph < cluster.glyphs; ++glyph) {
            PlaceGlyph(run, *next++, *glyphs++);
        }
    }
}

void LinePlacement::PlaceGlyph(const ZAMShapedText::Run& run, const ZAMFontsGlyph& glyph, ZAMTextGlyph& placed) {
    const bool upright = IsUpright(run);
    const double wide = _Style.height * _Style.expansion;
    const double alongScale = upright ? _Style.height : wide;
    const double acrossScale = upright ? wide : _Style.height;
    const double centre = _Vertical && !upright ? (run.ascent - run.descent) / 2.0 : 0.0;
    placed.id = glyph.id;
    placed.origin = OnPage(_Pen + glyph.along * alongScale, (glyph.across - centre) * acrossScale);
    _Pen += glyph.advance * alongScale;
}

void LinePlacement::Reach(const ZAMShapedText::Run& run) {
    if (!_Vertical) {
        _Above = std::max(_Above, run.ascent * _Style.height);
        _Below = std::max(_Below, run.descent * _Style.height);
    } else if (!IsUpright(run)) {
        _Above = std::max(_Above, (run.ascent + run.descent) / 2.0 * _Style.height);
        _Below = std::max(_Below, _Above);
    }
}

ZAMMathAffine2D LinePlacement::MapOf(const ZAMShapedText::Run& run) const {
    const ZAMMathAffine2D size{_Style.height * _Style.expansion, 0.0, 0.0, _Style.height, 0.0, 0.0};
    const ZAMMathAffine2D shear{1.0, 0.0, _Shear, 1.0, 0.0, 0.0};
    return _Direction * QuarterTurns(run.quarterTurns - (_Vertical ? 1 : 0)) * shear * size * run.shape;
}

ZAMMathAffine2D LinePlacement::Align() const {
    // The line moves up and down without its slant: the anchor is a point of the page.
    const double along = AlignAlong();
    const double across = AlignAcross();
    const ZAMMathAffine2D shift = _Vertical ? ZAMMathAffine2D{1.0, 0.0, 0.0, 1.0, across, -along}
                                            : ZAMMathAffine2D{1.0, 0.0, 0.0, 1.0, along, across};
    return _Direction * shift;
}

double LinePlacement::AlignAlong() const {
    const int horizontal = (_Style.anchor - 28) / 4;
    if (horizontal == 1) {
        return -_Pen / 2.0;
    }
    return (horizontal == 2) != (_Style.writingMode == kRightToLeft) ? -_Pen : 0.0;
}

double LinePlacement::AlignAcross() const {
    const double above = _Vertical ? _Above : _Shaped.ascent * _Style.height;
    const double below = _Vertical ? _Below : _Shaped.descent * _Style.height;
    switch ((_Style.anchor - 28) % 4) {
    case 0:
        return below;
    case 2:
        return (below - above) / 2.0;
    case 3:
        return -above;
    default:
        return 0.0;
    }
}

ZAMMathBox2D LinePlacement::Extents() const {
    // A column's glyphs lean one by one, about their baselines.
    const double lean = _Vertical ? std::abs(_Shear) * _Style.height * _Shaped.ascent : 0.0;
    const ZAMMathAffine2D align = Align();
    ZAMMathBox2D box;
    for (const double along : {0.0, _Pen}) {
        for (const double across : {-_Below - lean, _Above + lean}) {
            const ZAMMathPoint2D corner = align.Apply(OnPage(along, across));
            if (!corner.IsFinite()) {
                return {};
            }
            box.Add(corner);
        }
    }
    return box;
}

} // namespace

ZAMTextLayout::ZAMTextLayout(std::string_view text, const ZAMTextStyle& style) : _Text(ZAMCleanText(text)) {
    if (_Text.empty() || !std::isfinite(style.height) || style.height <= 0.0) {
        return;
    }
    const ZAMTextStyle repaired = Repaired(style);
    const auto shaped = ZAMShapedText::sShape(_Text, repaired);
    if (shaped->runs.empty()) {
        return;
    }
    LinePlacement placement(*shaped, repaired);
    placement.Place(_Glyphs, _Runs);
    _Clusters = shaped->clusters;
    _Extents = placement.Extents();
    const bool finite = std::ranges::all_of(_Runs, [](const ZAMTextRun& run) { return run.emToUnits.IsFinite(); });
    if (_Extents.IsEmpty() || !finite) {
        _Runs.clear();
        _Glyphs.clear();
        _Clusters.clear();
        _Extents = {};
    }
}
