// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressTileArea.h"

#include "prepress/paint/ZAMPrepressLeafSpace.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// What is larger than this, or becomes smaller by it on paper, is not worth the trouble that its numbers make.
constexpr double kFarthest = 1e9;
constexpr double kMargin = 1.0 / 16.0; // of the side
// Tiles end at multiples of this share of their side, so that those of leaves of almost the same size are the same.
constexpr double kGrid = 1.0 / 16.0;

} // namespace

ZAMPrepressInterval ZAMPrepressCoverSide(const ZAMPrepressInterval& side, double leastMargin) {
    const double margin = std::max(kMargin * side.GetLength(), leastMargin);
    const double length = side.GetLength() + 2.0 * margin;
    const double cell = std::exp2(std::ceil(std::log2(length))) * kGrid;
    return {std::floor((side.from - margin) / cell) * cell, std::ceil((side.to + margin) / cell) * cell};
}

bool ZAMPrepressCanBeCovered(const ZAMMathBox2D& box, const ZAMMathAffine2D& toDrawing) {
    const double scale = ZAMPrepressGetScale(toDrawing);
    return std::ranges::all_of(std::array{box.xMin, box.yMin, box.xMax, box.yMax},
                               [](double side) { return std::abs(side) <= kFarthest; }) &&
           scale * kFarthest >= 1.0 && scale <= kFarthest;
}

ZAMMathBox2D ZAMPrepressMapBox(const ZAMMathBox2D& box, const ZAMMathAffine2D& map) {
    ZAMMathBox2D mapped;
    for (const ZAMMathPoint2D& corner : box.Corners()) {
        mapped.Add(map.Apply(corner));
    }
    return mapped;
}
