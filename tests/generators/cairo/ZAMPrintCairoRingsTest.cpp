// SPDX-License-Identifier: MIT
#include "tests/generators/cairo/Drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

/// Rings about a place, from `inner` to `outer` in all channels, a pixel apart.
ZAMRef<ZAMPixelImage> MakeRings(double x, double y, double inner, double outer) {
    return MakeImage(64, 64, [=](int column, int row) {
        const double distance = std::min(std::hypot(column + 0.5 - x, row + 0.5 - y) / 40.0, 1.0);
        const auto alpha = static_cast<std::uint32_t>(std::lround(inner + (outer - inner) * distance));
        return alpha << 24U | alpha / 2 << 16U | alpha;
    });
}

/// The same but for one pixel.
ZAMRef<ZAMPixelImage> Spoil(const ZAMRef<ZAMPixelImage>& image, std::uint32_t change) {
    return MakeImage(64, 64, [&](int column, int row) {
        const std::uint32_t pixel =
            image->GetPixels()[static_cast<std::size_t>(row) * 64 + static_cast<std::size_t>(column)];
        return column == 50 && row == 20 ? pixel - change : pixel;
    });
}

std::string DrawTile(const ZAMRef<ZAMPixelImage>& image, unsigned int alpha, double side) {
    ZAMPrtFillPattern pattern;
    pattern.image = image;
    pattern.refPoint = {10.0, 10.0};
    pattern.size = {side, side};
    pattern.step = {side, side};
    const ZAMPrintFill fill{{0, 0, 0, static_cast<unsigned char>(alpha)}, ZAMPrtFillRule::NonZero, &pattern};
    return DrawPdf([&](auto& g) {
        g.DrawPath(MakeRectangle(12.0, 12.0, 76.0, 76.0), {1.0, 0.0, 0.0, -1.0, 0.0, 100.0}, &fill, nullptr);
    });
}

std::string Show(const std::string& pdf) {
    return Ask("pdftoppm", "-r 72 -singlefile {}", pdf);
}

} // namespace

TEST(ZAMPrintCairoRings, OnlyRingsBecomeAGradient) {
    const auto rings = MakeRings(20.25, 37.5, 240.0, 40.0);
    const struct {
        const char* what;
        ZAMRef<ZAMPixelImage> image;
        double side;
        int images; ///< whether the PDF holds any
    } rows[] = {
        {"rings", rings, 80.0, 0},
        {"from nothing", MakeRings(32.0, 32.0, 0.0, 255.0), 80.0, 0},
        {"about a place outside", MakeRings(-9.0, 70.0, 255.0, 90.0), 80.0, 0},
        {"several tiles", rings, 20.0, 1},
        {"a pixel that differs", Spoil(rings, 0x0A000000U), 80.0, 1},
        {"stripes", MakeImage(64, 64, [](int x, int) { return 0x01000001U * static_cast<unsigned int>(2 * x + 90); }),
         80.0, 1},
        {"one colour", MakeImage(64, 64, [](int, int) { return 0x80008000U; }), 80.0, 1},
    };
    for (const auto& row : rows) {
        const std::string pdf = DrawTile(row.image, 255, row.side);
        ExpectSound(pdf);
        EXPECT_EQ(std::min(Count(Uncompress(pdf), "/Subtype /Image"), 1), row.images) << row.what;
    }
}

TEST(ZAMPrintCairoRings, LookAsTheirPixelsDo) {
    const auto rings = MakeRings(20.25, 37.5, 240.0, 10.0);
    for (const unsigned int alpha : {255U, 100U}) {
        const std::string smooth = Show(DrawTile(rings, alpha, 80.0));
        // So little is no ring any more, and cannot be seen.
        const std::string pixels = Show(DrawTile(Spoil(rings, 0x05000000U), alpha, 80.0));
        ASSERT_EQ(smooth.size(), pixels.size());
        int different = 0;
        for (std::size_t i = 0; i < smooth.size(); ++i) {
            const int change = static_cast<unsigned char>(smooth[i]) - static_cast<unsigned char>(pixels[i]);
            different += std::abs(change) > 6 ? 1 : 0;
        }
        // The reader shows a row more of pictures.
        EXPECT_LT(different, 2 * 77 * 3) << alpha;
        EXPECT_NE(smooth, pixels);
    }
}
