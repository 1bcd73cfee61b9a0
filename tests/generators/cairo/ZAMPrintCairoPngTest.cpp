// SPDX-License-Identifier: MIT
#include "tests/generators/cairo/Drawing.h"
#include "tests/generators/cairo/Picture.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using Format = ZAMPrintCairoGenerator::Format;

/// A colour that a picture must have at a place.
struct Spot {
    int x;
    int y;
    std::uint32_t rgba;
};

void ExpectSpots(const std::string& png, const std::vector<Spot>& spots, const std::string& what) {
    const Picture picture(png);
    ASSERT_EQ(picture.width, 100) << what;
    for (const Spot& spot : spots) {
        EXPECT_TRUE(picture.At(spot.x, spot.y).IsNear(spot.rgba))
            << what << " at " << spot.x << ", " << spot.y << ": " << picture.At(spot.x, spot.y);
    }
}

ZAMPrintParameters WithBackground(const ZAMPrintColour& colour) {
    ZAMPrintParameters parameters;
    parameters.background = colour;
    return parameters;
}

} // namespace

TEST(ZAMPrintCairoPng, PaintsMarks) {
    const ZAMPrintFill evenOdd{{255, 0, 0, 255}, ZAMPrtFillRule::EvenOdd};
    const ZAMPrintFill halfGreen{{0, 255, 0, 128}, ZAMPrtFillRule::NonZero};
    const ZAMPrintFill invisible{{0, 255, 0, 0}, ZAMPrtFillRule::NonZero};
    const ZAMPrintPen wide = MakePen(20.0);
    const ZAMPrintPen hairline = MakePen(1e-300);
    ZAMPrintPen round = wide;
    round.cap = ZAMPrintLineAttribute::CapRound;
    ZAMPrintPen bevel = wide;
    bevel.join = ZAMPrintLineAttribute::JoinBevel;
    ZAMPrintPen seeThrough = wide;
    seeThrough.colour = {0, 0, 0, 128};
    const std::string square = "M 20 20 L 80 20 L 80 80 L 20 80 Z ";
    const struct {
        const char* what;
        std::string path;
        ZAMMathAffine2D toPage;
        const ZAMPrintFill* fill;
        const ZAMPrintPen* pen;
        std::vector<Spot> spots;
    } rows[] = {
        {"fill", square, {}, &kRed, nullptr, {{21, 21, 0xFF0000FF}, {79, 79, 0xFF0000FF}, {18, 50, 0}, {81, 50, 0}}},
        {"twice around", square + "M 40 40 L 60 40 L 60 60 L 40 60 Z", {}, &kRed, nullptr, {{50, 50, 0xFF0000FF}}},
        {"even-odd",
         square + "M 40 40 L 60 40 L 60 60 L 40 60 Z",
         {},
         &evenOdd,
         nullptr,
         {{50, 50, 0}, {30, 30, 0xFF0000FF}}},
        {"half opaque", square, {}, &halfGreen, nullptr, {{50, 50, 0x00FF0080}}},
        {"invisible", square, {}, &invisible, nullptr, {{50, 50, 0}}},
        {"map", square, {0.0, 0.5, -0.5, 0.0, 50.0, 0.0}, &kRed, nullptr, {{30, 30, 0xFF0000FF}, {45, 25, 0}}},
        {"curve", "M 0 50 C 0 -10 100 -10 100 50 Z", {}, &kRed, nullptr, {{50, 8, 0xFF0000FF}, {50, 3, 0}, {2, 10, 0}}},
        {"fill and stroke", square, {}, &kRed, &bevel, {{50, 50, 0xFF0000FF}, {50, 28, 0x000000FF}, {11, 11, 0}}},
        {"miter", square, {}, nullptr, &wide, {{11, 11, 0x000000FF}, {50, 50, 0}}},
        {"stroke shows the fill", square, {}, &kRed, &seeThrough, {{50, 28, 0x7F0000FF}, {50, 14, 0x00000080}}},
        {"dot", "M 50 50 Z", {}, nullptr, &round, {{43, 50, 0x000000FF}, {50, 57, 0x000000FF}, {58, 58, 0}}},
        {"sheared pen",
         "M 10 50 L 90 50",
         {1.0, 0.0, 0.0, 3.0, 0.0, -100.0},
         nullptr,
         &wide,
         {{50, 22, 0x000000FF}, {50, 78, 0x000000FF}, {8, 50, 0}}},
        {"hairline", square, {}, &kRed, &hairline, {{50, 50, 0xFF0000FF}, {18, 50, 0}}},
    };
    for (const auto& row : rows) {
        const std::string png =
            DrawPng([&](auto& generator) { generator.DrawPath(MakePath(row.path), row.toPage, row.fill, row.pen); });
        ExpectSpots(png, row.spots, row.what);
    }
}

TEST(ZAMPrintCairoPng, ClipsNestAndEnd) {
    const ZAMMathAffine2D tilted{0.5, 0.5, -0.5, 0.5, 50.0, 0.0};
    const ZAMMathBox2D all{0.0, 0.0, 100.0, 100.0};
    const auto page = MakeRectangle(0.0, 0.0, 100.0, 100.0);
    ExpectSpots(DrawPng([&](auto& g) {
                    g.PopClip();
                    g.PushClip(all, tilted);
                    g.PushClip({0.0, 0.0, 50.0, 100.0}, {});
                    g.DrawPath(page, {}, &kRed, nullptr);
                    g.PopClip();
                    g.PopClip();
                    g.DrawPath(MakeRectangle(90.0, 90.0, 10.0, 10.0), {}, &kBlue, nullptr);
                    g.PushClip(all, tilted);
                }),
                {{40, 50, 0xFF0000FF}, {60, 50, 0}, {5, 5, 0}, {95, 95, 0x0000FFFF}}, "tilted and nested");

    const struct {
        const char* what;
        ZAMMathBox2D area;
        ZAMMathAffine2D toPage;
        std::uint32_t centre;
    } rows[] = {
        {"huge", {-1e300, -1e300, 1e300, 1e300}, {}, 0xFF0000FF},
        {"far", {50.0, -1e9, 2e9, 1e9}, {}, 0xFF0000FF},
        {"infinite", {-kInfinity, -kInfinity, kInfinity, kInfinity}, {3.0, 0.0, 0.0, 3.0, 1.0, 1.0}, 0xFF0000FF},
        {"empty", {}, {}, 0},
        {"not a number", {kNaN, 0.0, 100.0, 100.0}, {}, 0},
        {"singular", all, {1.0, 1.0, 1.0, 1.0, 0.0, 0.0}, 0},
        {"map without end", all, {kInfinity, 0.0, 0.0, 1.0, 0.0, 0.0}, 0},
    };
    for (const auto& row : rows) {
        ExpectSpots(DrawPng([&](auto& g) {
                        g.PushClip(row.area, row.toPage);
                        g.DrawPath(page, {}, &kRed, nullptr);
                        g.PopClip();
                        g.DrawPath(MakeRectangle(0.0, 0.0, 10.0, 10.0), {}, &kBlue, nullptr);
                    }),
                    {{55, 50, row.centre}, {5, 5, 0x0000FFFF}}, row.what);
    }
}

TEST(ZAMPrintCairoPng, HasAlphaUnlessAllIsOpaque) {
    const auto nothing = [](auto&) {};
    const Picture white(DrawPng(nothing, WithBackground({255, 255, 255, 255})));
    EXPECT_FALSE(white.hasAlpha);
    EXPECT_EQ(white.At(0, 0).rgba, 0xFFFFFFFFU);
    const Picture thin(DrawPng(nothing, WithBackground({200, 100, 50, 100})));
    EXPECT_TRUE(thin.hasAlpha);
    EXPECT_TRUE(thin.At(99, 99).IsNear(0xC8643264)) << thin.At(99, 99);
    EXPECT_EQ(Picture(DrawPng(nothing)).At(50, 50).rgba, 0U);
}

TEST(ZAMPrintCairoPng, SizeFollowsTheResolution) {
    const struct {
        double width, height, resolution;
        int columns, rows;
        std::string error;
    } rows[] = {
        {100.0, 50.0, 90.0, 125, 63, ""},
        {0.001, 20.0, 72.0, 1, 20, ""},
        {32767.0, 1.0, 72.0, 32767, 1, ""},
        {40000.0, 20.0, 72.0, 0, 0, "a picture of 40000 x 20 pixels is too large: a side has at most 32,767"},
        {20000.0, 20000.0, 72.0, 0, 0,
         "a picture of 20000 x 20000 pixels is too large: it has at most 134,217,728 in all"},
        {1e300, 1.0, 72.0, 0, 0, "a picture of 1e+300 x 1 pixels is too large: a side has at most 32,767"},
        {kNaN, 1.0, 72.0, 0, 0, "the size of a page must be positive"},
        {1.0, -1.0, 72.0, 0, 0, "the size of a page must be positive"},
        {1.0, 1.0, 0.0, 0, 0, "the resolution of a picture must be positive"},
    };
    for (const auto& row : rows) {
        std::ostringstream out;
        ZAMPrintCairoGenerator generator(Format::Png, out);
        ZAMPrintParameters parameters;
        parameters.resolution = row.resolution;
        generator.BeginDocument(parameters);
        EXPECT_EQ(generator.BeginPage(row.width, row.height), row.error.empty() ? 1 : -1);
        generator.EndPage();
        EXPECT_EQ(generator.EndDocument(), row.error.empty() ? 1 : -1);
        EXPECT_EQ(generator.GetError(), row.error);
        const Picture picture(out.str());
        EXPECT_EQ(picture.width, row.columns);
        EXPECT_EQ(picture.height, row.rows);
        EXPECT_EQ(out.str().empty(), !row.error.empty());
    }
}

TEST(ZAMPrintCairoPng, SaysWhatItIs) {
    ZAMPrintParameters parameters;
    parameters.metadata = {"Gr\xC3\xBC\xC3\x9F"
                           "e\xFF",
                           "Ann", "Of", 981173106};
    const auto nothing = [](auto&) {};
    const std::string png = DrawPng(nothing, parameters);
    EXPECT_NE(png.find(std::string("Title\0\0\0\0\0Gr\xC3\xBC\xC3\x9F"
                                   "e",
                                   16)),
              std::string::npos);
    EXPECT_NE(png.find(std::string("Author\0\0\0\0\0Ann", 14)), std::string::npos);
    EXPECT_NE(png.find(std::string("Description\0\0\0\0\0Of", 18)), std::string::npos);
    EXPECT_NE(png.find("tIME\x07\xD1\x02\x03\x04\x05\x06"), std::string::npos);
    EXPECT_NE(png.find(std::string("pHYs\0\0\x0B\x13\0\0\x0B\x13\x01", 13)), std::string::npos)
        << "2835 pixels a metre";
    EXPECT_EQ(DrawPng(nothing).find("tIME"), std::string::npos);
    EXPECT_EQ(DrawPng(nothing).find("Title"), std::string::npos);
}

TEST(ZAMPrintCairoPng, IsTheFirstPage) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(Format::Png, out);
    ZAMPrintParameters parameters;
    parameters.resolution = 72.0;
    ASSERT_EQ(generator.BeginDocument(parameters), 1);
    for (const ZAMPrintFill* fill : {&kRed, &kBlue}) {
        EXPECT_EQ(generator.BeginPage(10.0, 10.0), 1);
        generator.DrawPath(MakeRectangle(0.0, 0.0, 10.0, 10.0), {}, fill, nullptr);
        EXPECT_EQ(generator.EndPage(), 1);
    }
    EXPECT_EQ(generator.EndDocument(), 1);
    EXPECT_EQ(Picture(out.str()).At(5, 5).rgba, 0xFF0000FFU);
}
