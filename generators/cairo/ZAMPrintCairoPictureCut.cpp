// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPictureCut.h"

#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoMap.h"

#include <algorithm>
#include <cmath>

namespace {

/// Pixels in a row along one side of the picture, and the part of that side, of length 1, that they fill.
struct Run {
    int first;
    int count;
    double from;
    double to;
};

/// What lies between `from` and `to` of a side with so many pixels.
std::vector<Run> CutSide(int pixels, double pixelLength, double from, double to) {
    const int first = static_cast<int>(std::clamp(std::floor(from * pixels), 0.0, pixels - 1.0));
    const int last = static_cast<int>(std::clamp(std::ceil(to * pixels) - 1.0, double(first), pixels - 1.0));
    if (pixelLength <= ZAMPrintCairoLimits::kLargestPixel) {
        return {{first, last - first + 1, static_cast<double>(first) / pixels, (last + 1.0) / pixels}};
    }
    // No page shows so many large pixels; rounding may seem to find them when the map is nearly singular.
    constexpr int kMost = 1000;
    if (last - first >= kMost) {
        return {};
    }
    std::vector<Run> single;
    for (int pixel = first; pixel <= last; ++pixel) {
        single.push_back(
            {pixel, 1, std::max(from, static_cast<double>(pixel) / pixels), std::min(to, (pixel + 1.0) / pixels)});
    }
    return single;
}

} // namespace

std::vector<ZAMPrintCairoPictureCut::Part>
ZAMPrintCairoPictureCut::Cut(int width, int height, const ZAMMathAffine2D& toDevice, const ZAMMathBox2D& view) {
    const ZAMMathBox2D seen = ZAMPrintCairoMap::Invert(toDevice).Apply(view).Intersection({0.0, 0.0, 1.0, 1.0});
    if (seen.IsEmpty()) {
        return {};
    }
    const auto columns = CutSide(width, std::hypot(toDevice.a, toDevice.b) / width, seen.xMin, seen.xMax);
    // Rows are counted from above, and y from below.
    const auto rows = CutSide(height, std::hypot(toDevice.c, toDevice.d) / height, 1.0 - seen.yMax, 1.0 - seen.yMin);
    std::vector<Part> parts;
    for (const Run& row : rows) {
        for (const Run& column : columns) {
            const ZAMMathAffine2D toPicture{column.to - column.from, 0.0,         0.0,
                                            row.to - row.from,       column.from, 1.0 - row.to};
            parts.push_back({column.first, row.first, column.count, row.count, toDevice * toPicture});
        }
    }
    return parts;
}
