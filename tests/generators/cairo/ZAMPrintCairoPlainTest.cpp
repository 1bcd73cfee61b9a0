// SPDX-License-Identifier: MIT
#include "tests/generators/cairo/Drawing.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <vector>

namespace {

/// The content of the only page, without the map that turns it upside down.
std::string ContentOf(const std::string& pdf) {
    const std::string text = Uncompress(pdf);
    const std::string start = "1 0 0 -1 0 100 cm";
    const std::size_t begin = text.find(start) + start.size();
    std::string content = text.substr(begin, text.find("endstream", begin) - begin);
    std::ranges::replace(content, '\n', ' ');
    return content;
}

/// Marks of all kinds, on the page and beside it.
void DrawMany(ZAMPrintCairoGenerator& generator, unsigned int seed) {
    std::mt19937 random(seed);
    const auto number = [&](double from, double to) {
        return from + (to - from) * (static_cast<double>(random() % 100000) / 1e5);
    };
    const auto point = [&] { return ZAMMathPoint2D{number(-20.0, 120.0), number(-20.0, 120.0)}; };
    const auto colour = [&] {
        const auto byte = [&] { return static_cast<unsigned char>(random() % 256); };
        return ZAMPrintColour{byte(), byte(), byte(), random() % 2 == 0 ? static_cast<unsigned char>(255) : byte()};
    };
    const float dashes[] = {4.0F, 2.0F, 1.0F};
    for (int mark = 0; mark < 40; ++mark) {
        ZAMPrintPath path = MakeRectangle(number(-20.0, 90.0), number(-20.0, 90.0), number(1.0, 40.0), 9.0);
        if (random() % 2 == 0) {
            path.MoveTo(point());
            path.CubicTo(point(), point(), point());
            path.LineTo(point());
            random() % 2 == 0 ? path.ClosePath() : path.LineTo(point());
        }
        const ZAMPrintFill fill{colour(), random() % 2 == 0 ? ZAMPrtFillRule::NonZero : ZAMPrtFillRule::EvenOdd};
        ZAMPrintPen pen = MakePen(number(0.2, 5.0));
        pen.colour = colour();
        pen.cap = random() % 2 == 0 ? ZAMPrintLineAttribute::CapRound : ZAMPrintLineAttribute::CapButt;
        pen.join = random() % 2 == 0 ? ZAMPrintLineAttribute::JoinBevel : ZAMPrintLineAttribute::JoinMiter;
        pen.dashes = random() % 4 == 0 ? std::span<const float>(dashes) : std::span<const float>();
        const ZAMMathAffine2D map =
            random() % 3 == 0 ? ZAMMathAffine2D{1.2, 0.3, -0.1, 0.7, 3.0, 2.0} : ZAMMathAffine2D{};
        const bool isClipped = random() % 3 == 0;
        if (isClipped) {
            generator.PushClip({number(0.0, 40.0), number(0.0, 40.0), 90.0, 80.0}, map);
        }
        const auto kind = random() % 3;
        generator.DrawPath(path, map, kind != 0 ? &fill : nullptr, kind != 1 ? &pen : nullptr);
        if (isClipped) {
            generator.PopClip();
        }
    }
}

/// The share of samples that differ by more than smoothing does.
double Differ(const std::string& one, const std::string& other) {
    EXPECT_EQ(one.size(), other.size());
    std::size_t count = 0;
    for (std::size_t i = 0; i < std::min(one.size(), other.size()); ++i) {
        count += std::abs(static_cast<unsigned char>(one[i]) - static_cast<unsigned char>(other[i])) > 40 ? 1U : 0U;
    }
    return static_cast<double>(count) / static_cast<double>(one.size());
}

std::string Show(const std::string& pdf, int page = 1) {
    return Ask("pdftoppm", "-r 144 -f " + std::to_string(page) + " -singlefile {}", pdf);
}

} // namespace

TEST(ZAMPrintCairoPlain, WritesEachMarkInItsShortestForm) {
    const ZAMPrintFill black{{0, 0, 0, 255}};
    const ZAMPrintFill faint{{255, 0, 51, 128}};
    const ZAMPrintPen fine = MakePen(0.001);
    const ZAMPrintPen thin = MakePen(1.0);
    const ZAMPrintPen thick = MakePen(2.5);
    const struct {
        const char* path;
        const ZAMPrintFill* fill;
        const ZAMPrintPen* pen;
        const char* content;
    } rows[] = {
        {"M 1 2 L 3 2 L 3 6.5 L 1 6.5 Z", &black, nullptr, " 1 2 2 4.5 re f "},
        {"M 1 2 L 1 6 L 3 6 L 3 2 Z", &black, nullptr, " 1 2 m 1 6 l 3 6 l 3 2 l f "},
        // A fill closes its contours, and needs no line back to where they begin; a stroke is closed with one.
        {"M 0.5 0 L 9.12345 0 L 9 9 L 0.5 0 Z", &black, nullptr, " .5 0 m 9.123 0 l 9 9 l f "},
        {"M 0.5 0 L 9 0 L 9 9 L 0.5 0 Z", nullptr, &thin, " 4 M .5 0 m 9 0 l 9 9 l h S "},
        {"M 0 0 C 0 0 1 2 3 4 C 5 6 7 8 7 8 C 1 2 3 4 -5 -0.25", nullptr, &thick,
         " 2.5 w 4 M 0 0 m 1 2 3 4 v 5 6 7 8 y 1 2 3 4 -5 -.25 c S "},
        // A line too short to tell keeps its ends, and the way that they point.
        {"M 1 1 L 1 1 L 2 2", &black, &thin, " 4 M 1 1 m 2 2 l B "},
        {"M 1 1 L 1 1", nullptr, &thin, " 4 M 1 1 m 1 1 l S "},
        {"M 1 1 L 1.0002 1.0001 L 1.0001 1 M 5 5 L 5.0001 4.9997", nullptr, &fine,
         " .001 w 4 M 1 1 m 1.001 1 l 5 5 m 5 4.999 l S "},
        {"M 1 1 C 1 1 1 1.0001 1 1.0002", nullptr, &fine, " .001 w 4 M 1 1 m 1 1.001 l S "},
        {"M 1 1 L 1.0002 1 Z", nullptr, &fine, " .001 w 4 M 1 1 m 1 1 l h S "},
        // For a wide pen their direction counts.
        {"M 1 1 L 1.0002 1.0001 L 1.0001 1", nullptr, &thin, " 4 M 1 1 m 1.0002 1.0001 l 1.0001 1 l S "},
        {"M 1 1 L 9 1 L 5 5", &faint, nullptr, " /a128 gs 1 0 .2 rg 1 1 m 9 1 l 5 5 l f "},
        // Nothing to see.
        {"M 1 1 L 9 1", &black, nullptr, " "},
        {"M 1 1 L 9 1 L 9 1.0002 L 1 1.0002 Z", &black, nullptr, " "},
        {"M 200 200 L 300 300 L 200 300 Z", &black, &thin, " "},
    };
    for (const auto& row : rows) {
        const std::string pdf = DrawPdf([&](auto& g) { g.DrawPath(MakePath(row.path), {}, row.fill, row.pen); });
        ExpectSound(pdf);
        EXPECT_EQ(ContentOf(pdf), row.content) << row.path;
    }
}

TEST(ZAMPrintCairoPlain, PensThatAreNoCirclesKeepTheirPaths) {
    const ZAMPrintPen thin = MakePen(1.0);
    const ZAMMathAffine2D map{1.0, 0.0, 0.0, 0.0010004999, 0.0, 0.0};
    const std::string pdf =
        DrawPdf([&](auto& g) { g.DrawPath(MakePath("M 20 20000 L 80 80000"), map, nullptr, &thin); });
    // 20,000 times another digit would be 0.02 points.
    EXPECT_EQ(ContentOf(pdf), " 4 M q 1 0 0 .0010004999 0 0 cm 20 20000 m 80 80000 l S Q ");
}

TEST(ZAMPrintCairoPlain, DashesOfAlmostNoLengthAreSeenByTheirEndsAlone) {
    constexpr auto kButt = ZAMPrintLineAttribute::CapButt;
    constexpr auto kRound = ZAMPrintLineAttribute::CapRound;
    const struct {
        std::vector<float> dashes;
        ZAMPrintLineAttribute cap;
        const char* content;
    } rows[] = {
        {{1e-8F, 5}, kRound, " 1 J 4 M [.000001 5] 0 d 1 1 m 9 1 l S "},
        {{1e-8F, 5}, kButt, " "},
        {{0, 4, 16, 4}, kButt, " 4 M [16 8] 20 d 1 1 m 9 1 l S "},
        {{16, 4, 0, 4}, kButt, " 4 M [16 8] 0 d 1 1 m 9 1 l S "},
        {{0, 1, 0, 2, 3, 4, 5, 0}, kButt, " 4 M [3 4 5 3] 12 d 1 1 m 9 1 l S "},
        {{0, 4, 16}, kButt, " 4 M [16 0 4 20] 36 d 1 1 m 9 1 l S "}, // twice around: its dashes and gaps swap
        {{0, 3, 0}, kButt, " 4 M [3 3] 3 d 1 1 m 9 1 l S "},
        {{2, 3, 1}, kButt, " 4 M [2 3 1] 0 d 1 1 m 9 1 l S "},
    };
    for (const auto& row : rows) {
        ZAMPrintPen pen = MakePen(1.0);
        pen.cap = row.cap;
        pen.dashes = row.dashes;
        EXPECT_EQ(ContentOf(DrawPdf([&](auto& g) { g.DrawPath(MakePath("M 1 1 L 9 1"), {}, nullptr, &pen); })),
                  row.content);
    }
}

// A wide pen shows how a line's direction is rounded, dashes how its length is.
TEST(ZAMPrintCairoPlain, FineCirclesOfWidePensAreRound) {
    ZAMPrintPath circle;
    constexpr int kCorners = 36000;
    for (int i = 0; i < kCorners; ++i) {
        const double angle = 6.283185307179586 * i / kCorners;
        const ZAMMathPoint2D point{50.0 + 20.0 * std::cos(angle), 50.0 + 20.0 * std::sin(angle)};
        i == 0 ? circle.MoveTo(point) : circle.LineTo(point);
    }
    circle.ClosePath();
    const float dashes[] = {6.0F, 6.0F};
    for (const double width : {20.0, 0.5}) {
        ZAMPrintPen pen = MakePen(width);
        pen.dashes = width < 1.0 ? std::span<const float>(dashes) : std::span<const float>();
        const std::string plain = DrawPdf([&](auto& g) { g.DrawPath(circle, {}, nullptr, &pen); });
        // In units a thousand times larger there is nothing to round.
        const std::string exact = DrawPdf([&](auto& g) {
            pen.width *= 1000.0;
            const float large[] = {6000.0F, 6000.0F};
            pen.dashes = pen.dashes.empty() ? pen.dashes : std::span<const float>(large);
            ZAMPrintPath arcs =
                MakePath("M 70000 50000 C 70000 61046 61046 70000 50000 70000 C 38954 70000 30000 61046 "
                         "30000 50000 C 30000 38954 38954 30000 50000 30000 C 61046 30000 70000 38954 "
                         "70000 50000 Z");
            g.DrawPath(arcs, {0.001, 0.0, 0.0, 0.001, 0.0, 0.0}, nullptr, &pen);
        });
        EXPECT_LT(Differ(Show(plain), Show(exact)), 0.0005) << width;
    }
}

TEST(ZAMPrintCairoPlain, ClipsEndWithWhatWasSetInThem) {
    const auto draw = [](auto& g) {
        g.PushClip({0.0, 0.0, 100.0, 100.0}, {}); // all of the page
        g.PushClip({10.0, 10.0, 90.0, 20.0}, {});
        g.DrawPath(MakeRectangle(0.0, 0.0, 50.0, 50.0), {}, &kRed, nullptr);
        g.PopClip();
        g.PushClip({10.0, 10.0, 90.0, 20.0}, {}); // with nothing in it
        g.PopClip();
        g.DrawPath(MakeRectangle(0.0, 0.0, 50.0, 50.0), {}, &kRed, nullptr);
        g.PopClip();
        g.PushClip({}, {}); // leaves nothing open
        g.DrawPath(MakeRectangle(0.0, 0.0, 50.0, 50.0), {}, &kBlue, nullptr);
    };
    EXPECT_EQ(ContentOf(DrawPdf(draw)), " q 10 10 80 10 re W n 1 0 0 rg 0 0 50 50 re f Q 1 0 0 rg 0 0 50 50 re f ");
}

TEST(ZAMPrintCairoPlain, ShowsWhatCairoShows) {
    for (unsigned int seed = 1; seed <= 5; ++seed) {
        const std::string plain = DrawPdf([&](auto& g) { DrawMany(g, seed); });
        const std::string cairo = DrawPdf([&](auto& g) {
            DrawMany(g, seed);
            g.AddLink({0.0, 0.0, 1.0, 1.0}, "http://example.com/");
        });
        ExpectSound(plain);
        EXPECT_EQ(Count(plain, "/Producer(ZAM print)"), 1);
        EXPECT_EQ(Count(cairo, "/Producer (cairo"), 1);
        EXPECT_LT(Differ(Show(plain), Show(cairo)), 0.002) << seed;
    }
}

TEST(ZAMPrintCairoPlain, APageThatNeedsCairoTakesTheOthersAlong) {
    const auto image = MakeImage(2, 2, [](int, int) { return 0xFF00FF00U; });
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Pdf, out);
    ASSERT_EQ(generator.BeginDocument({}), 1);
    for (unsigned int page = 1; page <= 3; ++page) {
        ASSERT_EQ(generator.BeginPage(100.0, 100.0), 1);
        generator.PushClip({0.0, 0.0, 90.0, 90.0}, {});
        DrawMany(generator, page);
        if (page == 2) {
            generator.DrawImage(image, {10.0, 0.0, 0.0, 10.0, 85.0, 85.0});
        }
        generator.PopClip();
        ASSERT_EQ(generator.EndPage(), 1);
    }
    ASSERT_EQ(generator.EndDocument(), 1);
    ExpectSound(out.str());
    EXPECT_EQ(Count(Ask("pdfinfo", "{}", out.str()), "Pages:           3"), 1);
    for (const int page : {1, 3}) {
        const std::string alone = DrawPdf([&](auto& g) {
            g.PushClip({0.0, 0.0, 90.0, 90.0}, {});
            DrawMany(g, static_cast<unsigned int>(page));
        });
        EXPECT_LT(Differ(Show(alone), Show(out.str(), page)), 0.002) << page;
    }
    // The picture is green, and the clip ends it: 5 x 5 points of it show.
    const std::string shown = Show(out.str(), 2);
    const std::size_t row = shown.size() - std::size_t{3} * 200 * 200 + std::size_t{3} * (200 * 175 + 175);
    EXPECT_EQ(shown.substr(row, 3), std::string("\0\xFF\0", 3));
}

TEST(ZAMPrintCairoPlain, DocumentsThatGrowTooLargeGoThroughCairo) {
    // Of 1.7 MB each, and beside the page, so that their content is nothing.
    ZAMPrintPath path;
    path.MoveTo({200.0, 200.0});
    for (int i = 0; i < 100000; ++i) {
        path.LineTo({200.0, 200.0 + i % 2});
    }
    const struct {
        int pages;
        int marks;
        bool isPlain;
    } rows[] = {{3, 5, true}, {1, 60, true}, {12, 5, false}};
    for (const auto& row : rows) {
        std::ostringstream out;
        ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Pdf, out);
        ASSERT_EQ(generator.BeginDocument({}), 1);
        for (int page = 0; page < row.pages; ++page) {
            ASSERT_EQ(generator.BeginPage(100.0, 100.0), 1);
            for (int mark = 0; mark < row.marks; ++mark) {
                generator.PushClip({10.0, 10.0, 90.0, 90.0}, {});
                generator.DrawPath(mark == 0 ? MakeRectangle(0.0, 0.0, 50.0, 50.0) : path, {}, &kRed, nullptr);
                generator.PopClip();
            }
            ASSERT_EQ(generator.EndPage(), 1);
        }
        EXPECT_EQ(out.str().empty(), row.isPlain) << row.pages;
        ASSERT_EQ(generator.EndDocument(), 1);
        ExpectSound(out.str());
        EXPECT_EQ(Count(out.str(), "/Producer(ZAM print)"), row.isPlain ? 1 : 0) << row.pages;
        EXPECT_EQ(Count(Ask("pdfinfo", "{}", out.str()), "Pages:           " + std::to_string(row.pages)), 1);
        EXPECT_EQ(Show(out.str(), row.pages), Show(DrawPdf([](auto& g) {
                      g.PushClip({10.0, 10.0, 90.0, 90.0}, {});
                      g.DrawPath(MakeRectangle(0.0, 0.0, 50.0, 50.0), {}, &kRed, nullptr);
                  })));
    }
}

TEST(ZAMPrintCairoPlain, PagesThatAreRoundedUpShowAllThatIsDrawn) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Pdf, out);
    ZAMPrintParameters parameters;
    parameters.background = ZAMPrintColour{0, 0, 255, 128};
    ASSERT_EQ(generator.BeginDocument(parameters), 1);
    for (const double side : {60.5, 40.25}) {
        ASSERT_EQ(generator.BeginPage(side, side), 1);
        generator.PushClip({0.0, 0.0, side, side}, {});
        generator.DrawPath(MakeRectangle(-50.0, -50.0, 200.0, 200.0), {}, &kRed, nullptr);
        generator.PopClip();
        ASSERT_EQ(generator.EndPage(), 1);
    }
    ASSERT_EQ(generator.EndDocument(), 1);
    ExpectSound(out.str());
    const std::string text = Uncompress(out.str());
    EXPECT_EQ(Count(out.str(), "/MediaBox[0 0 60.5 60.5]"), 1);
    EXPECT_EQ(Count(out.str(), "/MediaBox[0 0 41 41]"), 1);
    EXPECT_EQ(Count(out.str(), "/a128<</CA 0.501961/ca 0.501961>>"), 2);
    // The background is as large as the page, and what a clip shuts out is not in the strip beyond it.
    EXPECT_EQ(Count(text, "\n0 0 60.5 60.5 re\n"), 1);
    EXPECT_EQ(Count(text, "\n0 0 41 41 re\n"), 1);
    EXPECT_EQ(Count(text, "\n0 0 40.25 40.25 re\n"), 1);
}

TEST(ZAMPrintCairoPlain, ClipsWithoutEndShutOutWhatCairoShutsOut) {
    const auto draw = [](const ZAMMathBox2D& area) {
        return DrawPdf([&](auto& g) {
            g.PushClip(area, {});
            g.DrawPath(MakeRectangle(10.0, 10.0, 80.0, 80.0), {}, &kRed, nullptr);
            g.PopClip();
        });
    };
    EXPECT_EQ(Show(draw({20.0, -kInfinity, 50.0, kInfinity})), Show(draw({20.0, -500.0, 50.0, 500.0})));
    EXPECT_EQ(Show(draw({20.0, 20.0, kInfinity, kInfinity})), Show(draw({20.0, 20.0, 500.0, 500.0})));
}
