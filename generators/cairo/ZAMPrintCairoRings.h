// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/visualisation/ZAMPixelImage.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/// A picture whose colours depend on the distance from a point and on nothing else: rings, as a radial gradient has
/// them. As such it takes a hundredth of the bytes that its pixels take, and is smooth at any size.
class ZAMPrintCairoRings {
public:
    /// False when Find gives nothing without a look at the pixels.
    [[nodiscard]] static bool AreSought(const ZAMPixelImage& image, double aspect);

    /// What every pixel of the picture agrees with, but for what rounding changes; nothing for any other picture. The
    /// aspect is a pixel's height divided by its width.
    [[nodiscard]] static std::optional<ZAMPrintCairoRings> Find(const ZAMPixelImage& image, double aspect);

    /// The rings as a source. The map carries lengths in widths of a pixel, from the upper left corner of the picture
    /// and y downward, to device units. `opacity` is a factor, 0 to 1, of the source itself: cairo 1.16 loses that of a
    /// gradient that it is to paint with another. Null when the map cannot be inverted.
    [[nodiscard]] ZAMPrintCairoPattern MakeSource(const ZAMMathAffine2D& toDevice, double opacity) const;

private:
    static constexpr std::size_t kChannels = 4;   // blue, green, red, alpha, as pixels hold them
    using Colour = std::array<double, kChannels>; // 0 to 255, multiplied by the alpha

    // The picture with its pixels at their places.
    class Pixels;

    ZAMPrintCairoRings(const Pixels& pixels, const ZAMMathPoint2D& centre);

    [[nodiscard]] static std::optional<ZAMPrintCairoRings> FindAbout(const ZAMMathPoint2D& place, const Pixels& pixels);
    [[nodiscard]] bool IsSmooth() const;
    [[nodiscard]] bool IsSeen() const;
    [[nodiscard]] Colour At(double distance) const;
    [[nodiscard]] double FindError(const Pixels& pixels) const;
    [[nodiscard]] std::optional<ZAMMathVector2D> FindWay(const Pixels& pixels) const;
    void FillGaps(const std::vector<double>& weights);
    void Straighten();
    void ChooseStops(std::size_t first, std::size_t last);

    ZAMMathPoint2D _Centre;
    std::vector<Colour> _Rings;      ///< at distances of 0, 1, 2 ...
    std::vector<std::size_t> _Stops; ///< those that the others lie between
};
