// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMTextLayout.h"

#include "framework/visualisation/ZAMFont.h"

#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <string>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Liberation Sans has 2048 units in the em, ascent 1854, descent 434, and the advances of Arial: "H" 1479, "i" 455.
constexpr double kAscent = 1854.0 / 2048.0;
constexpr double kDescent = 434.0 / 2048.0;
constexpr double kH = 1479.0 / 2048.0;
constexpr double kI = 455.0 / 2048.0;

ZAMTextStyle Sans(double height = 1.0) {
    return {.font = ZAMFont::sGetFont("Liberation Sans"), .height = height};
}

void ExpectBox(const ZAMMathBox2D& box, const ZAMMathBox2D& expected, const std::string& what, double near = 1e-5) {
    EXPECT_NEAR(box.xMin, expected.xMin, near) << what;
    EXPECT_NEAR(box.yMin, expected.yMin, near) << what;
    EXPECT_NEAR(box.xMax, expected.xMax, near) << what;
    EXPECT_NEAR(box.yMax, expected.yMax, near) << what;
}

// Every byte and every glyph belongs to exactly one cluster of one run.
void ExpectCovered(const ZAMTextLayout& layout) {
    std::string covered(layout.GetText().size(), '-');
    for (const ZAMTextRun& run : layout.GetRuns()) {
        std::size_t bytes = 0;
        std::size_t glyphs = 0;
        for (const ZAMTextCluster& cluster : layout.GetClusters(run)) {
            bytes += cluster.bytes;
            glyphs += cluster.glyphs;
            EXPECT_GT(cluster.bytes, 0U);
        }
        EXPECT_EQ(bytes, run.textLength);
        EXPECT_EQ(glyphs, layout.GetGlyphs(run).size());
        covered.replace(run.textStart, run.textLength, run.textLength, '+');
    }
    EXPECT_EQ(covered, std::string(layout.GetText().size(), '+')) << layout.GetText();
}

struct BoxSink {
    ZAMMathBox2D box;
    int contours = 0;
    int closed = 0;
    void MoveTo(const ZAMMathPoint2D& p) {
        box.Add(p);
        ++contours;
    }
    void LineTo(const ZAMMathPoint2D& p) { box.Add(p); }
    void CubicTo(const ZAMMathPoint2D&, const ZAMMathPoint2D&, const ZAMMathPoint2D& p) { box.Add(p); }
    void ClosePath() { ++closed; }
};

} // namespace

TEST(ZAMTextLayout, MeasuresTheDesignAtEveryHeight) {
    for (const double height : {1e-6, 1.0, 16.0, 1e9, 1e100}) {
        const ZAMMathBox2D box = ZAMTextLayout("Hi", Sans(height)).GetExtents();
        ExpectBox({box.xMin / height, box.yMin / height, box.xMax / height, box.yMax / height},
                  {0.0, -kDescent, kH + kI, kAscent}, std::to_string(height));
    }
}

TEST(ZAMTextLayout, AnchorsAtTwelvePlaces) {
    const double width = kH + kI;
    const double lefts[] = {0.0, -width / 2.0, -width};
    const double bottoms[] = {0.0, -kDescent, -(kAscent + kDescent) / 2.0, -(kAscent + kDescent)};
    for (int code = 0; code < 12; ++code) {
        ZAMTextStyle style = Sans();
        style.anchor = 28 + code;
        const double left = lefts[code / 4];
        const double bottom = bottoms[code % 4];
        const ZAMTextLayout layout("Hi", style);
        ExpectBox(layout.GetExtents(), {left, bottom, left + width, bottom + kAscent + kDescent},
                  std::to_string(style.anchor));
        EXPECT_NEAR(layout.GetGlyphs(layout.GetRuns()[0])[1].origin.x, left + kH, 1e-5);
        EXPECT_NEAR(layout.GetGlyphs(layout.GetRuns()[0])[1].origin.y, bottom + kDescent, 1e-5);
    }
}

TEST(ZAMTextLayout, AppliesSpacingExpansionSlantAndDirection) {
    const double up = kAscent;
    const double down = -kDescent;
    const auto quarter = static_cast<float>(std::numbers::pi / 2.0);
    const auto lean = std::atan(0.5F);
    const auto with = [](auto change) {
        ZAMTextStyle style = Sans();
        change(style);
        return style;
    };
    const struct {
        std::string name;
        ZAMTextStyle style;
        ZAMMathBox2D expected;
    } rows[] = {
        {"spacing", with([](auto& s) { s.extraSpacing = 2.0; }), {0.0, down, kH + kI + 2.0, up}},
        {"negative spacing", with([](auto& s) { s.extraSpacing = -3.0; }), {kH + kI - 3.0, down, 0.0, up}},
        {"expansion", with([](auto& s) { s.expansion = 3.0; }), {0.0, down, 3.0 * (kH + kI), up}},
        {"both",
         with([](auto& s) { s.expansion = 3.0, s.extraSpacing = 2.0; }),
         {0.0, down, 3.0 * (kH + kI) + 2.0, up}},
        {"slant", with([&](auto& s) { s.slant = lean; }), {down / 2.0, down, kH + kI + up / 2.0, up}},
        {"direction", with([&](auto& s) { s.direction = quarter; }), {-up, 0.0, -down, kH + kI}},
        {"direction, end", with([&](auto& s) { s.direction = quarter, s.anchor = 37; }), {-up, -kH - kI, -down, 0.0}},
        {"unusable",
         with([](auto& s) {
             s.slant = s.direction = std::numeric_limits<float>::quiet_NaN();
             s.extraSpacing = kInfinity, s.expansion = kNaN, s.anchor = 99, s.writingMode = -7, s.weight = 1000;
         }),
         {0.0, down, kH + kI, up}}};
    for (const auto& row : rows) {
        ZAMMathBox2D expected;
        expected.Add({row.expected.xMin, row.expected.yMin});
        expected.Add({row.expected.xMax, row.expected.yMax});
        ExpectBox(ZAMTextLayout("Hi", row.style).GetExtents(), expected, row.name);
    }
}

TEST(ZAMTextLayout, TracesOutlinesWhereTheGlyphsStand) {
    ZAMTextStyle style = Sans(2048.0);
    style.direction = static_cast<float>(std::numbers::pi / 2.0);
    const ZAMTextLayout layout("HH", style);
    ASSERT_EQ(layout.GetRuns().size(), 1U);
    BoxSink sink;
    layout.TraceOutlines(layout.GetRuns()[0], sink);
    // The "H" reaches from 168 to 1312 and up to 1409; the text goes up the page.
    ExpectBox(sink.box, {-1409.0, 168.0, 0.0, 1479.0 + 1312.0}, "HH", 1e-3);
    EXPECT_EQ(sink.contours, 2);
    EXPECT_EQ(sink.closed, 2);
    EXPECT_TRUE(layout.GetRuns()[0].face->GetOutline(0xFFFFFF).IsEmpty());
}

TEST(ZAMTextLayout, TakesWeightFromTheStyleAndElseFromTheFace) {
    const auto fileOf = [](const char* font, int weight) {
        const ZAMTextLayout layout("x", {.font = ZAMFont::sGetFont(font), .weight = weight});
        const std::string& file = layout.GetRuns()[0].face->file;
        return file.substr(file.rfind('/') + 1);
    };
    EXPECT_EQ(fileOf("Liberation Sans", 25), "LiberationSans-Regular.ttf");
    EXPECT_EQ(fileOf("Liberation Sans", 26), "LiberationSans-Bold.ttf");
    EXPECT_EQ(fileOf("Liberation Sans", 27), "LiberationSans-Bold.ttf");
    EXPECT_EQ(fileOf("Liberation Sans", 24), "LiberationSans-Regular.ttf");
    EXPECT_EQ(fileOf("Liberation Sans Italic", 25), "LiberationSans-Italic.ttf");
    EXPECT_EQ(fileOf("Liberation Sans Bold Italic", 25), "LiberationSans-BoldItalic.ttf");
    EXPECT_EQ(fileOf("Arial", 26), "LiberationSans-Bold.ttf");
    EXPECT_EQ(ZAMTextLayout("x", {}).GetRuns()[0].face->file.find("LiberationSerif-Regular") != std::string::npos,
              true);
}

TEST(ZAMTextLayout, OrdersMixedDirectionsAndCoversTheText) {
    ZAMTextStyle style{.font = ZAMFont::sGetFont("DejaVu Sans"), .height = 1.0};
    const std::string text = "ab \u05e9\u05dc 12";
    const ZAMTextLayout leftToRight(text, style);
    ExpectCovered(leftToRight);
    EXPECT_EQ(leftToRight.GetRuns().front().textStart, 0U);
    EXPECT_NEAR(leftToRight.GetExtents().xMin, 0.0, 1e-9);
    style.writingMode = 1;
    const ZAMTextLayout rightToLeft(text, style);
    ExpectCovered(rightToLeft);
    EXPECT_EQ(rightToLeft.GetRuns().back().textStart, 0U);
    EXPECT_FALSE(rightToLeft.GetRuns().back().rightToLeft);
    EXPECT_NEAR(rightToLeft.GetExtents().xMax, 0.0, 1e-9);
    EXPECT_NEAR(rightToLeft.GetExtents().Width(), leftToRight.GetExtents().Width(), 1e-6);

    const ZAMTextLayout hebrew("\u05e9\u05dc\u05d5", style);
    const ZAMTextRun& run = hebrew.GetRuns()[0];
    EXPECT_TRUE(run.rightToLeft);
    EXPECT_EQ(hebrew.GetGlyphs(run)[2].id, ZAMTextLayout("\u05e9", style).GetGlyphs(run)[0].id);
    for (const char* other :
         {"\u0645\u0631\u062d\u0628\u0627", "e\u0301\u200d \u0915\u094d\u0937", "office \U0010FFFD"}) {
        ExpectCovered(ZAMTextLayout(other, style));
    }
}

TEST(ZAMTextLayout, RunsDownAColumn) {
    ZAMTextStyle style = Sans();
    style.writingMode = 2;
    const double half = (kAscent + kDescent) / 2.0;
    const ZAMTextLayout latin("Hi", style);
    ExpectBox(latin.GetExtents(), {-half, -kH - kI, half, 0.0}, "turned");
    const ZAMMathAffine2D& map = latin.GetRuns()[0].emToUnits;
    EXPECT_EQ(map, (ZAMMathAffine2D{0.0, -1.0, 1.0, 0.0, 0.0, 0.0}));
    style.anchor = 39; // end, top: the column ends at the anchor and lies to its left
    ExpectBox(ZAMTextLayout("Hi", style).GetExtents(), {-2.0 * half, 0.0, 0.0, kH + kI}, "end, top");
    style.anchor = 29;
    // Upright, whatever font has it or has not.
    const ZAMTextLayout ideograph("\u65e5\u672c", style);
    EXPECT_EQ(ideograph.GetRuns()[0].emToUnits, ZAMMathAffine2D{});
    EXPECT_LT(ideograph.GetExtents().yMin, -1.0);
    EXPECT_NEAR(ideograph.GetExtents().yMax, 0.0, 1e-9);
}

TEST(ZAMTextLayout, DropsWhatIsNoText) {
    const struct {
        std::string given;
        std::string kept;
    } rows[] = {{"a\x01\x1F\x7F\xC2\x80z", "az"},
                {"a\tb\nc\rd\u2028e", "a b c d e"},
                {"a\xFF\x80z\xC3", "az"},
                {"\xED\xA0\x80x", "x"},
                {"\xC0\xAFx\xF4\x90\x80\x80", "x"},
                {std::string("a\0b", 3), "ab"},
                {"\x01\x02", ""}};
    for (const auto& row : rows) {
        const ZAMTextLayout layout(row.given, Sans());
        EXPECT_EQ(layout.GetText(), row.kept);
        EXPECT_EQ(layout.IsEmpty(), row.kept.empty());
    }
}

TEST(ZAMTextLayout, BearsAnyNumbers) {
    for (const double height : {0.0, -1.0, kNaN, kInfinity, -kInfinity, 1e308}) {
        const ZAMTextLayout layout("HHHHHHHH", Sans(height));
        EXPECT_TRUE(layout.IsEmpty() && layout.GetExtents().IsEmpty()) << height;
    }
    for (const double spacing : {1e9, -1e9, 1e300}) {
        ZAMTextStyle style = Sans();
        style.extraSpacing = spacing;
        const ZAMTextLayout layout("Hi", style);
        EXPECT_TRUE(layout.GetExtents().Width() > 1e8 && std::isfinite(layout.GetExtents().Width())) << spacing;
    }
}

TEST(ZAMTextLayout, LaysOutAMegabyte) {
    for (const std::string piece : {"H", "\u0301", "a\u05e9", "H "}) {
        std::string text;
        while (text.size() < 1000000) {
            text += piece;
        }
        const auto start = std::chrono::steady_clock::now();
        const ZAMTextLayout layout(text, Sans());
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        EXPECT_LT(taken.count(), 60.0) << piece;
        ExpectCovered(layout);
        if (piece == "H") {
            EXPECT_NEAR(layout.GetExtents().Width(), 1e6 * kH, 1.0);
        }
    }
}
