// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoCanvas.h"

#include "generators/cairo/ZAMPrintCairoColour.h"
#include "generators/cairo/ZAMPrintCairoContour.h"
#include "generators/cairo/ZAMPrintCairoFillCutter.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoMap.h"
#include "generators/cairo/ZAMPrintCairoPicturePainter.h"
#include "generators/cairo/ZAMPrintCairoPictures.h"
#include "generators/cairo/ZAMPrintCairoReach.h"
#include "generators/cairo/ZAMPrintCairoStrokeCutter.h"
#include "generators/cairo/ZAMPrintCairoTiles.h"
#include "generators/cairo/ZAMPrintCairoWorld.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

void Emit(cairo_t* context, const ZAMPrintPath& path) {
    const ZAMMathPoint2D* p = path.GetPoints().data();
    for (const ZAMPrintPath::Verb verb : path.GetVerbs()) {
        switch (verb) {
        case ZAMPrintPath::Verb::MoveTo:
            cairo_move_to(context, p[0].x, p[0].y);
            break;
        case ZAMPrintPath::Verb::LineTo:
            cairo_line_to(context, p[0].x, p[0].y);
            break;
        case ZAMPrintPath::Verb::CubicTo:
            cairo_curve_to(context, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
            break;
        case ZAMPrintPath::Verb::ClosePath:
            cairo_close_path(context);
            break;
        }
        p += ZAMPrintPath::PointsOf(verb);
    }
}

void SetFillRule(cairo_t* context, ZAMPrtFillRule rule) {
    cairo_set_fill_rule(context, rule == ZAMPrtFillRule::EvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
}

} // namespace

ZAMPrintCairoCanvas::ZAMPrintCairoCanvas(cairo_surface_t* surface, Kind kind, ZAMPrintCairoPictures& pictures,
                                         double width, double height, double scale)
    : _Context(cairo_create(surface)), _Kind(kind), _Pictures(pictures), _Page{0.0, 0.0, width * scale, height * scale},
      _Scale(scale) {}

ZAMPrintCairoCanvas::ZAMPrintCairoCanvas(std::function<cairo_surface_t*()> makeSurface, ZAMPrintCairoPictures& pictures,
                                         double width, double height)
    : _MakeSurface(std::move(makeSurface)), _Kind(Kind::Vector), _Pictures(pictures), _Page{0.0, 0.0, width, height},
      _Scale(1.0) {}

void ZAMPrintCairoCanvas::Open() {
    if (IsOpen()) {
        return;
    }
    _Context.reset(cairo_create(_MakeSurface()));
    _Clips = 0;
    MarkWholePage();
    std::exchange(_Record, {}).Replay(*this);
}

/// Cairo keeps the region that its marks cover and joins each new mark to it, which takes the longer the more
/// rectangles it consists of: a page of 100,000 marks spends most of its time there. A first mark as large as the page
/// makes the region one rectangle, to which nothing needs joining. The same rectangle twice has no interior under the
/// even-odd rule, and its edges, which some viewers show, lie off the page: nothing is painted.
void ZAMPrintCairoCanvas::MarkWholePage() {
    constexpr double kOff = 10.0;
    cairo_set_fill_rule(_Context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    for (int i = 0; i < 2; ++i) {
        cairo_rectangle(_Context.get(), -kOff, -kOff, _Page.Width() + 2 * kOff, _Page.Height() + 2 * kOff);
    }
    cairo_fill(_Context.get());
}

void ZAMPrintCairoCanvas::Paint(const ZAMPrintColour& colour) {
    if (!IsOpen()) {
        return _Record.Paint(colour);
    }
    ZAMPrintCairoColour::SetSource(_Context.get(), colour);
    cairo_paint(_Context.get());
}

void ZAMPrintCairoCanvas::PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) {
    ++_Clips;
    if (!IsOpen()) {
        return _Record.PushClip(area, toPage);
    }
    cairo_save(_Context.get());
    cairo_set_antialias(_Context.get(), CAIRO_ANTIALIAS_DEFAULT);
    const ZAMMathAffine2D toDevice = ToDevice(toPage);
    if (!area.IsEmpty() && !ZAMPrintCairoMap::IsSingular(toDevice)) {
        ClipTo(area, toDevice);
    }
    // Without a path nothing is left open.
    cairo_clip(_Context.get());
}

void ZAMPrintCairoCanvas::PopClip() {
    if (_Clips > 0) {
        --_Clips;
        IsOpen() ? cairo_restore(_Context.get()) : _Record.PopClip();
    }
}

void ZAMPrintCairoCanvas::PopAllClips() {
    while (_Clips > 0) {
        PopClip();
    }
}

void ZAMPrintCairoCanvas::DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                                   const ZAMPrintPen* pen) {
    if (!IsOpen() && (fill == nullptr || fill->pattern == nullptr)) {
        return _Record.DrawPath(path, toPage, fill, pen);
    }
    Open();
    const ZAMMathAffine2D toDevice = ToDevice(toPage);
    const bool fills = fill != nullptr && fill->colour.alpha > 0;
    std::optional<ZAMPrintCairoPen> stroke;
    if (pen != nullptr && pen->colour.alpha > 0) {
        stroke.emplace(*pen, toDevice.Linear());
    }
    const bool strokes = stroke && stroke->Paints();
    if (ZAMPrintCairoMap::IsSingular(toDevice) || !(fills || strokes)) {
        return;
    }
    _Path.Assign(path, toDevice);
    // Before the path is the context's: what is drawn for the tiles would add to it.
    std::vector<ZAMPrintCairoPattern> tiles;
    double opacity = 1.0;
    if (fills && fill->pattern != nullptr) {
        opacity = fill->colour.alpha / 255.0;
        if (auto rings = MakeRings(*fill->pattern, opacity, toDevice)) {
            tiles.push_back(std::move(rings));
            opacity = 1.0;
        } else {
            tiles = MakeTiles(*fill->pattern, toDevice);
        }
    }
    _IsMuchWork = IsMuchWork(strokes ? stroke->GetReach() : 0.0);
    cairo_set_antialias(_Context.get(), _IsMuchWork ? CAIRO_ANTIALIAS_NONE : CAIRO_ANTIALIAS_DEFAULT);
    EmitFill();
    if (fills) {
        fill->pattern == nullptr ? Fill(*fill) : FillWithTiles(fill->rule, tiles, opacity);
    }
    if (strokes) {
        Stroke(*stroke);
    }
    cairo_new_path(_Context.get());
}

void ZAMPrintCairoCanvas::DrawImage(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toPage) {
    Open();
    ZAMPrintCairoPicturePainter(_Context.get(), _Kind, _Page, _Pictures).Draw(image, ToDevice(toPage));
}

ZAMMathAffine2D ZAMPrintCairoCanvas::ToDevice(const ZAMMathAffine2D& toPage) const {
    return ZAMMathAffine2D{_Scale, 0.0, 0.0, _Scale, 0.0, 0.0} * toPage;
}

/// What the page shows of marks that reach so far from their paths.
ZAMMathBox2D ZAMPrintCairoCanvas::GetView(double reach) const {
    const double margin = reach + ZAMPrintCairoLimits::kPageMargin;
    return ZAMPrintCairoWorld::kBox.Intersection(
        {_Page.xMin - margin, _Page.yMin - margin, _Page.xMax + margin, _Page.yMax + margin});
}

void ZAMPrintCairoCanvas::ClipTo(const ZAMMathBox2D& area, const ZAMMathAffine2D& toDevice) {
    // No corner may overflow: an area without a corner would not be the area.
    constexpr double kFarthest = 1e100;
    _Path.Assign(ZAMPrintPath::OfBox(area.Intersection({-kFarthest, -kFarthest, kFarthest, kFarthest})), toDevice);
    if (_Path.GetPath().GetVerbs().size() == 5) {
        cairo_set_fill_rule(_Context.get(), CAIRO_FILL_RULE_WINDING);
        EmitFill();
    }
}

/// Whether cairo would take long to find the path's pixels.
bool ZAMPrintCairoCanvas::IsMuchWork(double reach) const {
    const double rows = _Page.Height();
    double edgeRows = 0.0;
    double previous = 0.0;
    for (const ZAMMathPoint2D& point : _Path.GetPath().GetPoints()) {
        edgeRows += std::min(std::abs(point.y - previous) + reach, rows);
        previous = point.y;
    }
    const double edgePairs = edgeRows / std::max(rows, 1.0) * edgeRows;
    return _Kind == Kind::Picture &&
           (edgeRows > ZAMPrintCairoLimits::kMostEdgeRows || edgePairs > ZAMPrintCairoLimits::kMostEdgePairs);
}

/// Makes the path the context's, so that its interior is right wherever the page is.
void ZAMPrintCairoCanvas::EmitFill() {
    Emit(_Context.get(),
         _Path.IsNear() ? _Path.GetPath() : ZAMPrintCairoFillCutter::Cut(_Path.GetPath(), GetView(0.0)));
}

/// The paint of a fill of the path.
std::vector<ZAMPrintCairoPattern> ZAMPrintCairoCanvas::MakeTiles(const ZAMPrtFillPattern& pattern,
                                                                 const ZAMMathAffine2D& toDevice) {
    ZAMMathBox2D clip;
    cairo_clip_extents(_Context.get(), &clip.xMin, &clip.yMin, &clip.xMax, &clip.yMax);
    const ZAMMathBox2D shown = ZAMPrintCairoReach(_Path.GetPath()).Intersection(clip).Intersection(_Page);
    if (!(shown.Width() > 0.0 && shown.Height() > 0.0)) {
        return {};
    }
    const ZAMMathBox2D area{std::floor(shown.xMin), std::floor(shown.yMin), std::ceil(shown.xMax),
                            std::ceil(shown.yMax)};
    return ZAMPrintCairoTiles(*this, _Pictures, pattern, toDevice, area).MakeSources();
}

/// The paint of a fill with a single bitmap of rings; null for any other.
ZAMPrintCairoPattern ZAMPrintCairoCanvas::MakeRings(const ZAMPrtFillPattern& pattern, double opacity,
                                                    const ZAMMathAffine2D& toDevice) const {
    const ZAMMathVector2D& step = pattern.step;
    const auto isSeamless = [](double size, double each) { return std::abs(size - each) <= each / 512.0; };
    if (_Kind != Kind::Vector || !isSeamless(pattern.size.x, step.x) || !isSeamless(pattern.size.y, step.y) ||
        ZAMPrintCairoMap::IsFlat(toDevice)) {
        return nullptr;
    }
    const ZAMMathBox2D filled = ZAMPrintCairoReach(_Path.GetPath(), ZAMPrintCairoMap::Invert(toDevice));
    const double x = std::floor((filled.xMin - pattern.refPoint.x) / step.x) * step.x + pattern.refPoint.x;
    const double y = std::floor((filled.yMin - pattern.refPoint.y) / step.y) * step.y + pattern.refPoint.y;
    if (!(filled.xMax <= x + step.x && filled.yMax <= y + step.y)) {
        return nullptr;
    }
    const double pixelWidth = step.x / pattern.image->GetWidth();
    const double pixelHeight = step.y / pattern.image->GetHeight();
    const ZAMPrintCairoRings* rings = _Pictures.FindRings(pattern.image, pixelHeight / pixelWidth);
    return rings == nullptr
               ? nullptr
               : rings->MakeSource(toDevice * ZAMMathAffine2D{pixelWidth, 0.0, 0.0, -pixelWidth, x, y + step.y},
                                   opacity);
}

// The path stays: of a fill and a stroke of one path the PDF makes one operator.

void ZAMPrintCairoCanvas::Fill(const ZAMPrintFill& fill) {
    SetFillRule(_Context.get(), fill.rule);
    ZAMPrintCairoColour::SetSource(_Context.get(), fill.colour);
    cairo_fill_preserve(_Context.get());
}

void ZAMPrintCairoCanvas::FillWithTiles(ZAMPrtFillRule rule, const std::vector<ZAMPrintCairoPattern>& tiles,
                                        double opacity) {
    cairo_t* context = _Context.get();
    cairo_save(context);
    SetFillRule(context, rule);
    cairo_clip_preserve(context);
    for (const ZAMPrintCairoPattern& source : tiles) {
        cairo_set_source(context, source.get());
        cairo_paint_with_alpha(context, opacity);
    }
    cairo_restore(context);
}

void ZAMPrintCairoCanvas::Stroke(ZAMPrintCairoPen& pen) {
    if (_Path.IsNear() && !pen.HasManyDashes(_Path.GetPath()) && !_IsMuchWork) {
        pen.Stroke(_Context.get(), 0.0);
    } else {
        StrokePieces(pen);
    }
}

void ZAMPrintCairoCanvas::StrokePieces(ZAMPrintCairoPen& pen) {
    ZAMPrintCairoStrokeCutter::Measure measure;
    if (pen.IsDashed()) {
        measure = [&pen](const ZAMMathVector2D& offset) { return pen.Measure(offset); };
    }
    const auto pieces = ZAMPrintCairoStrokeCutter::Cut(_Path.GetPath(), GetView(pen.GetReach()), measure);
    double length = 0.0;
    for (const auto& piece : pieces) {
        length += pen.IsDashed() ? pen.Measure(piece.path) : 0.0;
    }
    if (!(pen.CountDashSteps(length) <= ZAMPrintCairoLimits::kMostDashSteps)) {
        pen.MakeSolid();
    }
    cairo_new_path(_Context.get());
    for (const auto& piece : pieces) {
        if (pen.IsDashed()) {
            Emit(_Context.get(), piece.path);
            pen.Stroke(_Context.get(), piece.walked);
        } else {
            AddSolid(piece.path, pen);
        }
    }
    if (cairo_has_current_point(_Context.get()) != 0) {
        pen.Stroke(_Context.get(), 0.0);
    }
}

/// All pieces of a solid line are one mark, unless that is too much work and the parts' overlaps cannot be seen.
void ZAMPrintCairoCanvas::AddSolid(const ZAMPrintPath& contour, const ZAMPrintCairoPen& pen) {
    if (!(_IsMuchWork && pen.IsOpaque())) {
        Emit(_Context.get(), contour);
        return;
    }
    for (const ZAMPrintPath& part : ZAMPrintCairoContour::Divide(contour, pen.GetWidth())) {
        Emit(_Context.get(), part);
        pen.Stroke(_Context.get(), 0.0);
    }
}
