// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoNameFilter.h"
#include "generators/cairo/ZAMPrintCairoPictures.h"
#include "generators/cairo/ZAMPrintCairoPixels.h"
#include "tests/generators/cairo/Drawing.h"
#include "tests/generators/cairo/Picture.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace {

constexpr std::uint32_t kWhite = 0xFFFFFFFF;

/// Four pixels: red and green above, blue and yellow below.
ZAMRef<ZAMPixelImage> MakeFour() {
    return MakeImage(2, 2, [](int x, int y) {
        return y == 0 ? (x == 0 ? 0xFFFF0000U : 0xFF00FF00U) : (x == 0 ? 0xFF0000FFU : 0xFFFFFF00U);
    });
}

/// Upright, with its lower left corner at x, y of the page.
ZAMMathAffine2D At(double x, double y, double width, double height) {
    return {width, 0.0, 0.0, -height, x, y};
}

ZAMPrintParameters OnWhite() {
    ZAMPrintParameters parameters;
    parameters.background = ZAMPrintColour{255, 255, 255, 255};
    return parameters;
}

/// A grey JPEG of 8 x 8 pixels, getting lighter to the right.
ZAMPixelImage::Bytes MakeJpeg() {
    return {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 0x4A, 0x46, 0x49, 0x46, 0x00, 0x01, 0x01, 0x00, 0x00, 0x01, 0x00,
            0x01, 0x00, 0x00, 0xFF, 0xDB, 0x00, 0x43, 0x00, 0x1B, 0x12, 0x14, 0x17, 0x14, 0x11, 0x1B, 0x17, 0x16,
            0x17, 0x1E, 0x1C, 0x1B, 0x20, 0x28, 0x42, 0x2B, 0x28, 0x25, 0x25, 0x28, 0x51, 0x3A, 0x3D, 0x30, 0x42,
            0x60, 0x55, 0x65, 0x64, 0x5F, 0x55, 0x5D, 0x5B, 0x6A, 0x78, 0x99, 0x81, 0x6A, 0x71, 0x90, 0x73, 0x5B,
            0x5D, 0x85, 0xB5, 0x86, 0x90, 0x9E, 0xA3, 0xAB, 0xAD, 0xAB, 0x67, 0x80, 0xBC, 0xC9, 0xBA, 0xA6, 0xC7,
            0x99, 0xA8, 0xAB, 0xA4, 0xFF, 0xC0, 0x00, 0x0B, 0x08, 0x00, 0x08, 0x00, 0x08, 0x01, 0x01, 0x11, 0x00,
            0xFF, 0xC4, 0x00, 0x14, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
            0x00, 0x00, 0x00, 0x00, 0x03, 0xFF, 0xC4, 0x00, 0x17, 0x10, 0x00, 0x03, 0x01, 0x00, 0x00, 0x00, 0x00,
            0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x02, 0x05, 0x32, 0xFF, 0xDA, 0x00, 0x08,
            0x01, 0x01, 0x00, 0x00, 0x3F, 0x00, 0x38, 0x29, 0x93, 0xFF, 0xD9};
}

/// The one file of an SVG that draws the image twice.
std::string FindFileInSvg(const ZAMRef<ZAMPixelImage>& image, const std::string& kind) {
    const std::string svg = Draw(ZAMPrintCairoGenerator::Format::Svg, [&](ZAMPrintCairoGenerator& generator) {
        generator.DrawImage(image, At(10, 60, 50, 50));
        generator.DrawImage(image, At(40, 90, 50, 50));
    });
    const std::string start = "data:image/" + kind + ";base64,";
    EXPECT_EQ(Count(svg, "data:image/"), 1);
    const std::size_t begin = svg.find(start) + start.size();
    return Ask("base64", "-d {}", svg.substr(begin, svg.find('"', begin) - begin));
}

struct Spot {
    int x;
    int y;
    std::uint32_t rgba;
};

/// Compares the PNG of what is drawn, and the PDF's page, with the colours.
void ExpectSpots(const DrawMarks& draw, const std::vector<Spot>& spots, const std::string& what) {
    const std::string pdf = DrawPdf(draw, OnWhite());
    ExpectSound(pdf);
    for (const bool isPdf : {false, true}) {
        const Picture picture = isPdf ? Rasterise(pdf, "pdftoppm", 72) : Picture(DrawPng(draw, OnWhite()));
        for (const Spot& spot : spots) {
            EXPECT_TRUE(picture.At(spot.x, spot.y).IsNear(spot.rgba, 3))
                << what << (isPdf ? " in the PDF at " : " in the PNG at ") << spot.x << ", " << spot.y << ": "
                << picture.At(spot.x, spot.y);
        }
    }
}

} // namespace

TEST(ZAMPrintCairoImage, IsAFileInAnSvg) {
    const struct {
        std::vector<std::uint32_t> pixels; // two
        bool hasAlpha;
        std::uint32_t rgba[2];
    } rows[] = {
        {{0xFF102030U, 0xFFFFFFFFU}, false, {0x102030FFU, 0xFFFFFFFFU}},
        {{0x80404040U, 0x00000000U}, true, {0x7F7F7F80U, 0x00000000U}},
    };
    for (const auto& row : rows) {
        const auto image = MakeImage(2, 1, [&](int x, int) { return row.pixels[static_cast<std::size_t>(x)]; });
        const Picture picture(FindFileInSvg(image, "png"));
        ASSERT_EQ(picture.width, 2);
        EXPECT_EQ(picture.hasAlpha, row.hasAlpha);
        for (const int x : {0, 1}) {
            EXPECT_TRUE(picture.At(x, 0).IsNear(row.rgba[x], 1)) << picture.At(x, 0);
        }
    }
}

TEST(ZAMPrintCairoImage, IsWhereItsMapPutsIt) {
    const auto four = MakeFour();
    const auto half = MakeImage(1, 1, [](int, int) { return 0x80008000U; }); // half of a full green
    const auto checks = MakeImage(4000, 40, [](int x, int y) { return (x + y) % 2 == 0 ? 0xFFFFFFFFU : 0xFF000000U; });
    const auto wide = MakeImage(40000, 4, [](int x, int) { return x < 20000 ? 0xFFFF0000U : 0xFF0000FFU; });
    const struct {
        const char* what;
        ZAMRef<ZAMPixelImage> image;
        ZAMMathAffine2D toPage;
        std::vector<Spot> spots;
    } rows[] = {
        {"upright",
         four,
         At(20.0, 80.0, 60.0, 40.0),
         {{22, 42, 0xFF0000FF}, {78, 42, 0x00FF00FF}, {22, 78, 0x0000FFFF}, {78, 78, 0xFFFF00FF}, {50, 37, kWhite}}},
        {"turned to the left",
         four,
         {0.0, -60.0, -40.0, 0.0, 80.0, 80.0},
         {{42, 78, 0xFF0000FF}, {42, 22, 0x00FF00FF}, {78, 78, 0x0000FFFF}, {78, 22, 0xFFFF00FF}}},
        {"mirrored", four, {-60.0, 0.0, 0.0, -40.0, 80.0, 80.0}, {{22, 42, 0x00FF00FF}, {78, 78, 0x0000FFFF}}},
        {"half transparent", half, At(0.0, 100.0, 100.0, 100.0), {{50, 50, 0x7FFF7FFF}, {1, 1, 0x7FFF7FFF}}},
        {"many pixels", checks, At(10.0, 60.0, 80.0, 1.0), {{50, 62, kWhite}}},
        {"wider than surfaces are", wide, At(0.0, 60.0, 100.0, 20.0), {{2, 50, 0xFF0000FF}, {97, 50, 0x0000FFFF}}},
        {"far beyond the page",
         four,
         At(60.0 - 5e5, 40.0 + 5e5, 1e6, 1e6),
         {{57, 37, 0xFF0000FF},
          {62, 37, 0x00FF00FF},
          {57, 42, 0x0000FFFF},
          {62, 42, 0xFFFF00FF},
          {99, 99, 0xFFFF00FF}}},
        {"far and turned",
         four,
         {1e9, 1e8, 1e8, -1e9, 50.0 - 5.5e8, 50.0 + 4.5e8},
         {{40, 45, 0xFF0000FF}, {55, 40, 0x00FF00FF}, {45, 60, 0x0000FFFF}, {60, 55, 0xFFFF00FF}}},
        {"far along one side",
         wide,
         At(50.0 - 5e7, 60.0, 1e8, 20.0),
         {{0, 50, 0xFF0000FF}, {47, 50, 0xFF0000FF}, {52, 50, 0x0000FFFF}, {50, 70, kWhite}}},
    };
    for (const auto& row : rows) {
        ExpectSpots([&](auto& g) { g.DrawImage(row.image, row.toPage); }, row.spots, row.what);
    }
}

TEST(ZAMPrintCairoImage, MapsThatShowNothingHarmNothing) {
    const auto four = MakeFour();
    const auto draw = [&](ZAMPrintCairoGenerator& g) {
        for (const double number : {kNaN, kInfinity, 1e308, 1e200, -1e30, 1e-3, 1e-30, 1e-310, 0.0}) {
            g.DrawImage(four, At(200.0, 50.0, number, 10.0));
            g.DrawImage(four, At(number, -2.0 * number - 1.0, 10.0, 10.0));
            g.DrawImage(four, {number, number, number, number, 50.0, 50.0});
            g.DrawImage(four, {1.0, number, 1.0, number, number, 50.0});
            g.DrawImage(four, At(50.0, 50.0, 1e-3, number));
        }
        g.DrawPath(MakeRectangle(40.0, 40.0, 20.0, 20.0), {}, &kRed, nullptr);
    };
    ExpectSpots(draw, {{50, 50, 0xFF0000FF}, {30, 30, kWhite}}, "nothing");
}

TEST(ZAMPrintCairoImage, APngSmoothsWhatIsReducedOrEnlargedALittle) {
    const auto checks = MakeImage(400, 400, [](int x, int y) { return (x + y) % 2 == 0 ? 0xFFFFFFFFU : 0xFF000000U; });
    const auto drawAt = [](const ZAMRef<ZAMPixelImage>& image, double size) {
        return Picture(DrawPng([&](auto& g) { g.DrawImage(image, At(0.0, 100.0, size, size)); }, OnWhite()));
    };
    for (const double size : {30.0, 50.3, 99.0, 170.0}) {
        const Picture picture = drawAt(checks, size);
        for (int i = 5; i < 25; ++i) {
            EXPECT_TRUE(picture.At(i, 99 - i / 2).IsNear(0x808080FF, 12)) << size << picture.At(i, 99 - i / 2);
        }
    }
    const auto four = MakeFour();
    const Picture little = drawAt(four, 7.0);
    const Picture large = drawAt(four, 60.0);
    EXPECT_FALSE(little.At(3, 98).IsNear(0x0000FFFF, 40) || little.At(3, 98).IsNear(0xFFFF00FF, 40));
    EXPECT_TRUE(large.At(28, 98).IsNear(0x0000FFFF) && large.At(31, 98).IsNear(0xFFFF00FF));
}

TEST(ZAMPrintCairoImage, IsStoredOnceHoweverOftenItIsDrawn) {
    const auto noise = MakeImage(64, 64, [](int x, int y) {
        const auto mixed = static_cast<std::uint32_t>(x * 7919 + y * 104729) * 2654435761U;
        return 0xFF000000U | mixed >> 8U;
    });
    const auto seeThrough = MakeImage(4, 4, [](int x, int) { return x < 2 ? 0x80000080U : 0U; });
    const ZAMPrtFillPattern pattern{noise, {20.0, 20.0}, {20.0, 20.0}, {}};
    const ZAMPrintFill tiled{{0, 0, 0, 255}, ZAMPrtFillRule::NonZero, &pattern};
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Pdf, out);
    ASSERT_EQ(generator.BeginDocument({}), 1);
    for (int page = 0; page < 3; ++page) {
        ASSERT_EQ(generator.BeginPage(100.0, 100.0), 1);
        for (int i = 0; i < 2000; ++i) {
            generator.DrawImage(noise, At(i % 97, 10.0 + i % 89, 3.0, 3.0));
        }
        generator.DrawImage(seeThrough, At(10.0, 90.0, 80.0, 80.0));
        generator.DrawPath(MakeRectangle(0.0, 0.0, 50.0, 50.0), {}, &tiled, nullptr);
        ASSERT_EQ(generator.EndPage(), 1);
    }
    ASSERT_EQ(generator.EndDocument(), 1);
    ExpectSound(out.str());
    EXPECT_LT(out.str().size(), 260000U); // 12 kB of pixels, nine times as many for the fill, 22 bytes for each time
    const std::string text = Uncompress(out.str());
    EXPECT_EQ(Count(text, "/Subtype /Image"), 4);
    EXPECT_EQ(Count(text, "/SMask "), 1) << "of the picture that is not opaque";
    EXPECT_EQ(Count(text, "/Interpolate true"), 0);
    EXPECT_EQ(Count(text, " Do\n"), 6006);
}

TEST(ZAMPrintCairoImage, AJpegKeepsItsBytes) {
    const ZAMPixelImage::Bytes bytes = MakeJpeg();
    for (const int width : {8, 40000}) { // the pixels, which a wide one has too many of, do not matter
        const auto size = static_cast<std::size_t>(width) * 8;
        const auto image = ZAMNew<ZAMPixelImage>(width, 8, std::vector<std::uint32_t>(size, 0xFF808080U),
                                                 std::make_shared<const ZAMPixelImage::Bytes>(bytes));
        const std::string pdf = DrawPdf([&](auto& g) {
            g.DrawImage(image, At(0.0, 50.0, 100.0, 50.0));
            g.DrawImage(image, At(0.0, 100.0, 100.0, 50.0));
        });
        ExpectSound(pdf);
        EXPECT_NE(pdf.find(std::string(bytes.begin(), bytes.end())), std::string::npos);
        const std::filesystem::path root =
            std::filesystem::temp_directory_path() / ("zam-cairo-jpeg-" + std::to_string(width));
        EXPECT_EQ(Ask("pdfimages", "-j {} " + root.string(), pdf), "");
        std::ifstream file(root.string() + "-000.jpg", std::ios::binary);
        const std::string stored{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(stored, std::string(bytes.begin(), bytes.end()));
        for (const char* name : {"-000.jpg", "-001.jpg"}) {
            std::filesystem::remove(root.string() + name);
        }
        EXPECT_TRUE(Rasterise(pdf, "pdftoppm", 72).At(98, 25).IsNear(0xD8D8D8FF, 24));
        EXPECT_EQ(FindFileInSvg(image, "jpeg"), stored);
    }
}

TEST(ZAMPrintCairoPictures, GetCoarserTheMoreOfThemAPageWrites) {
    using Fate = ZAMPrintCairoPictures::Fate;
    using Form = ZAMPrintCairoPictures::Form;
    const auto image = MakeImage(2048, 2048, [](int x, int /*y*/) { return x < 1024 ? 0xFFFF0000U : 0xFF0000FFU; });
    for (const Fate fate : {Fate::Written, Fate::Stored}) {
        ZAMPrintCairoPictures pictures(fate);
        for (int page = 0; page < 2; ++page) {
            std::map<int, int> marks; // by the width of what is drawn
            for (int i = 0; i < 2000; ++i) {
                cairo_surface_t* surface = pictures.Find(image, Form::Of(*image));
                ASSERT_NE(surface, nullptr);
                const int width = cairo_image_surface_get_width(surface);
                ASSERT_EQ(cairo_image_surface_get_height(surface), width);
                EXPECT_EQ(cairo_image_surface_get_data(surface)[0], 0) << "no blue on the left";
                ++marks[width];
            }
            if (fate == Fate::Stored) {
                EXPECT_EQ(marks, (std::map<int, int>{{2048, 2000}}));
                continue;
            }
            // The first of all is free, four have as many pixels as a page may have before they get coarser.
            EXPECT_EQ(marks[2048], page == 0 ? 5 : 4);
            EXPECT_EQ(marks[1024], 1);
            EXPECT_EQ(marks[512], 4);
            EXPECT_NEAR(marks[256], 16, 1);
            EXPECT_NEAR(marks[128], 64, 2);
            EXPECT_GT(marks[64], 200);
            EXPECT_LE(marks.begin()->first, 32);
            pictures.EndPage();
        }
    }
}

TEST(ZAMPrintCairoPixels, ShrinkToMeansAndRepeat) {
    // Rows of opacities.
    const struct {
        std::vector<std::string> rows;
        int width;
        int height;
        std::vector<std::string> expected;
    } rows[] = {
        {{"036", "036"}, 3, 2, {"036", "036"}},
        {{"036"}, 2, 1, {"15"}}, // 0 and half of the 3; half of the 3 and 6
        {{"0", "3", "6"}, 1, 2, {"1", "5"}},
        {{"02", "46"}, 1, 1, {"3"}},
        {{"0088", "0088", "8800", "8800"}, 2, 2, {"08", "80"}},
    };
    constexpr unsigned int kUnit = 28; // so that halves of a unit are whole
    const auto read = [](cairo_surface_t* surface) {
        std::vector<std::string> text(static_cast<std::size_t>(cairo_image_surface_get_height(surface)));
        const unsigned char* bytes = cairo_image_surface_get_data(surface);
        for (std::string& row : text) {
            for (int x = 0; x < cairo_image_surface_get_width(surface); ++x) {
                row += static_cast<char>('0' + (bytes[4 * x + 3] + kUnit / 2) / kUnit);
            }
            bytes += cairo_image_surface_get_stride(surface);
        }
        return text;
    };
    for (const auto& row : rows) {
        const auto image =
            MakeImage(static_cast<int>(row.rows.front().size()), static_cast<int>(row.rows.size()), [&](int x, int y) {
                const char digit = row.rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
                return static_cast<std::uint32_t>(digit - '0') * kUnit << 24U;
            });
        const ZAMPrintCairoSurface shrunk = ZAMPrintCairoPixels(*image).Shrink(row.width, row.height);
        EXPECT_EQ(read(shrunk.get()), row.expected) << "row " << &row - rows;
    }
    const auto digits =
        MakeImage(3, 2, [](int x, int y) { return static_cast<std::uint32_t>(3 * y + x) * kUnit << 24U; });
    const ZAMPrintCairoPixels pixels = ZAMPrintCairoPixels(*digits).Cut(1, 0, 2, 2);
    EXPECT_EQ(read(pixels.Wrap().get()), (std::vector<std::string>{"12", "45"}));
    EXPECT_EQ(read(pixels.Repeat(1, 1, 5, 3).get()), (std::vector<std::string>{"54545", "21212", "54545"}));
}

TEST(ZAMPrintCairoNameFilter, BlanksNamesThatComeAgain) {
    const struct {
        std::string bytes;
        std::string expected;
    } rows[] = {
        {"a\n   /XObject << /x5 5 0 R /x5 5 0 R /x6 6 0 R /x5 5 0 R >>\n /x5 5 0 R /x5 5 0 R",
         "a\n   /XObject << /x5 5 0 R           /x6 6 0 R           >>\n /x5 5 0 R /x5 5 0 R"},
        // Each dictionary is one of its own.
        {"\n   /XObject << /x12 12 0 R >>\n   /XObject << /x12 12 0 R /x12 12 0 R >>\n",
         "\n   /XObject << /x12 12 0 R >>\n   /XObject << /x12 12 0 R             >>\n"},
        // What is no such dictionary stays as it is.
        {"\n   /XObject << /x5 6 0 R /x5 6 0 R >>", "\n   /XObject << /x5 6 0 R /x5 6 0 R >>"},
        {"\n   /XObject << /x 0 R /x 0 R >>", "\n   /XObject << /x 0 R /x 0 R >>"},
        {"\n   /XObject <<", "\n   /XObject <<"},
        {"\n   /XObject << /x5 5 0 R /x5 5", "\n   /XObject << /x5 5 0 R /x5 5"},
        {"\n   /XObject <<" + std::string(100, 'R'), "\n   /XObject <<" + std::string(100, 'R')},
        {"\n   /XObj\n   /XObject << /x5 5 0 R /x5 5 0 R >>", "\n   /XObj\n   /XObject << /x5 5 0 R           >>"},
        {"", ""},
    };
    for (const auto& row : rows) {
        for (std::size_t step = 1; step <= row.bytes.size() + 1; ++step) {
            std::ostringstream out;
            ZAMPrintCairoStream stream(out);
            ZAMPrintCairoNameFilter filter(stream);
            for (std::size_t at = 0; at < row.bytes.size(); at += step) {
                EXPECT_TRUE(filter.Write(std::string_view(row.bytes).substr(at, step)));
            }
            EXPECT_TRUE(filter.Flush());
            EXPECT_EQ(out.str(), row.expected) << "in steps of " << step;
        }
    }
}
