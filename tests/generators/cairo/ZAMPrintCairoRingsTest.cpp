// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPictures.h"
#include "tests/generators/cairo/Drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

/// Rings about a place, from `inner` to `outer` in all channels, a pixel apart, and `flatness` times as wide as high.
ZAMRef<ZAMPixelImage> MakeRings(double x, double y, double inner, double outer, double flatness = 1.0) {
    return MakeImage(64, 64, [=](int column, int row) {
        const double distance = std::min(std::hypot(column + 0.5 - x, (row + 0.5 - y) * flatness) / 40.0, 1.0);
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
        {"a dot", MakeImage(17, 17, [](int x, int y) { return x == 8 && y == 8 ? 0xFF000000U : 0xFFFFFFFFU; }), 80.0,
         1},
        {"a faint rectangle",
         MakeImage(64, 64, [](int x, int y) { return x > 20 && x < 40 && y > 9 ? 0xFFF3F3F3U : 0xFFF0F0F0U; }), 80.0,
         1},
        {"a faint checker", MakeImage(64, 64, [](int x, int y) { return (x / 8 + y / 8) % 2 == 0 ? 0x05000000U : 0U; }),
         80.0, 1},
        {"an ellipse", MakeRings(20.25, 37.5, 240.0, 40.0, 1.1), 80.0, 1},
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

TEST(ZAMPrintCairoRings, AreNotSoughtForever) {
    // Each aspect of a shared picture is searched for itself; 32 large ones are enough.
    const auto image = MakeImage(1024, 1024, [](int x, int y) {
        const auto grey = static_cast<std::uint32_t>(std::lround(255.0 - std::hypot(x - 500.0, y - 400.0) / 5.0));
        return 0xFF000000U | grey * 0x010101U;
    });
    ZAMPrintCairoPictures pictures(ZAMPrintCairoPictures::Fate::Stored);
    const auto huge = MakeImage(1025, 1024, [](int, int) { return 0xFF000000U; });
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(pictures.FindRings(huge, 1.0 + i * 0.01), nullptr);
    }
    EXPECT_NE(pictures.FindRings(image, 1.0), nullptr);
    for (int i = 1; i < 32; ++i) {
        EXPECT_EQ(pictures.FindRings(image, 1.5 + i * 0.01), nullptr) << i;
    }
    const auto same = MakeRings(20.25, 37.5, 240.0, 40.0);
    EXPECT_EQ(pictures.FindRings(same, 1.0), nullptr);
    EXPECT_NE(pictures.FindRings(image, 1.0), nullptr); // it is known already
}
