// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMTextLayout.h"
#include "tests/generators/cairo/Drawing.h"
#include "tests/generators/cairo/Picture.h"

#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace {

/// Dark greens, between which any seam would show white.
ZAMRef<ZAMPixelImage> MakeTexture(int side) {
    return MakeImage(side, side, [](int x, int y) {
        const std::uint32_t grain = static_cast<std::uint32_t>(x * 7919 + y * 104729) * 2654435761U >> 28U;
        return 0xFF404840U + grain * 0x010101U;
    });
}

/// Red to the left and blue to the right.
ZAMRef<ZAMPixelImage> MakeHalves() {
    return MakeImage(2, 1, [](int x, int) { return x == 0 ? 0xFFFF0000U : 0xFF0000FFU; });
}

ZAMPrtFillPattern MakePattern(const ZAMRef<ZAMPixelImage>& image, const ZAMMathVector2D& size,
                              const ZAMMathVector2D& step, const ZAMMathPoint2D& point = {}) {
    return {image, size, step, point};
}

DrawMarks FillSquare(const ZAMPrtFillPattern& pattern, const ZAMMathAffine2D& toPage, unsigned char alpha = 255) {
    return [=](ZAMPrintCairoGenerator& generator) {
        const ZAMPrintFill fill{{0, 0, 0, alpha}, ZAMPrtFillRule::NonZero, &pattern};
        generator.DrawPath(MakeRectangle(-40.0, -40.0, 80.0, 80.0), toPage, &fill, nullptr);
    };
}

ZAMPrintParameters OnWhite() {
    ZAMPrintParameters parameters;
    parameters.background = ZAMPrintColour{255, 255, 255, 255};
    return parameters;
}

constexpr ZAMMathAffine2D kUpright{1.0, 0.0, 0.0, -1.0, 50.0, 50.0};

/// Where, of a square of that half side about the page's middle, a picture shows something bright; empty for nowhere.
std::string FindSeam(const Picture& picture, const ZAMMathAffine2D& toPage, double halfSide) {
    const double scale = picture.width / 100.0;
    const double determinant = toPage.Linear().Determinant();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const double dx = (x + 0.5) / scale - toPage.e;
            const double dy = (y + 0.5) / scale - toPage.f;
            const double u = (toPage.d * dx - toPage.c * dy) / determinant;
            const double v = (toPage.a * dy - toPage.b * dx) / determinant;
            const bool isInside = std::abs(u) < halfSide && std::abs(v) < halfSide;
            if (isInside && !picture.At(x, y).IsNear(0x485048FF, 24)) {
                return std::to_string(x) + ", " + std::to_string(y);
            }
        }
    }
    return picture.width > 0 ? "" : "no picture";
}

} // namespace

TEST(ZAMPrintCairoTiles, ShowNoSeams) {
    const struct {
        int pixels;
        ZAMMathVector2D step;
        double angle;
    } rows[] = {
        {16, {8.0, 8.0}, 0.0},   {32, {7.3, 7.3}, 0.3},   {32, {3.1, 4.7}, 0.8},   {20, {40.7, 40.7}, 0.05},
        {90, {70.0, 55.0}, 0.6}, {90, {70.0, 70.0}, 0.0}, {32, {1.7, 1.7}, 0.2},   {16, {0.5, 0.5}, 0.0},
        {16, {0.05, 0.05}, 0.0}, {16, {0.05, 9.0}, 0.5},  {16, {1e-9, 1e-9}, 0.5}, {50, {300.0, 300.0}, 0.4},
        {33, {1e4, 1e4}, 0.0},   {1, {6.0, 6.0}, 0.0},    {33, {31.0, 31.0}, 1.5},
    };
    for (const auto& row : rows) {
        const double c = std::cos(row.angle);
        const double s = std::sin(row.angle);
        const ZAMMathAffine2D toPage{c, s, -s, c, 50.3, 49.8};
        const auto draw = FillSquare(MakePattern(MakeTexture(row.pixels), row.step, row.step, {3.3, -7.1}), toPage);
        const std::string pdf = DrawPdf(draw, OnWhite());
        ExpectSound(pdf);
        const auto expectNone = [&](const Picture& picture, const std::string& what) {
            EXPECT_EQ(FindSeam(picture, toPage, 33.0), "") << "row " << &row - rows << " " << what;
        };
        expectNone(Picture(DrawPng(draw, OnWhite())), "PNG");
        for (const int resolution : {36, 72, 100, 150, 333}) {
            expectNone(Rasterise(pdf, "pdftoppm", resolution), "pdftoppm at " + std::to_string(resolution));
        }
        expectNone(Rasterise(pdf, "pdftocairo", 100), "pdftocairo");
    }
}

TEST(ZAMPrintCairoTiles, ShowNoSeamsWhereEachPixelIsLarge) {
    const auto pattern = MakePattern(MakeTexture(33), {1e6, 1e6}, {1e6, 1e6}, {3.3, -7.1});
    EXPECT_EQ(FindSeam(Picture(DrawPng(FillSquare(pattern, kUpright), OnWhite())), kUpright, 33.0), "");
}

TEST(ZAMPrintCairoTiles, KeepTheirStepOnTheWidestPicture) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Png, out);
    ZAMPrintParameters parameters = OnWhite();
    parameters.resolution = 72.0;
    ASSERT_EQ(generator.BeginDocument(parameters), 1);
    ASSERT_EQ(generator.BeginPage(32767.0, 20.0), 1);
    const auto halves = MakeHalves();
    const auto pattern = MakePattern(halves, {100.37, 10.0}, {100.37, 10.0}, {7.0, 0.0});
    const ZAMPrintFill fill{{0, 0, 0, 255}, ZAMPrtFillRule::NonZero, &pattern};
    generator.DrawPath(MakeRectangle(0.0, 0.0, 32767.0, 10.0), {}, &fill, nullptr);
    const auto wide = MakeImage(400, 1, [](int x, int) { return x < 200 ? 0xFFFF0000U : 0xFF0000FFU; });
    generator.DrawImage(wide, {32000.0, 0.0, 0.0, -10.0, 500.0, 20.0});
    ASSERT_EQ(generator.EndPage(), 1);
    ASSERT_EQ(generator.EndDocument(), 1);
    const Picture picture(out.str());
    for (int bitmap = 0; bitmap < 325; bitmap += 9) {
        for (const auto& [part, rgba] : {std::pair(0.03, 0xFF0000FFU), {0.47, 0xFF0000FFU}, {0.53, 0x0000FFFFU}}) {
            const int x = static_cast<int>(7.0 + (bitmap + part) * 100.37);
            EXPECT_TRUE(picture.At(x, 5).IsNear(rgba)) << x << ": " << picture.At(x, 5);
        }
    }
    EXPECT_TRUE(picture.At(16497, 15).IsNear(0xFF0000FF) && picture.At(16503, 15).IsNear(0x0000FFFF));
}

TEST(ZAMPrintCairoTiles, StandWhereTheyBelong) {
    const auto halves = MakeHalves();
    const auto half = MakeImage(1, 1, [](int, int) { return 0x80800000U; }); // half of a full red
    const auto corner = MakeImage(
        2, 2, [](int x, int y) { return x + y == 0 ? 0xFFFF0000U : (x + y == 1 ? 0xFF0000FFU : 0xFFFFFFFFU); });
    const struct {
        const char* what;
        ZAMPrtFillPattern pattern;
        unsigned char alpha;
        std::string row;    ///< the page from left to right at its middle: r b p(ink) w(hite)
        std::string column; ///< from top to bottom, through the first pixel of a bitmap
    } rows[] = {
        // Ten pixels each, from 10 to 90 of the page; the bitmaps start at 20 + 20 n.
        {"joined", MakePattern(halves, {20.0, 20.0}, {20.0, 20.0}, {10.0, 0.0}), 255, "wbrbrbrbrw", "wrrrrrrrrw"},
        {"with gaps", MakePattern(halves, {20.0, 20.0}, {40.0, 40.0}, {10.0, -10.0}), 255, "wwrbwwrbww", "wrwwrrwwrw"},
        {"one only", MakePattern(halves, {20.0, 20.0}, {1e9, 1e9}, {10.0, -10.0}), 255, "wwwwwwrbww", "wwwwrrwwww"},
        {"on top of each other", MakePattern(halves, {20.0, 20.0}, {10.0, 20.0}), 255, "wrrrrrrrrw", "wrrrrrrrrw"},
        {"half opaque", MakePattern(halves, {20.0, 20.0}, {1e9, 1e9}, {10.0, -10.0}), 128, "wwwwwwpqww", "wwwwppwwww"},
        {"half opaque pixels", MakePattern(half, {20.0, 20.0}, {20.0, 20.0}), 255, "wppppppppw", "wppppppppw"},
        {"longer than the page", MakePattern(corner, {250.0, 250.0}, {250.0, 250.0}, {10.0, -10.0}), 255, "wwwwwwbbbw",
         "wbbbbbrrrw"},
        {"much longer", MakePattern(corner, {1e6, 1e6}, {1e6, 1e6}, {10.0, -10.0}), 255, "wwwwwwbbbw", "wbbbbbrrrw"},
        {"many gaps", MakePattern(half, {1.0, 2.0}, {2.0, 2.0}), 255, "", ""},
        {"too small to see", MakePattern(half, {0.001, 0.001}, {0.002, 0.001}), 255, "", ""},
    };
    const auto read = [](const Picture& picture, int x, int y) {
        const std::pair<char, std::uint32_t> colours[] = {
            {'r', 0xFF0000FF}, {'b', 0x0000FFFF}, {'p', 0xFF7F7FFF}, {'q', 0x7F7FFFFF}, {'w', 0xFFFFFFFF}};
        for (const auto& [name, rgba] : colours) {
            if (picture.At(x, y).IsNear(rgba, 4)) {
                return name;
            }
        }
        return '?';
    };
    for (const auto& row : rows) {
        const auto draw = FillSquare(row.pattern, kUpright, row.alpha);
        const std::string pdf = DrawPdf(draw, OnWhite());
        ExpectSound(pdf);
        for (const Picture& picture :
             {Picture(DrawPng(draw, OnWhite())), Rasterise(pdf, "pdftoppm", 72), Rasterise(pdf, "pdftocairo", 72)}) {
            std::string across;
            std::string down;
            int green = 0;
            for (int i = 0; i < 100; ++i) {
                across += i % 10 == 5 ? std::string(1, read(picture, i, 55)) : "";
                down += i % 10 == 5 ? std::string(1, read(picture, 65, i)) : "";
                green += static_cast<int>(picture.At(i, i).rgba >> 16U & 0xFFU);
            }
            if (row.row.empty()) { // a quarter of the ink all over
                EXPECT_NEAR(green / 100.0, 0.2 * 255 + 0.8 * 191, 8.0) << row.what;
            } else {
                EXPECT_EQ(across, row.row) << row.what;
                EXPECT_EQ(down, row.column) << row.what;
            }
        }
    }
}

TEST(ZAMPrintCairoTiles, FillAnyPathAndTextUnderItsStroke) {
    const auto pattern = MakePattern(MakeHalves(), {20.0, 20.0}, {20.0, 20.0});
    const ZAMPrintFill fill{{0, 0, 0, 255}, ZAMPrtFillRule::EvenOdd, &pattern};
    const ZAMPrintPen pen = MakePen(10.0);
    const Picture picture(DrawPng(
        [&](auto& g) {
            g.DrawPath(MakePath("M 10 10 L 90 10 L 90 90 L 10 90 Z M 30 30 L 70 30 L 70 70 L 30 70 Z"), {}, &fill,
                       &pen);
        },
        OnWhite()));
    EXPECT_TRUE(picture.At(50, 50).IsNear(0xFFFFFFFF)) << "the hole";
    EXPECT_TRUE(picture.At(22, 50).IsNear(0xFF0000FF));
    EXPECT_TRUE(picture.At(18, 50).IsNear(0x0000FFFF));
    EXPECT_TRUE(picture.At(10, 50).IsNear(0x000000FF));

    const ZAMTextLayout text("\u2588", {.height = 100.0});
    const auto draw = [&](auto& g) { g.DrawText(text, {1.0, 0.0, 0.0, -1.0, 0.0, 90.0}, &fill, nullptr); };
    const Picture written(DrawPng(draw, OnWhite()));
    EXPECT_TRUE(written.At(25, 60).IsNear(0xFF0000FF)) << written.At(25, 60);
    EXPECT_TRUE(written.At(35, 60).IsNear(0x0000FFFF)) << written.At(35, 60);
    ExpectSound(DrawPdf(draw));
}

TEST(ZAMPrintCairoTiles, HostileNumbersEndSoonAndHarmNothing) {
    const double numbers[] = {1e-310, 1e-30, 1e-9, 1e-3, 1.0, 1e9, 1e300};
    const auto image = MakeTexture(40);
    const auto start = std::chrono::steady_clock::now();
    for (const bool isPng : {false, true}) {
        const std::string bytes = Draw(
            isPng ? ZAMPrintCairoGenerator::Format::Png : ZAMPrintCairoGenerator::Format::Pdf,
            [&](auto& g) {
                for (const double size : numbers) {
                    for (const double step : numbers) {
                        for (const double other : {step, 1.0}) {
                            const auto pattern = MakePattern(image, {size, size}, {step, other}, {-size, step});
                            FillSquare(pattern, kUpright, 100)(g);
                            FillSquare(pattern, {1e6, 1e5, 3.0, 1e5, 0.0, step}, 255)(g);
                            FillSquare(pattern, {1.0, 1.0, 1.0, 1.0, 0.0, 0.0}, 255)(g);
                        }
                    }
                }
                g.DrawPath(MakeRectangle(40.0, 40.0, 20.0, 20.0), {}, &kRed, nullptr);
            },
            OnWhite());
        const Picture picture = isPng ? Picture(bytes) : Rasterise(bytes, "pdftocairo", 72);
        EXPECT_TRUE(picture.At(50, 50).IsNear(0xFF0000FF)) << picture.At(50, 50);
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    EXPECT_LT(time.count(), 30.0);
}
