// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPlainPage.h"

#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoMap.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr ZAMMath2x2Matrix kAsIs{1.0, 0.0, 0.0, 1.0};

/// So many that the page could be shown 12,000 pixels wide before a reader could see that there are no more. A
/// hundredth of a point is finer than any printer.
int CountDecimals(double width, double height) {
    constexpr double kSteps = 12000.0;
    const double side = std::max(width, height);
    int decimals = 2;
    for (double step = 0.01; step * kSteps > side && decimals < 5; step /= 10.0) {
        ++decimals;
    }
    return decimals;
}

/// A wide pen follows the direction of each line, which rounding turns the more the shorter the line is: whether many
/// are so short that it would show at the pen's sides, or in the lengths that dashes are measured by.
bool NeedsFinerPlaces(const ZAMPrintPath& path, const ZAMPrintCairoPen& pen) {
    constexpr double kWidthsForShort = 0.05;
    constexpr double kShortForDashes = 0.2;
    constexpr std::size_t kSharesForMany = 4;
    const double bound = std::max(pen.GetWidth() * kWidthsForShort, pen.IsDashed() ? kShortForDashes : 0.0);
    const auto points = path.GetPoints();
    std::size_t shortLines = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double x = std::abs(points[i].x - points[i - 1].x);
        const double y = std::abs(points[i].y - points[i - 1].y);
        shortLines += x < bound && y < bound && (x > 0.0 || y > 0.0) ? 1 : 0;
    }
    return shortLines * kSharesForMany > points.size();
}

bool IsUpright(const ZAMMathAffine2D& map) {
    return (map.b == 0.0 && map.c == 0.0) || (map.a == 0.0 && map.d == 0.0);
}

bool Contains(const ZAMMathBox2D& outer, const ZAMMathBox2D& inner) {
    return outer.xMin <= inner.xMin && outer.yMin <= inner.yMin && outer.xMax >= inner.xMax && outer.yMax >= inner.yMax;
}

} // namespace

ZAMPrintCairoPlainPage::ZAMPrintCairoPlainPage(double width, double height)
    : _Page{0.0, 0.0, width, height}, _Decimals(CountDecimals(width, height)), _Path(_Text) {
    // PDF counts upward.
    for (const double number : {1.0, 0.0, 0.0, -1.0, 0.0, height}) {
        _Text.AddNumber(number);
    }
    _Text.AddWord("cm");
}

void ZAMPrintCairoPlainPage::Paint(const ZAMPrintColour& colour) {
    if (colour.alpha == 0) {
        return;
    }
    const ZAMPrintFill fill{colour};
    DrawPath(ZAMPrintPath::OfBox(_Page), {}, &fill, nullptr);
}

void ZAMPrintCairoPlainPage::PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) {
    Clip& clip = _Clips.emplace_back();
    if (area.IsEmpty() || ZAMPrintCairoMap::IsSingular(toPage)) {
        clip.kind = Clip::Kind::Nothing;
    } else if (!(IsUpright(toPage) && Contains(toPage.Apply(area), _Page))) {
        clip.kind = Clip::Kind::Path;
        _IsPlain = _IsPlain && area.Width() > 0.0 && area.Height() > 0.0 && Assign(ZAMPrintPath::OfBox(area), toPage);
        clip.path = _Device.GetPath();
        // A rectangle with a corner that is no place is left to cairo, which cuts it first.
        _IsPlain = _IsPlain && clip.path.GetVerbs().size() == 5;
    }
}

void ZAMPrintCairoPlainPage::PopClip() {
    if (_Clips.back().isWritten) {
        _Text.AddWord("Q");
        _State = std::move(_Clips.back().outside);
    }
    _Clips.pop_back();
}

void ZAMPrintCairoPlainPage::DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                                      const ZAMPrintPen* pen) {
    std::optional<ZAMPrintCairoPen> stroke;
    if (pen != nullptr && pen->colour.alpha > 0) {
        stroke.emplace(*pen, toPage.Linear());
    }
    const bool strokes = stroke && stroke->Paints();
    const bool fills = fill != nullptr && fill->colour.alpha > 0;
    if (!_IsPlain || IsHidden() || ZAMPrintCairoMap::IsSingular(toPage) || !(fills || strokes)) {
        return;
    }
    _IsPlain = Assign(path, toPage) && !(strokes && (stroke->IsFlat() || stroke->HasManyDashes(_Device.GetPath())));
    if (!_IsPlain || _Device.GetPath().IsEmpty() || !Shows(strokes ? stroke->GetReach() : 0.0)) {
        return;
    }
    WriteClips();
    _PathDecimals = strokes && NeedsFinerPlaces(_Device.GetPath(), *stroke) ? _Decimals + 2 : _Decimals;
    const bool fillsArea = fills && HasWrittenArea();
    if (fillsArea && strokes && stroke->IsRound() && stroke->IsOpaque() && fill->colour.alpha == 255) {
        SetColour(_State.fill, fill->colour, "rg");
        Stroke(*stroke, fill->rule == ZAMPrtFillRule::EvenOdd ? "B*" : "B");
        return;
    }
    if (fillsArea) {
        Fill(*fill);
    }
    if (strokes) {
        stroke->IsRound() ? Stroke(*stroke, "S") : StrokeShaped(*stroke);
    }
}

/// Makes the path the one that is being drawn; false when it reaches too far.
bool ZAMPrintCairoPlainPage::Assign(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage) {
    _Device.Assign(path, toPage);
    _Box = {};
    for (const ZAMMathPoint2D& point : _Device.GetPath().GetPoints()) {
        _Box.Add(point);
    }
    return _Device.IsNear();
}

bool ZAMPrintCairoPlainPage::IsHidden() const {
    return std::ranges::any_of(_Clips, [](const Clip& clip) { return clip.kind == Clip::Kind::Nothing; });
}

/// Whether the page shows anything of the path, or of what reaches so far from it.
bool ZAMPrintCairoPlainPage::Shows(double reach) const {
    return _Box.xMax + reach >= _Page.xMin && _Box.xMin - reach <= _Page.xMax && _Box.yMax + reach >= _Page.yMin &&
           _Box.yMin - reach <= _Page.yMax;
}

/// Those that have no mark in them are never written.
void ZAMPrintCairoPlainPage::WriteClips() {
    for (Clip& clip : _Clips) {
        if (clip.kind == Clip::Kind::Path && !clip.isWritten) {
            clip.isWritten = true;
            clip.outside = _State;
            _Text.AddWord("q");
            _Path.Write(clip.path, kAsIs, true, _Decimals);
            _Text.AddWord("W n");
        }
    }
}

/// What has no area as it is written has nothing to fill; a reader would paint a hair.
bool ZAMPrintCairoPlainPage::HasWrittenArea() const {
    const double units = std::pow(10.0, _PathDecimals);
    const auto differ = [units](double a, double b) { return std::round(a * units) != std::round(b * units); };
    return differ(_Box.xMin, _Box.xMax) && differ(_Box.yMin, _Box.yMax);
}

void ZAMPrintCairoPlainPage::Fill(const ZAMPrintFill& fill) {
    SetColour(_State.fill, fill.colour, "rg");
    _Path.Write(_Device.GetPath(), kAsIs, true, _PathDecimals);
    _Text.AddWord(fill.rule == ZAMPrtFillRule::EvenOdd ? "f*" : "f");
}

void ZAMPrintCairoPlainPage::Stroke(const ZAMPrintCairoPen& pen, std::string_view word) {
    SetColour(_State.stroke, pen.GetColour(), "RG");
    SetPen(pen);
    _Path.Write(_Device.GetPath(), kAsIs, false, _PathDecimals);
    _Text.AddWord(word);
}

/// With a pen that is no circle: the path is written in the pen's units, in which it is one.
void ZAMPrintCairoPlainPage::StrokeShaped(const ZAMPrintCairoPen& pen) {
    SetColour(_State.stroke, pen.GetColour(), "RG");
    SetPen(pen);
    _Text.AddWord("q");
    const ZAMMath2x2Matrix& m = pen.GetToDevice();
    for (const double number : {m.a, m.c, m.b, m.d, 0.0, 0.0}) {
        // Entries are 1 at most, and the path's numbers the longer the shorter they are.
        _Text.AddFixed(std::llround(number * 1e12), 12);
    }
    _Text.AddWord("cm");
    _Path.Write(_Device.GetPath(), pen.GetFromDevice(), false, _PathDecimals);
    _Text.AddWord("S");
    _Text.AddWord("Q");
}

void ZAMPrintCairoPlainPage::SetColour(ZAMPrintColour& known, const ZAMPrintColour& colour, std::string_view word) {
    SetOpacity(colour.alpha);
    if (known.red == colour.red && known.green == colour.green && known.blue == colour.blue) {
        return;
    }
    for (const int component : {colour.red, colour.green, colour.blue}) {
        // Three decimals tell all 256 apart.
        _Text.AddFixed((component * 1000 + 127) / 255, 3);
    }
    _Text.AddWord(word);
    known = colour;
}

void ZAMPrintCairoPlainPage::SetOpacity(int opacity) {
    if (opacity != _State.opacity) {
        _Opacities.insert(opacity);
        _Text.AddWord("/a" + std::to_string(opacity));
        _Text.AddWord("gs");
        _State.opacity = opacity;
    }
}

void ZAMPrintCairoPlainPage::SetPen(const ZAMPrintCairoPen& pen) {
    if (pen.GetWidth() != _State.width) {
        AddLength(pen.GetWidth());
        _Text.AddWord("w");
        _State.width = pen.GetWidth();
    }
    if (pen.GetCap() != _State.cap) {
        _Text.AddFixed(pen.GetCap(), 0); // the same numbers
        _Text.AddWord("J");
        _State.cap = pen.GetCap();
    }
    if (pen.GetJoin() != _State.join) {
        _Text.AddFixed(pen.GetJoin(), 0);
        _Text.AddWord("j");
        _State.join = pen.GetJoin();
    }
    if (!_State.hasMiterLimit && pen.GetJoin() == CAIRO_LINE_JOIN_MITER) {
        _Text.AddNumber(ZAMPrintPen::kMiterLimit);
        _Text.AddWord("M");
        _State.hasMiterLimit = true;
    }
    if (pen.GetDashes() != _State.dashes || pen.GetDashOffset() != _State.dashOffset) {
        _Text.AddWord("[");
        std::ranges::for_each(pen.GetDashes(), [this](double dash) { AddLength(dash); });
        _Text.AddWord("]");
        AddLength(pen.GetDashOffset());
        _Text.AddWord("d");
        _State.dashes = pen.GetDashes();
        _State.dashOffset = pen.GetDashOffset();
    }
}

/// With three significant digits more than none; what is no length at all would be a hair.
void ZAMPrintCairoPlainPage::AddLength(double length) {
    constexpr double kCoarse = 0.1;
    constexpr double kShortest = 1e-6; // that six decimals write
    if (length >= kCoarse) {
        _Text.AddFixed(std::llround(length * 1e4), 4);
    } else {
        _Text.AddNumber(length > 0.0 ? std::max(length, kShortest) : 0.0);
    }
}
