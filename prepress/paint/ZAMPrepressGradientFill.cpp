// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressGradientFill.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/paint/ZAMPrepressLeafSpace.h"
#include "prepress/paint/ZAMPrepressPng.h"
#include "prepress/paint/ZAMPrepressSolidPaint.h"
#include "prepress/paint/ZAMPrepressTileArea.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

// In the space of a gradient its vector, or its radius, has this length: about that of leaves as they are drawn.
constexpr double kSpaceUnit = 100.0;
// A leaf that would be smaller than this in the space of its gradient stays where it is.
constexpr double kSmallestMoved = 1.0;
// Offsets that change less than this across a leaf do not show.
constexpr double kNoChange = 1.0 / 1024.0;

constexpr double kDensity = 300.0 / 90.0; // pixels a unit of print
// Where the colours change evenly viewers need no more pixels than there are colours to show.
constexpr double kMostChange = 2.0; // from pixel to pixel, in 255ths
constexpr double kFewestPixels = 16.0;
constexpr double kMostSmooth = 512.0;
constexpr double kMostSharp = 1024.0;     // with jumps of colour
constexpr double kMostAlongLine = 1024.0; // in a single row or column
constexpr double kMostSharpAlongLine = 4096.0;

ZAMPrepressInterval Sorted(double one, double other) {
    return {std::min(one, other), std::max(one, other)};
}

double GetPeriod(ZAMPrepressSpread spread) {
    return spread == ZAMPrepressSpread::Reflect ? 2.0 : 1.0;
}

ZAMPrepressInterval RangeOf(const ZAMPrepressOffsets& offsets, const ZAMMathBox2D& box) {
    ZAMPrepressInterval range{offsets.At({box.xMin, box.yMin}), offsets.At({box.xMin, box.yMin})};
    for (const ZAMMathPoint2D& corner : box.Corners()) {
        const double offset = offsets.At(corner);
        range = {std::min(range.from, offset), std::max(range.to, offset)};
    }
    return range;
}

// A linear gradient whose offsets change along one axis only, as far as it shows within the box, exactly so.
void Straighten(ZAMPrepressOffsets& offsets, const ZAMMathBox2D& box) {
    ZAMMathAffine2D& map = offsets.toGradient;
    if (std::abs(map.c) * box.Height() < kNoChange) {
        map.e += map.c * (box.yMin + box.Height() / 2.0);
        map.c = 0.0;
    } else if (std::abs(map.a) * box.Width() < kNoChange) {
        map.e += map.a * (box.xMin + box.Width() / 2.0);
        map.a = 0.0;
    }
    map.b = map.d = map.f = 0.0;
}

bool IsAlongAxis(const ZAMPrepressOffsets& offsets) {
    return !offsets.isRadial && (offsets.toGradient.a == 0.0 || offsets.toGradient.c == 0.0);
}

// The space of a gradient: for a linear one turned so that its offsets change with x, beginning beside the middle of
// the box, and as large in y as in x.
ZAMMathAffine2D GetSpace(const ZAMPrepressOffsets& offsets, const ZAMMathAffine2D& toLeaf, const ZAMMathBox2D& box) {
    if (offsets.isRadial) {
        return toLeaf * ZAMMathAffine2D{1.0 / kSpaceUnit, 0.0, 0.0, 1.0 / kSpaceUnit, 0.0, 0.0};
    }
    const double slope = offsets.GetSlope();
    const double x = offsets.toGradient.a / slope;
    const double y = offsets.toGradient.c / slope;
    const double unit = 1.0 / (slope * kSpaceUnit);
    const ZAMMathPoint2D middle{box.xMin + box.Width() / 2.0, box.yMin + box.Height() / 2.0};
    const double way = offsets.At(middle) / slope;
    return {x * unit, y * unit, -y * unit, x * unit, middle.x - x * way, middle.y - y * way};
}

std::size_t CountPixels(double length, double density, double most) {
    return static_cast<std::size_t>(std::clamp(std::ceil(length * density), kFewestPixels, most));
}

// As many as the print can show, or as the colours need where these change little.
ZAMPrepressPixels CountPixels(const ZAMPrepressRamp& ramp, const ZAMPrepressOffsets& offsets, const ZAMMathBox2D& area,
                              double density) {
    const double steepness = ramp.GetSteepness();
    const bool isSmooth = std::isfinite(steepness);
    const double enough = std::min(density, offsets.GetSlope() * steepness / kMostChange);
    if (!IsAlongAxis(offsets)) {
        const double most = isSmooth ? kMostSmooth : kMostSharp;
        return {CountPixels(area.Width(), enough, most), CountPixels(area.Height(), enough, most)};
    }
    const double most = isSmooth ? kMostAlongLine : kMostSharpAlongLine;
    return offsets.toGradient.c == 0.0 ? ZAMPrepressPixels{CountPixels(area.Width(), enough, most), 1}
                                       : ZAMPrepressPixels{1, CountPixels(area.Height(), enough, most)};
}

std::string MakeKey(std::size_t ramp, const ZAMPrepressOffsets& offsets, const ZAMMathBox2D& area) {
    const ZAMMathAffine2D& map = offsets.toGradient;
    std::string key = offsets.isRadial ? "radial" : "linear";
    key += std::to_string(ramp);
    for (const double number : {map.a, map.b, map.c, map.d, map.e, map.f, offsets.focus.x, offsets.focus.y,
                                offsets.focalRadius, area.xMin, area.yMin, area.xMax, area.yMax}) {
        key += ' ';
        ZAMPrepressAppendNumber(key, number);
    }
    return key;
}

} // namespace

bool ZAMPrepressGradientFill::IsSolid(const ZAMMathBox2D& box) const {
    return _Gradient.IsPoint() && !(_Gradient.isOfBox && (box.Width() == 0.0 || box.Height() == 0.0));
}

// From the gradient's own units (see ZAMPrepressOffsets) to those of a leaf with the box.
ZAMMathAffine2D ZAMPrepressGradientFill::GetToLeaf(const ZAMMathBox2D& box) const {
    ZAMMathAffine2D map = _Gradient.transform;
    if (_Gradient.isOfBox) {
        map = ZAMMathAffine2D{box.Width(), 0.0, 0.0, box.Height(), box.xMin, box.yMin} * map;
    }
    const ZAMMathPoint2D& start = _Gradient.start;
    const ZAMMathPoint2D& end = _Gradient.end;
    if (_Gradient.isRadial) {
        return map * ZAMMathAffine2D{_Gradient.radius, 0.0, 0.0, _Gradient.radius, end.x, end.y};
    }
    const double x = end.x - start.x;
    const double y = end.y - start.y;
    return map * ZAMMathAffine2D{x, y, -y, x, start.x, start.y};
}

// The offsets across a leaf with the box. Nothing where they cannot be told.
std::optional<ZAMPrepressOffsets> ZAMPrepressGradientFill::GetOffsets(const ZAMMathBox2D& box) const {
    const ZAMMathAffine2D toLeaf = GetToLeaf(box);
    if (!toLeaf.IsFinite() || !toLeaf.Linear().IsInvertible()) {
        return std::nullopt;
    }
    ZAMPrepressOffsets offsets{_Gradient.isRadial, ZAMPrepressInverse(toLeaf), {}};
    if (_Gradient.isRadial) {
        offsets.focus = {(_Gradient.start.x - _Gradient.end.x) / _Gradient.radius,
                         (_Gradient.start.y - _Gradient.end.y) / _Gradient.radius};
        offsets.focalRadius = _Gradient.focalRadius / _Gradient.radius;
    } else {
        Straighten(offsets, box);
    }
    return offsets;
}

// The colour of all of a leaf with the box; nothing where it has several.
std::optional<ZAMPrepressPremultiplied> ZAMPrepressGradientFill::FindOnlyColour(const ZAMPrepressOffsets& offsets,
                                                                                const ZAMMathBox2D& box) const {
    if (_Ramp.ramp->IsConstant()) {
        return _Ramp.ramp->GetLast();
    }
    if (_Gradient.isRadial) {
        return std::nullopt;
    }
    const ZAMPrepressInterval range = RangeOf(offsets, box);
    const bool isBeside = _Gradient.spread == ZAMPrepressSpread::Pad && (range.to <= 0.0 || range.from >= 1.0);
    return isBeside || range.GetLength() < kNoChange ? std::optional(_Ramp.ramp->At((range.from + range.to) / 2.0))
                                                     : std::nullopt;
}

void ZAMPrepressGradientFill::Fill(ZAMPrepressTree& tree, ZAMPrepressTileBook& book,
                                   const ZAMPrepressFilledLeaf& leaf) const {
    if (IsSolid(leaf.box)) {
        return ZAMPrepressPaintSolid(tree, *leaf.element, "fill", _Ramp.ramp->GetLast());
    }
    const auto offsets = GetOffsets(leaf.box);
    if (!offsets) {
        return leaf.element->Set("fill", "none");
    }
    if (const auto colour = FindOnlyColour(*offsets, leaf.shown)) {
        return ZAMPrepressPaintSolid(tree, *leaf.element, "fill", *colour);
    }
    if (!ZAMPrepressCanBeCovered(leaf.shown, leaf.toDrawing)) {
        return ZAMPrepressPaintSolid(tree, *leaf.element, "fill", _Ramp.ramp->GetMean());
    }
    if (IsAlongAxis(*offsets) || !FillMoved(tree, book, leaf, *offsets)) {
        book.Fill(*leaf.element, MakeTile(*offsets, leaf.shown, leaf.toDrawing));
    }
}

// False, and nothing done, when the leaf cannot be moved.
bool ZAMPrepressGradientFill::FillMoved(ZAMPrepressTree& tree, ZAMPrepressTileBook& book,
                                        const ZAMPrepressFilledLeaf& leaf, const ZAMPrepressOffsets& offsets) const {
    if (leaf.path == nullptr) {
        return false;
    }
    const ZAMMathAffine2D space = GetSpace(offsets, GetToLeaf(leaf.box), leaf.shown);
    const ZAMMathAffine2D toSpace = ZAMPrepressInverse(space);
    const ZAMPrepressPath path = ZAMPrepressMapPath(*leaf.path, toSpace);
    const ZAMMathBox2D shown = path.GetBox().Intersection(ZAMPrepressMapBox(leaf.shown, toSpace));
    if (!(std::max(shown.Width(), shown.Height()) >= kSmallestMoved) ||
        !ZAMPrepressCanBeCovered(shown, leaf.toDrawing * space)) {
        return false;
    }
    ZAMPrepressOffsets moved = offsets;
    moved.toGradient = {1.0 / kSpaceUnit, 0.0, 0.0, offsets.isRadial ? 1.0 / kSpaceUnit : 0.0, 0.0, 0.0};
    book.Fill(ZAMPrepressMoveLeaf(tree, *leaf.element, path, space), MakeTile(moved, shown, leaf.toDrawing * space));
    return true;
}

ZAMPrepressTile ZAMPrepressGradientFill::MakeTile(const ZAMPrepressOffsets& offsets, const ZAMMathBox2D& box,
                                                  const ZAMMathAffine2D& toDrawing) const {
    const double scale = ZAMPrepressGetScale(toDrawing);
    ZAMPrepressInterval x = ZAMPrepressCoverSide({box.xMin, box.xMax}, kZAMPrepressTileMargin / scale);
    ZAMPrepressInterval y = ZAMPrepressCoverSide({box.yMin, box.yMax}, kZAMPrepressTileMargin / scale);
    const ZAMMathAffine2D& map = offsets.toGradient;
    if (IsAlongAxis(offsets)) {
        // A gradient that repeats itself within the leaf does so with the tile.
        const double slope = map.a + map.c; // one of them is 0
        const ZAMPrepressInterval period = Sorted(-map.e / slope, (GetPeriod(_Gradient.spread) - map.e) / slope);
        ZAMPrepressInterval& side = map.c == 0.0 ? x : y;
        if (_Gradient.spread != ZAMPrepressSpread::Pad && period.GetLength() < side.GetLength()) {
            side = period;
        }
    }
    ZAMPrepressTile tile;
    tile.area = {x.from, y.from, x.to, y.to};
    tile.pixels = CountPixels(*_Ramp.ramp, offsets, tile.area, kDensity * scale);
    tile.mean = _Ramp.ramp->GetMean();
    tile.key = MakeKey(_Ramp.number, offsets, tile.area);
    tile.draw = [ramp = _Ramp.ramp, offsets, area = tile.area](const ZAMPrepressPixels& pixels) {
        return ZAMPrepressWritePng(ZAMPrepressDrawGradient(*ramp, offsets, area, pixels));
    };
    return tile;
}
