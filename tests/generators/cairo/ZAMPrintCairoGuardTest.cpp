// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoCanvas.h"
#include "tests/generators/cairo/Drawing.h"
#include "tests/generators/cairo/Picture.h"

#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

using Dashes = std::vector<float>;

/// A mark that no document should get away with.
struct HostileMark {
    std::string path;
    ZAMMathAffine2D toPage;
    double width = 1.0;
    Dashes dashes = {};
};

/// The path with the number for each N.
std::string InsertNumber(std::string path, const std::string& number) {
    for (std::size_t at = path.find('N'); at != std::string::npos; at = path.find('N', at + number.size())) {
        path.replace(at, 1, number);
    }
    return path;
}

std::vector<HostileMark> MakeHostileMarks() {
    const std::string line = "M 0 0 L 100 100 ";
    const std::string curve = "M 0 0 C 100 0 0 100 100 100 Z ";
    std::vector<HostileMark> marks;
    for (const std::string number : {"nan", "inf", "-inf", "1e308", "-1e308", "1e30", "8388608", "-4e6", "1e-310"}) {
        const auto insert = [&](const char* path) { return InsertNumber(path, number); };
        const Dashes dashes = {2.0F, 1.0F};
        marks.push_back({insert("M N 0 L 100 100 L 0 N L 9 9 Z"), {}});
        marks.push_back({insert("M 0 0 L 100 100 C N 0 0 N N N L 5 5 Z"), {}});
        marks.push_back({insert("M 0 0 L 100 100 L N 50 L 50 N Z"), {}, 3.0, dashes});
        marks.push_back({insert("M 50 N C N 50 N N 0 0 L N N Z"), {}, 3.0, dashes});
        const double value = std::strtod(number.c_str(), nullptr);
        marks.push_back({curve, {}, value});
        marks.push_back({curve, {}, value, {1.0F}});
        marks.push_back({curve, {value, 0.0, 0.0, 1.0, 0.0, 0.0}, 3.0, {2.0F}});
        marks.push_back({curve, {1.0, 0.0, 0.0, 1.0, value, value}, 3.0, {2.0F}});
        marks.push_back({curve, {value, value, value, -value, 0.0, 0.0}, 3.0, {2.0F}});
        marks.push_back({curve, {1.0, value, value, 1.0, value, 0.0}});
        const auto dash = static_cast<float>(std::isfinite(value) ? std::clamp(value, -3e38, 3e38) : value);
        marks.push_back({curve, {}, 2.0, {dash}});
        marks.push_back({curve, {}, 2.0, {5.0F, dash}});
        marks.push_back({curve, {}, 2.0, {0.0F, 0.0F, dash}});
    }
    for (const Dashes& dashes :
         {Dashes{0.0F}, Dashes{0.0F, 0.0F}, Dashes{-1.0F, 3.0F}, Dashes{1e-38F}, Dashes{1e-6F}, Dashes(255, 1e-3F),
          Dashes(254, 0.0F), Dashes(100000, 1.0F), Dashes{0.0F, 1e-3F}, Dashes{0.006F}}) {
        marks.push_back({curve, {}, 2.0, dashes});
        marks.push_back({"M -1e6 50 L 1e6 50 L 1e6 -1e6", {}, 2.0, dashes});
        marks.push_back({"M -1e6 50 L 1e6 50", {}, 1e6, dashes});
        marks.push_back({curve, {1e5, 0.0, 0.0, 1e-5, 0.0, 0.0}, 2.0, dashes});
    }
    for (const ZAMMathAffine2D& map :
         {ZAMMathAffine2D{0.0, 0.0, 0.0, 0.0, 5.0, 5.0}, ZAMMathAffine2D{1.0, 1.0, 1.0, 1.0, 0.0, 0.0},
          ZAMMathAffine2D{1.0, 1.0, 1.0, 1.0 + 1e-15, 0.0, 0.0}, ZAMMathAffine2D{1e-200, 0.0, 0.0, 1e-200, 0.0, 0.0},
          ZAMMathAffine2D{1e200, 0.0, 0.0, 1e200, 0.0, 0.0}, ZAMMathAffine2D{1e-7, 0.0, 0.0, 1e7, 0.0, 0.0}}) {
        marks.push_back({curve, map, 1.0, {1.0F}});
        marks.push_back({line, map, 1e7});
    }
    for (const char* path :
         {"", "Z", "M 5 5", "M 5 5 Z", "M 5 5 L 5 5", "L 5 5 L 6 6", "M nan nan Z", "M 5 5 M 6 6 Z Z"}) {
        marks.push_back({path, {}, 5.0});
        marks.push_back({path, {}, 5.0, {1.0F}});
    }
    return marks;
}

void DrawHostileMark(ZAMPrintCairoGenerator& generator, const HostileMark& mark) {
    for (const auto cap : {ZAMPrintLineAttribute::CapButt, ZAMPrintLineAttribute::CapSquare,
                           ZAMPrintLineAttribute::CapRound, static_cast<ZAMPrintLineAttribute>(99)}) {
        ZAMPrintPen pen = MakePen(mark.width);
        pen.dashes = mark.dashes;
        pen.cap = cap;
        pen.join = cap == ZAMPrintLineAttribute::CapRound ? ZAMPrintLineAttribute::JoinRound
                                                          : ZAMPrintLineAttribute::JoinMiter;
        generator.DrawPath(MakePath(mark.path), mark.toPage, &kBlue, &pen);
    }
}

/// Marks whose picture is known: a filled square with a stroked line beside it.
void DrawNormalMark(ZAMPrintCairoGenerator& generator) {
    const ZAMPrintPen pen = MakePen(10.0);
    generator.DrawPath(MakeRectangle(0.0, 0.0, 100.0, 100.0), {}, &kRed, nullptr);
    generator.DrawPath(MakePath("M 0 50 L 100 50"), {}, nullptr, &pen);
}

bool IsNormalMark(const Picture& picture) {
    return picture.At(50, 44).IsNear(0xFF0000FF) && picture.At(50, 46).IsNear(0x000000FF) &&
           picture.At(99, 53).IsNear(0x000000FF) && picture.At(50, 55).IsNear(0xFF0000FF);
}

/// The colours of a row of pixels: # black, . nothing, ? else.
std::string ReadRow(const Picture& picture, int y) {
    std::string row;
    for (int x = 0; x < picture.width; ++x) {
        const Pixel pixel = picture.At(x, y);
        row += pixel.IsNear(0x000000FF, 8) ? '#' : pixel.IsNear(0, 8) ? '.' : '?';
    }
    return row;
}

} // namespace

TEST(ZAMPrintCairoGuard, HostileMarksEndSoonAndHarmNothing) {
    std::string pdf;
    for (const HostileMark& mark : MakeHostileMarks()) {
        const auto start = std::chrono::steady_clock::now();
        const auto draw = [&](auto& generator) {
            DrawHostileMark(generator, mark);
            DrawNormalMark(generator);
        };
        const Picture picture(DrawPng(draw));
        pdf = DrawPdf(draw);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        EXPECT_LT(time.count(), 10.0) << mark.path << " width " << mark.width;
        EXPECT_TRUE(IsNormalMark(picture)) << mark.path << " width " << mark.width;
    }
    const std::string all = DrawPdf([](auto& generator) {
        for (const HostileMark& mark : MakeHostileMarks()) {
            DrawHostileMark(generator, mark);
        }
    });
    EXPECT_EQ(Count(Ask("qpdf", "--check {}", all), "No syntax or stream encoding errors found"), 1);
    const std::string text = Uncompress(all);
    EXPECT_EQ(Count(text, "nan ") + Count(text, "inf "), 0);
}

TEST(ZAMPrintCairoGuard, FillsThatReachFarAreRightOnThePage) {
    const struct {
        std::string path;
        bool isFilled; ///< at the centre of the page
    } rows[] = {
        {"M 40 -1e30 L 60 -1e30 L 60 1e30 L 40 1e30 Z", true},
        {"M -1e300 -1e300 L 1e300 -1e300 L 1e300 1e300 L -1e300 1e300 Z", true},
        {"M -1e9 -1e9 L 1e9 -1e9 L -1e9 1e9", false},
        {"M -1e9 -1e9 L 1e9 -1e9 L -0.9e9 1e9", true},
        {"M -1e9 -1e9 L 1e9 -1e9 L 0.9e9 1e9", true},
        {"M 60 -3e6 L 3e6 -3e6 L 3e6 3e6 L 60 3e6 Z", false},
        {"M 49 -3e6 L 3e6 50 L 49 3e6", true},
        // Twice around, against each other.
        {"M -2e6 -2e6 L 2e6 -2e6 L 2e6 2e6 L -2e6 2e6 Z M -3e6 -3e6 L -3e6 3e6 L 3e6 3e6 L 3e6 -3e6 Z", false},
        // Around the page and not around it.
        {"M 50 1e7 C 1.4e7 1e7 1.4e7 -1e7 50 -1e7 C -1.4e7 -1e7 -1.4e7 1e7 50 1e7 Z", true},
        {"M 60 1e7 C 1.4e7 1e7 1.4e7 -1e7 60 -1e7 Z", false},
        {"M 40 1e7 C 1.4e7 1e7 1.4e7 -1e7 40 -1e7 Z", true},
        {"M 0 3e6 C 1e20 2e6 1e20 -2e6 0 -3e6 Z", true},
        // A segment that is no place is left out: what stays is closed.
        {"M 10 10 L 90 10 L nan 50 L 90 95 L 10 90 Z", false},
        {"M 10 10 L 90 10 L 90 90 L 10 90 L inf 5 L 10 20 Z", true},
    };
    for (const auto& row : rows) {
        const Picture picture(
            DrawPng([&](auto& generator) { generator.DrawPath(MakePath(row.path), {}, &kRed, nullptr); }));
        EXPECT_TRUE(picture.At(50, 50).IsNear(row.isFilled ? 0xFF0000FF : 0)) << row.path << picture.At(50, 50);
    }
    // Shrunk, every point is near: random contours must have the same winding at the centre as in full size.
    std::mt19937 random(1);
    std::uniform_real_distribution<double> coordinate(-1.0, 1.0);
    const ZAMPrintFill evenOdd{{255, 0, 0, 255}, ZAMPrtFillRule::EvenOdd};
    for (int i = 0; i < 200; ++i) {
        ZAMPrintPath path;
        const auto point = [&] { return ZAMMathPoint2D{coordinate(random), coordinate(random)}; };
        path.MoveTo(point());
        for (int j = 0; j < 6; ++j) {
            const auto control = point();
            i % 2 == 0 ? path.LineTo(point()) : path.CubicTo(control, point(), point());
        }
        const auto drawAt = [&](double scale) {
            return Picture(DrawPng([&](auto& generator) {
                generator.DrawPath(path, {scale, 0.0, 0.0, scale, 50.5, 50.5}, &evenOdd, nullptr);
            }));
        };
        const Pixel expected = drawAt(1e6 - 100.0).At(50, 50);
        EXPECT_EQ(drawAt(1e9).At(50, 50).rgba, expected.rgba) << i;
    }
}

TEST(ZAMPrintCairoGuard, StrokesThatReachFarAreRightOnThePage) {
    const struct {
        std::string path;
        double width;
        Dashes dashes;
        std::vector<std::pair<int, int>> black;
        std::vector<std::pair<int, int>> blank;
    } rows[] = {
        {"M -1e30 50 L 1e30 50", 10.0, {}, {{0, 50}, {99, 50}}, {{50, 40}}},
        {"M 50 50 L 1e30 50", 10.0, {}, {{55, 50}, {99, 50}}, {{45, 50}}},
        {"M 1e30 50 L 50 50", 10.0, {}, {{55, 50}, {99, 50}}, {{45, 50}}},
        // The contour keeps its corner where it starts.
        {"M 20 20 L 1e7 20 L 1e7 1e7 L 20 1e7 Z", 20.0, {}, {{11, 11}, {50, 20}, {20, 50}}, {{50, 50}, {5, 5}}},
        {"M 20 20 L 80 20 L 80 80 L 20 80 Z M 0 0 L -1e7 0", 20.0, {}, {{11, 11}, {89, 11}, {11, 89}}, {{50, 50}}},
        {"M 50 -1e7 C 50 -1e6 50 1e6 50 1e7", 10.0, {}, {{50, 0}, {50, 99}}, {{40, 50}}},
        {"M 50 50 L nan 0 L 10 80 L 90 80", 10.0, {}, {{50, 80}}, {{50, 50}, {30, 65}}},
        // The pen reaches the page from far away.
        {"M -3e5 -1e7 L -3e5 1e7", 8e5, {}, {{0, 0}, {99, 99}}, {}},
        {"M 0 0 L 1e8 1", 1e300, {}, {{0, 0}, {99, 99}}, {}},
    };
    for (const auto& row : rows) {
        ZAMPrintPen pen = MakePen(row.width);
        pen.dashes = row.dashes;
        const Picture picture(
            DrawPng([&](auto& generator) { generator.DrawPath(MakePath(row.path), {}, nullptr, &pen); }));
        for (const auto& [x, y] : row.black) {
            EXPECT_TRUE(picture.At(x, y).IsNear(0x000000FF)) << row.path << " at " << x << ", " << y;
        }
        for (const auto& [x, y] : row.blank) {
            EXPECT_TRUE(picture.At(x, y).IsNear(0)) << row.path << " at " << x << ", " << y;
        }
    }
}

TEST(ZAMPrintCairoGuard, DashesKeepTheirPhaseWhenThePathIsCut) {
    // 10 black, 10 blank; the start lies a multiple of 20 before the page, whatever is cut.
    std::string expected;
    for (int i = 0; i < 5; ++i) {
        expected += "##########..........";
    }
    const struct {
        std::string path;
        ZAMMathAffine2D toPage;
    } rows[] = {
        {"M -80 50 L 200 50", {}},
        {"M -4e6 50 L 4e6 50", {}},
        {"M -4e6 50 L 4e6 50 L 4e6 5e6 L -4e6 5e6 Z", {}},
        {"M -80 50 L 0 50 C 30 50 60 50 90 50 L 3e6 50", {}},
        {"M -80 -3e6 L -80 -2999990 L -80 -3e6 L -3e6 -3e6 L -100 -3e6 M -2e6 50 L 100 50", {}},
        // Pen units are half as long as points along the line and twice as long across.
        {"M -4e6 25 L 4e6 25", {1.0, 0.0, 0.0, 2.0, 0.0, 0.0}},
        {"M 0 -1e6 L 0 -2e6 L 0 5e6", {0.0, 1.0, 1.0, 0.0, 0.0, 50.0}},
        {"M 0 -7.5e5 C 0 0 0 0 0 7.5e5 L 0 5e6", {0.0, 1.0, 2.0, 0.0, 0.0, 50.0}},
    };
    for (const auto& row : rows) {
        ZAMPrintPen pen = MakePen(4.0);
        const bool isStretched = row.toPage.c == 2.0;
        const Dashes dashes = isStretched ? Dashes{5.0F, 5.0F} : Dashes{10.0F, 10.0F};
        pen.dashes = dashes;
        const Picture picture(
            DrawPng([&](auto& generator) { generator.DrawPath(MakePath(row.path), row.toPage, nullptr, &pen); }));
        EXPECT_EQ(ReadRow(picture, 50), expected) << row.path;
    }
}

TEST(ZAMPrintCairoGuard, ManyLongLinesLookAsFewDo) {
    // So many that the canvas divides the stroke.
    for (const bool isClosed : {false, true}) {
        ZAMPrintPath zigzag;
        zigzag.MoveTo({20.0, 20.0});
        for (int i = 0; i < 60000; ++i) {
            zigzag.LineTo({80.0, 20.0});
            zigzag.LineTo({80.0, 80.0});
            zigzag.LineTo({80.0, 20.0});
            zigzag.LineTo({20.0, 20.0});
        }
        if (isClosed) {
            // Only the closed start makes a corner there.
            zigzag.LineTo({80.0, 20.0});
            zigzag.LineTo({80.0, 80.0});
            zigzag.LineTo({20.0, 80.0});
            zigzag.ClosePath();
        }
        const ZAMPrintPen pen = MakePen(10.0);
        const Picture picture(DrawPng([&](auto& generator) { generator.DrawPath(zigzag, {}, nullptr, &pen); }));
        for (const auto& [x, y] : {std::pair(50, 17), {82, 50}, {83, 17}, {50, 23}}) {
            EXPECT_TRUE(picture.At(x, y).IsNear(0x000000FF)) << x << ", " << y;
        }
        EXPECT_TRUE(picture.At(50, 50).IsNear(0));
        EXPECT_TRUE(picture.At(50, 13).IsNear(0));
        EXPECT_TRUE(picture.At(17, 17).IsNear(isClosed ? 0x000000FF : 0)) << "the corner where it starts";
    }
}
