// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoText.h"

#include "generators/cairo/ZAMPrintCairoColour.h"
#include "generators/cairo/ZAMPrintCairoGlyphs.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoStretch.h"
#include "generators/cairo/ZAMPrintCairoWorld.h"

#include <cmath>

namespace {

ZAMMathBox2D Grow(const ZAMMathBox2D& box, double margin) {
    return {box.xMin - margin, box.yMin - margin, box.xMax + margin, box.yMax + margin};
}

} // namespace

ZAMPrintCairoText::ZAMPrintCairoText(ZAMPrintCairoCanvas& canvas, ZAMPrintCairoFonts& fonts,
                                     ZAMPrintCairoBitmaps& bitmaps, const ZAMTextLayout& layout,
                                     const ZAMMathAffine2D& toPage)
    : _Canvas(canvas), _Fonts(fonts), _Bitmaps(bitmaps), _Layout(layout), _ToPage(toPage),
      _ToDevice(canvas.ToDevice(toPage)) {}

void ZAMPrintCairoText::Draw(const ZAMPrintFill* fill, const ZAMPrintPen* pen) {
    if (fill != nullptr && fill->colour.alpha > 0) {
        // Outlines may overlap, whatever the rule for other shapes.
        const ZAMPrintFill whole{fill->colour, ZAMPrtFillRule::NonZero, fill->pattern};
        for (const ZAMTextRun& run : _Layout.GetRuns()) {
            Fill(run, whole);
        }
        PaintOutlines(&whole, nullptr);
    }
    if (pen != nullptr && pen->colour.alpha > 0) {
        for (const ZAMTextRun& run : _Layout.GetRuns()) {
            AddOutlines(run, nullptr, pen);
        }
        PaintOutlines(nullptr, pen);
    }
}

/// From em space to device units.
ZAMMath2x2Matrix ZAMPrintCairoText::ShapeOf(const ZAMTextRun& run) const {
    return (_ToDevice * run.emToUnits).Linear();
}

void ZAMPrintCairoText::Fill(const ZAMTextRun& run, const ZAMPrintFill& fill) {
    const ZAMMath2x2Matrix shape = ShapeOf(run);
    const ZAMPrintCairoStretch em(shape);
    // Written so that NaN ends here.
    if (!(em.longest >= ZAMPrintCairoLimits::kSmallestEm && std::isfinite(em.longest))) {
        return;
    }
    const bool isVector = _Canvas.GetKind() == ZAMPrintCairoCanvas::Kind::Vector;
    const bool isShowable =
        em.longest <= ZAMPrintCairoLimits::kLargestEm && em.shortest >= em.longest * ZAMPrintCairoLimits::kFlattestEm;
    if (!run.face->hasOutlines) {
        const bool isLarge = em.shortest >= ZAMPrintCairoLimits::kSmallestBitmapEm;
        if (isVector && isLarge && em.longest <= ZAMPrintCairoLimits::kFarthestPoint) {
            PaintBitmaps(run, shape, fill.colour.alpha / 255.0);
        } else if (isLarge && isShowable) {
            ShowBitmaps(run, shape, fill.colour.alpha / 255.0);
        }
    } else if (!(isVector && isShowable && fill.pattern == nullptr && Show(run, shape, fill.colour))) {
        AddOutlines(run, &fill, nullptr);
    }
}

/// False when cairo has no such font.
bool ZAMPrintCairoText::Show(const ZAMTextRun& run, const ZAMMath2x2Matrix& shape, const ZAMPrintColour& colour) {
    cairo_scaled_font_t* font = _Fonts.Find(*run.face, shape);
    if (font == nullptr) {
        return false;
    }
    cairo_t* context = _Canvas.GetContext();
    cairo_set_scaled_font(context, font);
    ZAMPrintCairoColour::SetSource(context, colour);
    ZAMPrintCairoGlyphs(_Layout, run, _ToDevice).Show(context);
    return true;
}

/// In a picture cairo's own way serves: its pixels are the picture's.
void ZAMPrintCairoText::ShowBitmaps(const ZAMTextRun& run, const ZAMMath2x2Matrix& shape, double opacity) {
    ZAMMathBox2D places;
    for (const ZAMTextGlyph& glyph : _Layout.GetGlyphs(run)) {
        places.Add(_ToDevice.Apply(glyph.origin));
    }
    const double em = ZAMPrintCairoStretch(shape).longest;
    const ZAMMathBox2D box = Grow(places, em * ZAMPrintCairoLimits::kFarthestInk).Intersection(_Canvas.GetPage());
    if (box.IsEmpty()) {
        return;
    }
    cairo_t* context = _Canvas.GetContext();
    cairo_save(context);
    cairo_rectangle(context, box.xMin, box.yMin, box.Width(), box.Height());
    cairo_clip(context);
    // Glyphs in colours of their own take no opacity from the source.
    cairo_push_group(context);
    static_cast<void>(Show(run, shape, {0, 0, 0, 255}));
    cairo_pop_group_to_source(context);
    cairo_paint_with_alpha(context, opacity);
    cairo_restore(context);
}

void ZAMPrintCairoText::PaintBitmaps(const ZAMTextRun& run, const ZAMMath2x2Matrix& shape, double opacity) {
    constexpr double kPixel = 1.0 / ZAMPrintCairoBitmaps::kEm;
    const double em = ZAMPrintCairoStretch(shape).longest;
    const ZAMMathBox2D near = Grow(_Canvas.GetPage(), em * ZAMPrintCairoLimits::kFarthestInk);
    for (const ZAMTextGlyph& glyph : _Layout.GetGlyphs(run)) {
        const ZAMMathPoint2D place = _ToDevice.Apply(glyph.origin);
        if (ZAMPrintCairoWorld::Contains(near, place)) {
            const ZAMMathAffine2D emToDevice{shape.a, shape.c, shape.b, shape.d, place.x, place.y};
            const ZAMPrintCairoBitmap& bitmap = _Bitmaps.Find(*run.face, glyph.id, _Fonts);
            bitmap.Paint(_Canvas.GetContext(), emToDevice * ZAMMathAffine2D{kPixel, 0.0, 0.0, -kPixel, 0.0, 0.0},
                         opacity);
        }
    }
}

/// Glyphs that cannot reach the page are left out: a long text may have a million of them.
void ZAMPrintCairoText::AddOutlines(const ZAMTextRun& run, const ZAMPrintFill* fill, const ZAMPrintPen* pen) {
    const double em = ZAMPrintCairoStretch(ShapeOf(run)).longest;
    if (!(em >= ZAMPrintCairoLimits::kSmallestEm && std::isfinite(em)) || !run.face->hasOutlines) {
        return;
    }
    const double penReach =
        pen == nullptr ? 0.0
                       : pen->width * ZAMPrintCairoStretch(_ToDevice.Linear()).longest * ZAMPrintPen::kMiterLimit / 2.0;
    const ZAMMathBox2D near = Grow(_Canvas.GetPage(), penReach + em * ZAMPrintCairoLimits::kFarthestInk);
    for (const ZAMTextGlyph& glyph : _Layout.GetGlyphs(run)) {
        if (ZAMPrintCairoWorld::Contains(near, _ToDevice.Apply(glyph.origin))) {
            ZAMMathAffine2D map = run.emToUnits;
            map.e = glyph.origin.x;
            map.f = glyph.origin.y;
            run.face->GetOutline(glyph.id).Trace(map, _Outlines);
        }
        if (_Outlines.GetPoints().size() > ZAMPrintCairoLimits::kManyOutlinePoints) {
            PaintOutlines(fill, pen);
        }
    }
}

void ZAMPrintCairoText::PaintOutlines(const ZAMPrintFill* fill, const ZAMPrintPen* pen) {
    if (!_Outlines.IsEmpty()) {
        _Canvas.DrawPath(_Outlines, _ToPage, fill, pen);
        _Outlines.Clear();
    }
}
