// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressGradientPicture.h"

#include <algorithm>
#include <cmath>

namespace {

// Finer ramps are no quicker to tabulate than to ask.
constexpr double kMostLevels = 4096.0;
// A pixel whose colour changes by more 255ths from side to side has to show the mean of it.
constexpr double kMostChange = 32.0;
// A palette holds no more colours.
constexpr double kFewestLevels = 255.0;

// Where the circle through the point is on its way from the one about the focus (offset 0) to the unit circle (offset
// 1): the larger solution t of |p - f + t f| = r + t (1 - r), with f the focus and r the radius about it.
double OffsetOfCircle(const ZAMMathPoint2D& focus, double radius, const ZAMMathPoint2D& point) {
    const double x = point.x - focus.x;
    const double y = point.y - focus.y;
    const double growth = 1.0 - radius;
    const double a = growth * growth - focus.x * focus.x - focus.y * focus.y;
    const double b = x * focus.x + y * focus.y - radius * growth;
    return (b + std::sqrt(std::max(0.0, b * b + a * (x * x + y * y - radius * radius)))) / a;
}

// The pixels of a ramp whose colours change evenly enough that so many of them cannot be told from all.
class Levels {
public:
    Levels(const ZAMPrepressRamp& ramp, double count)
        : _Ramp(ramp), _Count(count), _Pixels(static_cast<std::size_t>(count) + 1, 0) {}

    std::uint32_t At(double offset) {
        const double level = std::floor(_Ramp.Fold(offset) * _Count + 0.5);
        std::uint32_t& pixel = _Pixels[static_cast<std::size_t>(level)];
        if (pixel == 0) { // not asked for yet, or transparent
            pixel = ZAMPrepressPicture::ToPixel(_Ramp.At(level / _Count));
        }
        return pixel;
    }

private:
    const ZAMPrepressRamp& _Ramp;
    double _Count;
    std::vector<std::uint32_t> _Pixels;
};

// Calls `paint` with the middle of each pixel of the area, row by row.
template <typename Paint>
void ForEachPixel(const ZAMMathBox2D& area, const ZAMPrepressPixels& size, const Paint& paint) {
    const double xStep = area.Width() / static_cast<double>(size.width);
    const double yStep = area.Height() / static_cast<double>(size.height);
    for (std::size_t row = 0; row < size.height; ++row) {
        const double y = area.yMin + (static_cast<double>(row) + 0.5) * yStep;
        for (std::size_t column = 0; column < size.width; ++column) {
            paint(ZAMMathPoint2D{area.xMin + (static_cast<double>(column) + 0.5) * xStep, y});
        }
    }
}

} // namespace

double ZAMPrepressOffsets::At(const ZAMMathPoint2D& point) const {
    const ZAMMathPoint2D mapped = toGradient.Apply(point);
    return isRadial ? OffsetOfCircle(focus, focalRadius, mapped) : mapped.x;
}

double ZAMPrepressOffsets::GetSlope() const {
    const double along = std::hypot(toGradient.a, toGradient.c);
    if (!isRadial) {
        return along;
    }
    return std::max(along, std::hypot(toGradient.b, toGradient.d)) / (1.0 - focalRadius - std::hypot(focus.x, focus.y));
}

ZAMPrepressPicture ZAMPrepressDrawGradient(const ZAMPrepressRamp& ramp, const ZAMPrepressOffsets& offsets,
                                           const ZAMMathBox2D& area, const ZAMPrepressPixels& size) {
    ZAMPrepressPicture picture{size.width, size.height, {}};
    picture.pixels.reserve(size.GetCount());
    const double xStep = area.Width() / static_cast<double>(size.width);
    const double yStep = area.Height() / static_cast<double>(size.height);
    const double steepness = ramp.GetSteepness();
    if (steepness <= kMostLevels && steepness * offsets.GetSlope() * std::max(xStep, yStep) <= kMostChange) {
        Levels levels(ramp, std::max(kFewestLevels, std::ceil(steepness)));
        ForEachPixel(area, size, [&](const auto& point) { picture.pixels.push_back(levels.At(offsets.At(point))); });
        return picture;
    }
    ForEachPixel(area, size, [&](const ZAMMathPoint2D& point) {
        const double offset = offsets.At(point);
        const double reach = (std::abs(offsets.At({point.x + xStep, point.y}) - offset) +
                              std::abs(offsets.At({point.x, point.y + yStep}) - offset)) /
                             2.0;
        picture.pixels.push_back(ZAMPrepressPicture::ToPixel(ramp.Average(offset - reach, offset + reach)));
    });
    return picture;
}
