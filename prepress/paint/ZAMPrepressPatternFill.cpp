// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPatternFill.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/geometry/ZAMPrepressViewport.h"
#include "prepress/paint/ZAMPrepressLeafSpace.h"
#include "prepress/paint/ZAMPrepressSolidPaint.h"
#include "prepress/paint/ZAMPrepressTileArea.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr double kDensity = 600.0 / 90.0; // pixels a unit of print: patterns have edges
constexpr double kMostPixels = 2048.0;    // a side

std::string MakeKey(const ZAMPrepressVectorPattern& pattern, const ZAMMathBox2D& area, const ZAMMathBox2D& part) {
    const ZAMMathAffine2D& map = pattern.toTile;
    std::string key = "pattern" + std::to_string(reinterpret_cast<std::uintptr_t>(pattern.content));
    for (const double number : {area.xMin, area.yMin, area.xMax, area.yMax, part.xMin, part.yMin, part.xMax, part.yMax,
                                map.a, map.b, map.c, map.d, map.e, map.f}) {
        key += ' ';
        ZAMPrepressAppendNumber(key, number);
    }
    return key;
}

// Where a side of a tile is filled from: `area` is in units of the leaf, `part` in those of the tile.
struct Side {
    ZAMPrepressInterval area;
    ZAMPrepressInterval part;
    double pixels;
};

// Of one tile, but of no more than the leaf shows where that is within a single large tile, and of several where these
// are smaller than a pixel. `shown` and `area` are in the same units, `length` is that of the tile.
Side FitSide(const ZAMPrepressInterval& shown, const ZAMPrepressInterval& area, double length, double density,
             double margin) {
    const double scale = area.GetLength() / length;
    const double pixels = area.GetLength() * density;
    if (pixels < 1.0) {
        return {{area.from, area.from + 1.0 / density}, {0.0, length}, 1.0};
    }
    const double tile = std::floor((shown.from - area.from) / area.GetLength());
    const double start = area.from + tile * area.GetLength();
    const double from = std::max(shown.from - margin, start);
    const double to = std::min(shown.to + margin, start + area.GetLength());
    if (pixels <= kMostPixels || !(shown.to <= start + area.GetLength()) || !(from < to)) {
        return {area, {0.0, length}, pixels};
    }
    return {{from, to}, {(from - start) / scale, (to - start) / scale}, (to - from) * density};
}

// The tile in the leaf's own units as far as these can be kept: moved, and made larger or smaller.
ZAMMathBox2D GetUprightTile(const ZAMPrepressVectorPattern& pattern) {
    const ZAMMathAffine2D& map = pattern.toLeaf;
    const ZAMMathPoint2D corner = map.Apply(ZAMMathPoint2D{});
    return {corner.x, corner.y, corner.x + pattern.width * std::hypot(map.a, map.b),
            corner.y + pattern.height * std::hypot(map.c, map.d)};
}

struct Place {
    ZAMMathBox2D area;
    ZAMMathBox2D part; ///< of the tile that the area shows
    ZAMPrepressPixels pixels;
    bool isMoved; ///< the area is in units of the tile, to which the leaf has to be moved
};

// Nothing when the numbers are beyond all measure.
std::optional<Place> FindPlace(const ZAMPrepressVectorPattern& pattern, const ZAMPrepressFilledLeaf& leaf) {
    const ZAMMathAffine2D& map = pattern.toLeaf;
    const bool isUpright = map.b == 0.0 && map.c == 0.0 && map.a > 0.0 && map.d > 0.0;
    const bool isMoved = !isUpright && leaf.path != nullptr;
    const ZAMMathBox2D tile = isMoved ? ZAMMathBox2D{0.0, 0.0, pattern.width, pattern.height} : GetUprightTile(pattern);
    const ZAMMathAffine2D toDrawing = isMoved ? leaf.toDrawing * map : leaf.toDrawing;
    const ZAMMathBox2D shown = isMoved ? ZAMPrepressMapBox(leaf.shown, ZAMPrepressInverse(map)) : leaf.shown;
    const double scale = ZAMPrepressGetScale(toDrawing);
    if (!ZAMPrepressHasArea(tile) || !ZAMPrepressCanBeCovered(shown, toDrawing)) {
        return std::nullopt;
    }
    const double margin = kZAMPrepressTileMargin / scale;
    const Side x = FitSide({shown.xMin, shown.xMax}, {tile.xMin, tile.xMax}, pattern.width, kDensity * scale, margin);
    const Side y = FitSide({shown.yMin, shown.yMax}, {tile.yMin, tile.yMax}, pattern.height, kDensity * scale, margin);
    const auto count = [](double pixels) {
        return static_cast<std::size_t>(std::clamp(std::ceil(pixels), 1.0, kMostPixels));
    };
    return Place{{x.area.from, y.area.from, x.area.to, y.area.to},
                 {x.part.from, y.part.from, x.part.to, y.part.to},
                 {count(x.pixels), count(y.pixels)},
                 isMoved};
}

} // namespace

void ZAMPrepressFillWithPattern(const ZAMPrepressTileDrawer& drawer, const ZAMPrepressVectorPattern& pattern,
                                const ZAMPrepressPremultiplied& mean, const ZAMPrepressFilledLeaf& leaf) {
    ZAMPrepressTree& tree = drawer.tree;
    const auto place = FindPlace(pattern, leaf);
    if (tree.GetTileRenderer() == nullptr || !place) {
        return ZAMPrepressPaintSolid(tree, *leaf.element, "fill", mean);
    }
    ZAMPrepressTile tile;
    tile.area = place->area;
    tile.pixels = place->pixels;
    tile.mean = mean;
    tile.key = MakeKey(pattern, place->area, place->part);
    tile.draw = [drawer, pattern, part = place->part](const ZAMPrepressPixels& pixels) {
        return drawer.Draw(pattern, part, pixels);
    };
    ZAMPrepressElement* element = leaf.element;
    if (place->isMoved) {
        const ZAMPrepressPath path = ZAMPrepressMapPath(*leaf.path, ZAMPrepressInverse(pattern.toLeaf));
        element = &ZAMPrepressMoveLeaf(tree, *leaf.element, path, pattern.toLeaf);
    }
    drawer.book.Fill(*element, std::move(tile));
}
