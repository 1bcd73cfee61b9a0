// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMTextLayout.h"
#include "generators/cairo/ZAMPrintCairoFonts.h"
#include "tests/generators/cairo/Drawing.h"
#include "tests/generators/cairo/Picture.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

using Format = ZAMPrintCairoGenerator::Format;
constexpr ZAMPrintFill kBlack{{0, 0, 0, 255}, ZAMPrtFillRule::EvenOdd};

/// Anchors as ZAMTextStyle counts them.
enum Anchor : int { kStartBottom = 28, kStart = 29, kStartTop = 31, kMiddle = 33, kMiddleMiddle = 34, kEnd = 37 };

ZAMTextLayout LayOut(const std::string& text, double height = 20.0, int anchor = kStart, int writingMode = 0) {
    return {text, {.height = height, .anchor = anchor, .writingMode = writingMode}};
}

/// Puts the anchor at a place of the page, upright, a point to the unit.
ZAMMathAffine2D At(double x, double y) {
    return {1.0, 0.0, 0.0, -1.0, x, y};
}

/// The upright box around all that a picture shows; empty when it shows nothing.
ZAMMathBox2D FindInk(const Picture& picture) {
    ZAMMathBox2D ink;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (!picture.At(x, y).IsNear(0, 40)) {
                ink.Add({static_cast<double>(x), static_cast<double>(y)});
                ink.Add({x + 1.0, y + 1.0});
            }
        }
    }
    return ink;
}

/// The picture of the only page of a PDF, a pixel to the point, white where nothing is.
Picture Rasterise(const std::string& pdf) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "zam-cairo-page";
    Ask("pdftocairo", "-png -transp -singlefile -r 72 {} " + file.string(), pdf);
    std::ifstream png(file.string() + ".png", std::ios::binary);
    std::ostringstream bytes;
    bytes << png.rdbuf();
    std::filesystem::remove(file.string() + ".png");
    return Picture(bytes.str());
}

/// Text as a reader of the PDF finds it, without the marks of direction that only tell how to show it.
std::string ReadText(const std::string& pdf) {
    std::string text = Ask("pdftotext", "{} -", pdf);
    for (const std::string mark : {"\u202a", "\u202b", "\u202c", "\f", "\n"}) {
        for (std::size_t at = 0; (at = text.find(mark)) != std::string::npos;) {
            text.erase(at, mark.size());
        }
    }
    return text;
}

bool IsClean(const std::string& pdf) {
    return Count(Ask("qpdf", "--check {}", pdf), "No syntax or stream encoding errors found") == 1;
}

DrawMarks DrawText(const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill = &kBlack,
                   const ZAMPrintPen* pen = nullptr) {
    return [=](ZAMPrintCairoGenerator& generator) { generator.DrawText(layout, toPage, fill, pen); };
}

} // namespace

TEST(ZAMPrintCairoText, InkIsWhereTheAnchorPutsIt) {
    // An E stands on the baseline, is about two thirds of the em high and a little less wide.
    const struct {
        const char* what;
        int anchor;
        ZAMMathAffine2D toPage;
        ZAMMathBox2D ink; ///< its middle lies here
        ZAMMathPoint2D size;
    } rows[] = {
        {"start", kStart, At(50.0, 50.0), {58.0, 33.0, 68.0, 39.0}, {24.0, 27.0}},
        {"middle", kMiddle, At(50.0, 50.0), {47.0, 33.0, 53.0, 39.0}, {24.0, 27.0}},
        {"end", kEnd, At(50.0, 50.0), {32.0, 33.0, 42.0, 39.0}, {24.0, 27.0}},
        {"bottom", kStartBottom, At(50.0, 50.0), {58.0, 22.0, 68.0, 32.0}, {24.0, 27.0}},
        {"top", kStartTop, At(50.0, 50.0), {58.0, 68.0, 68.0, 78.0}, {24.0, 27.0}},
        {"turned clockwise", kStart, {0.0, 1.0, 1.0, 0.0, 50.0, 50.0}, {61.0, 58.0, 67.0, 68.0}, {27.0, 24.0}},
        {"mirrored", kStart, {-1.0, 0.0, 0.0, -1.0, 50.0, 50.0}, {32.0, 33.0, 42.0, 39.0}, {24.0, 27.0}},
        {"halved", kStart, {0.5, 0.0, 0.0, -0.5, 50.0, 50.0}, {54.0, 41.0, 59.0, 45.0}, {12.0, 13.5}},
    };
    for (const auto& row : rows) {
        const auto draw = DrawText(LayOut("E", 40.0, row.anchor), row.toPage);
        for (const Picture& picture : {Picture(DrawPng(draw)), Rasterise(DrawPdf(draw))}) {
            const ZAMMathBox2D ink = FindInk(picture);
            ASSERT_FALSE(ink.IsEmpty()) << row.what;
            const ZAMMathPoint2D middle{(ink.xMin + ink.xMax) / 2.0, (ink.yMin + ink.yMax) / 2.0};
            EXPECT_FALSE(row.ink.Intersection({middle.x, middle.y, middle.x, middle.y}).IsEmpty())
                << row.what << ": " << middle.x << ", " << middle.y;
            EXPECT_NEAR(ink.Width(), row.size.x, 4.0) << row.what;
            EXPECT_NEAR(ink.Height(), row.size.y, 4.0) << row.what;
        }
    }
}

TEST(ZAMPrintCairoText, StandsUprightUnderTheFlip) {
    const auto draw = DrawText(LayOut("L", 80.0), At(20.0, 90.0));
    for (const Picture& picture : {Picture(DrawPng(draw)), Rasterise(DrawPdf(draw))}) {
        const ZAMMathBox2D ink = FindInk(picture);
        int top = 0;
        int bottom = 0;
        for (int x = 0; x < 100; ++x) {
            top += picture.At(x, static_cast<int>(ink.yMin) + 8).IsNear(0x000000FF, 40) ? 1 : 0;
            bottom += picture.At(x, static_cast<int>(ink.yMax) - 2).IsNear(0x000000FF, 40) ? 1 : 0;
        }
        EXPECT_GT(bottom, top + 15);
    }
}

TEST(ZAMPrintCairoText, CanBeReadBack) {
    const struct {
        std::string text;
        int writingMode = 0;
    } rows[] = {
        {"Hello office, waffle fj \u2014 W\u00f6rld"},
        {"\u041f\u0440\u0438\u0432\u0435\u0442 \u03ba\u03cc\u03c3\u03bc\u03b5"},
        {"\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd", 1},
        // With ligatures of two letters.
        {"\u0627\u0644\u0633\u0644\u0627\u0645 \u0639\u0644\u064a\u0643\u0645", 1},
        // With marks above and below.
        {"\u0645\u064f\u062d\u064e\u0645\u064e\u0651\u062f", 1},
        {"\u0926\u0941\u0928\u093f\u092f\u093e \u0939\u093f\u0928\u094d\u0926\u0940"},
        {"\u4f60\u597d\u4e16\u754c"},
        {"abc\u05e9\u05dc\u05d5\u05ddghi"},
    };
    for (const auto& row : rows) {
        const ZAMTextLayout layout = LayOut(row.text, 5.0, row.writingMode == 1 ? kEnd : kStart, row.writingMode);
        const std::string pdf = DrawPdf(DrawText(layout, At(5.0, 50.0)));
        EXPECT_EQ(ReadText(pdf), row.text);
        EXPECT_TRUE(IsClean(pdf)) << row.text;
        EXPECT_GT(Count(Ask("pdffonts", "{}", pdf), " yes yes yes "), 0) << row.text;
    }
}

TEST(ZAMPrintCairoText, MarksFollowInTheirOrderAndGiveTheSameBytes) {
    const auto draw = [](ZAMPrintCairoGenerator& generator) {
        for (int line = 0; line < 4; ++line) {
            generator.DrawText(LayOut("line " + std::to_string(line), 10.0), At(5.0, 20.0 + 20.0 * line), &kBlack,
                               nullptr);
        }
    };
    const std::string pdf = DrawPdf(draw);
    EXPECT_EQ(Ask("pdftotext", "-layout {} -", pdf), "line 0\n\nline 1\n\nline 2\n\nline 3\n\f");
    EXPECT_EQ(pdf, DrawPdf(draw));
}

TEST(ZAMPrintCairoText, StrokesLieOverTheFill) {
    ZAMPrintPen pen = MakePen(4.0);
    const ZAMTextLayout layout = LayOut("I", 120.0);
    const auto both = DrawText(layout, At(30.0, 90.0), &kRed, &pen);
    const auto stroke = DrawText(layout, At(30.0, 90.0), nullptr, &pen);
    const auto middle = [](const Picture& picture) {
        const ZAMMathBox2D ink = FindInk(picture);
        return picture.At(static_cast<int>((ink.xMin + ink.xMax) / 2.0), 50);
    };
    const auto hasBlack = [](const Picture& picture) {
        bool found = false;
        for (int x = 0; x < 100; ++x) {
            found = found || picture.At(x, 50).IsNear(0x000000FF, 8);
        }
        return found;
    };
    for (const bool isPdf : {false, true}) {
        const auto show = [&](const DrawMarks& draw) {
            return isPdf ? Rasterise(DrawPdf(draw)) : Picture(DrawPng(draw));
        };
        EXPECT_TRUE(middle(show(both)).IsNear(0xFF0000FF));
        EXPECT_TRUE(hasBlack(show(both)));
        EXPECT_TRUE(middle(show(stroke)).IsNear(0));
        EXPECT_TRUE(hasBlack(show(stroke)));
    }
    EXPECT_EQ(ReadText(DrawPdf(both)), "I");
    EXPECT_EQ(ReadText(DrawPdf(stroke)), "");
}

TEST(ZAMPrintCairoText, LargeTextBecomesOutlines) {
    const struct {
        double em;
        bool isText;
    } rows[] = {{1999.0, true}, {2001.0, false}, {1e6, false}, {1e9, false}};
    for (const auto& row : rows) {
        // The middle of the stem of an I.
        const auto draw = DrawText(LayOut("I", row.em, kMiddleMiddle), At(50.0, 50.0));
        const std::string pdf = DrawPdf(draw);
        EXPECT_EQ(Count(Uncompress(pdf), "/Font <<") > 0, row.isText) << row.em;
        EXPECT_TRUE(Picture(DrawPng(draw)).At(50, 50).IsNear(0x000000FF)) << row.em;
        EXPECT_TRUE(Rasterise(pdf).At(50, 50).IsNear(0x000000FF)) << row.em;
        EXPECT_TRUE(IsClean(pdf)) << row.em;
    }
}

TEST(ZAMPrintCairoText, EmojiAreSharpPicturesStoredOnce) {
    const auto draw = [](ZAMPrintCairoGenerator& generator) {
        for (const double y : {30.0, 60.0, 90.0}) {
            generator.DrawText(LayOut("\U0001F34E\U0001F34E", 20.0), At(10.0, y), &kBlack, nullptr);
        }
        generator.DrawText(LayOut("\U0001F34E", 5000.0), At(1e4, 0.0), &kBlack, nullptr);
        generator.DrawText(LayOut("\U0001F34E", 0.01), At(50.0, 50.0), &kBlack, nullptr);
    };
    const std::string pdf = DrawPdf(draw);
    EXPECT_TRUE(IsClean(pdf));
    // Colours and opacity.
    EXPECT_EQ(Count(Uncompress(pdf), "/Subtype /Image"), 2);
    // A red apple with a green leaf above, three rows of two.
    for (const Picture& picture : {Picture(DrawPng(draw)), Rasterise(pdf)}) {
        for (const int y : {30, 60, 90}) {
            const Pixel apple = picture.At(22, y - 6);
            EXPECT_GT(apple.rgba >> 24U, 150U) << apple;
            EXPECT_LT(apple.rgba >> 16U & 0xFFU, 100U) << apple;
            EXPECT_EQ(apple.rgba & 0xFFU, 255U) << apple;
        }
    }
}

TEST(ZAMPrintCairoText, EmojiTakeTheOpacityOfTheFill) {
    const ZAMPrintFill half{{0, 0, 0, 128}, ZAMPrtFillRule::NonZero};
    const auto draw = DrawText(LayOut("\U0001F34E", 40.0), At(10.0, 50.0), &half);
    for (const Picture& picture : {Picture(DrawPng(draw)), Rasterise(DrawPdf(draw))}) {
        EXPECT_NEAR(static_cast<int>(picture.At(33, 38).rgba & 0xFFU), 128, 4);
    }
}

/// A layout keeps the names of its fonts' files; one may be gone when it is drawn.
TEST(ZAMPrintCairoText, AFontThatIsGoneHarmsNothing) {
    ZAMPrintCairoFonts fonts;
    ZAMTextFace face;
    face.file = "no-such-file.ttf";
    EXPECT_EQ(fonts.Find(face, {10.0, 0.0, 0.0, -10.0}), nullptr);
    EXPECT_EQ(fonts.Find(face, {10.0, 0.0, 0.0, -10.0}), nullptr);
    EXPECT_TRUE(face.GetOutline(40).IsEmpty());
    const ZAMTextLayout layout = LayOut("A");
    EXPECT_NE(fonts.Find(*layout.GetRuns().front().face, {10.0, 0.0, 0.0, -10.0}), nullptr);
}

TEST(ZAMPrintCairoText, HostileSizesAndPlacesHarmNothing) {
    std::vector<ZAMMathAffine2D> maps = {{0.0, 0.0, 0.0, 0.0, 5.0, 5.0},         {1.0, 1.0, 1.0, 1.0, 5.0, 5.0},
                                         {1.0, 1.0, 1.0, 1.0 + 1e-15, 5.0, 5.0}, {1e-7, 0.0, 0.0, 1e7, 50.0, 50.0},
                                         {1e5, 0.0, 0.0, 1e-5, 50.0, 50.0},      {100.0, 0.0, 0.0, -1e-4, 50.0, 50.0}};
    for (const double number : {kNaN, kInfinity, -kInfinity, 1e308, 1e30, 8388608.0, -4e6, 2e6, 100.0, 1e-4, 1e-310}) {
        maps.push_back({number, 0.0, 0.0, -1.0, 50.0, 50.0});
        maps.push_back({number, 0.0, 0.0, -number, 50.0, 50.0});
        maps.push_back({number, number, number, -number, 0.0, 0.0});
        maps.push_back(At(number, 50.0));
        maps.push_back(At(number, number));
    }
    // Arabic and emoji are fonts and ways of their own.
    const std::vector<ZAMTextLayout> layouts = {LayOut("Ab \u0644\u0627 \U0001F34E"), LayOut("Ab", 1e9),
                                                LayOut("Ab\U0001F34E", 1e-9), LayOut("Ab", 1e300)};
    const ZAMPrintPen pen = MakePen(3.0);
    const auto drawAll = [&](ZAMPrintCairoGenerator& generator, const ZAMMathAffine2D& map) {
        for (const ZAMTextLayout& layout : layouts) {
            generator.DrawText(layout, map, &kBlue, &pen);
        }
    };
    const auto drawRight = [](ZAMPrintCairoGenerator& generator) {
        generator.DrawPath(MakeRectangle(0.0, 0.0, 100.0, 100.0), {}, &kRed, nullptr);
        generator.DrawText(LayOut("I", 100.0, kMiddleMiddle), At(50.0, 50.0), &kBlack, nullptr);
    };
    for (const ZAMMathAffine2D& map : maps) {
        const auto start = std::chrono::steady_clock::now();
        const Picture picture(DrawPng([&](auto& generator) {
            drawAll(generator, map);
            drawRight(generator);
        }));
        EXPECT_TRUE(picture.At(50, 50).IsNear(0x000000FF)) << map.a << " " << map.e;
        EXPECT_TRUE(picture.At(2, 2).IsNear(0xFF0000FF)) << map.a << " " << map.e;
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        EXPECT_LT(time.count(), 10.0) << map.a << " " << map.e;
    }
    const std::string pdf = DrawPdf([&](auto& generator) {
        for (const ZAMMathAffine2D& map : maps) {
            drawAll(generator, map);
        }
        drawRight(generator);
    });
    EXPECT_TRUE(IsClean(pdf));
    const std::string content = Uncompress(pdf);
    EXPECT_EQ(Count(content, "nan ") + Count(content, "inf "), 0);
    EXPECT_TRUE(Rasterise(pdf).At(50, 50).IsNear(0x000000FF));
}

TEST(ZAMPrintCairoText, EmojiFarOutOnAWidePictureAreNoFailure) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(Format::Png, out);
    ZAMPrintParameters parameters;
    parameters.resolution = 72.0;
    generator.BeginDocument(parameters);
    generator.BeginPage(32000.0, 40.0);
    for (const double em : {0.101, 0.5, 4.0, 40.0, 1999.0, 2001.0}) {
        generator.DrawText(LayOut("\U0001F34E", em), At(31900.0, 35.0), &kBlack, nullptr);
        generator.DrawText(LayOut("\U0001F34E", em), {1.0, 0.5, 0.5, -1.0, 31800.0, 35.0}, &kBlack, nullptr);
    }
    EXPECT_EQ(generator.EndPage(), 1) << generator.GetError();
    EXPECT_TRUE(Picture(out.str()).At(31925, 30).IsNear(0xD00000FF, 0x60));
}

TEST(ZAMPrintCairoText, OnlyThePartInReachOfALongTextIsDrawn) {
    std::string text;
    for (int i = 0; i < 300000; ++i) {
        text += "word ";
    }
    const ZAMTextLayout layout = LayOut(text, 10.0);
    const auto draw = DrawText(layout, At(5.0, 50.0));
    EXPECT_FALSE(FindInk(Picture(DrawPng(draw))).IsEmpty());
    const std::string pdf = DrawPdf(draw);
    EXPECT_TRUE(IsClean(pdf));
    EXPECT_FALSE(FindInk(Rasterise(pdf)).IsEmpty());
}
