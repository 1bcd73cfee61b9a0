// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/visualisation/ZAMTextLayout.h"
#include "tests/framework/print/Scene.h"
#include "tests/support/FontFolders.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Line = ZAMPrintLineAttribute;

ZAMPrtStrokeAttributes Dashed(const std::vector<float>& lengths, Line type = Line::UserPattern) {
    ZAMPrtStrokeAttributes stroke = Stroke(0);
    stroke.SetStrokeType(type);
    stroke.SetStrokeTypePattern(lengths.data(), static_cast<unsigned char>(lengths.size()));
    return stroke;
}

template <class Element, class Container>
void AddPoints(Container& container, const std::vector<ZAMMathPoint2D>& points) {
    auto& element = Add<Element>(container);
    element.SetPoints(points.data(), static_cast<int>(points.size()));
    element.SetStrokeAttributes(Stroke(0));
}

template <class Container> void AddArc(Container& container, const ZAMMathEllipticalArc& arc) {
    auto& element = Add<ZAMPrtEllipticalArcElt>(container);
    element.SetArc(arc);
    element.SetStrokeAttributes(Stroke(0));
}

ZAMRef<ZAMPixelImage> MakePixels(int width, int height) {
    return ZAMNew<ZAMPixelImage>(
        width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)));
}

void AddSquare(ZAMPrtImageElt& image, int style, const ZAMPrtStrokeAttributes& stroke,
               const ZAMPrtFillAttributes& fill) {
    auto& square = Add<ZAMPrtRectangleElt>(image);
    square.SetCorners({0, 0}, {10, 10});
    square.SetDrawStyle(static_cast<ZAMPrtDrawStyle>(style));
    square.SetStrokeAttributes(stroke);
    square.SetFillAttributes(fill);
}

ZAMPrtGroupElt& AddOutline(ZAMPrtImageElt& image) {
    auto& group = Add<ZAMPrtGroupElt>(image);
    group.SetContinuousOutline(true);
    return group;
}

} // namespace

TEST(ModelRenderTest, PaintIsResolved) {
    const std::string square = "M0,100 L10,100 L10,90 L0,90 Z ";
    const std::string pen = "pen 0/0/0/255 1 10 13";
    const std::string fill = "fill 255/0/0/255 ";
    ZAMPrtStrokeAttributes unseen = Stroke(0);
    unseen.SetStrokeColourTransparency(0);
    ZAMPrtStrokeAttributes round = Stroke(1, 2.5);
    round.SetStrokeColourTransparency(128);
    round.SetStrokeCap(Line::CapRound);
    round.SetStrokeJoin(Line::JoinBevel);
    ZAMPrtStrokeAttributes mixedUp = Stroke(0);
    mixedUp.SetStrokeCap(Line::JoinRound);
    mixedUp.SetStrokeJoin(Line::CapRound);
    const struct {
        int style;
        ZAMPrtStrokeAttributes stroke;
        ZAMPrtFillAttributes fill;
        std::string marks;
    } rows[] = {
        {0, Stroke(0), Fill(1), ""},
        {1, Stroke(0), Fill(1), square + pen + "\n"},
        {2, Stroke(0), Fill(1), square + fill + "\n"},
        {3, Stroke(0), Fill(1), square + fill + pen + "\n"},
        {4, Stroke(0), Fill(1), square + pen + "\n"}, // as the default
        {77, Stroke(0), Fill(1), square + pen + "\n"},
        {3, Stroke(2), Fill(1), square + fill + "\n"}, // outside the table
        {3, Stroke(kZAMPrtNoColour), Fill(kZAMPrtNoColour), ""},
        {3, unseen, Fill(1, 0), ""},
        {3, round, Fill(1, 7, 1), square + "fill 255/0/0/7 evenodd pen 255/0/0/128 2.5 12 15\n"},
        {2, Stroke(0), Fill(1, 255, 9), square + fill + "\n"},
        {1, mixedUp, Fill(1), square + pen + "\n"},
        {1, Stroke(0, 0), Fill(1), ""},
        {1, Stroke(0, -1), Fill(1), ""},
        {1, Stroke(0, std::nan("")), Fill(1), ""},
        {1, Stroke(0, std::numeric_limits<double>::infinity()), Fill(1), ""},
        {1, Dashed({1, 2, 3}), Fill(1), square + pen + " 1 2 3\n"},
        {1, Dashed({0, 2}), Fill(1), square + pen + " 0 2\n"},
        {1, Dashed({1, 2}, Line::Solid), Fill(1), square + pen + "\n"},
        {1, Dashed({}), Fill(1), square + pen + "\n"},
        {1, Dashed({0, 0}), Fill(1), square + pen + "\n"},
        {1, Dashed({1, -1}), Fill(1), square + pen + "\n"},
        {1, Dashed({1, std::numeric_limits<float>::infinity()}), Fill(1), square + pen + "\n"},
        {1, Dashed({1, std::nanf("")}), Fill(1), square + pen + "\n"},
    };
    for (const auto& row : rows) {
        Scene scene;
        AddSquare(scene.Image(), row.style, row.stroke, row.fill);
        EXPECT_EQ(scene.Marks(), row.marks) << "row " << &row - rows;
    }
    Scene withoutColours;
    withoutColours.Image().SetColourTable(nullptr);
    AddSquare(withoutColours.Image(), 3, Stroke(0), Fill(0));
    EXPECT_EQ(withoutColours.Marks(), "");
}

TEST(ModelRenderTest, GeometryBecomesPaths) {
    const std::string pen = "pen 0/0/0/255 1 10 13\n";
    ExpectMarks({
        {[](auto& image) {
             AddLine(image, {1, 2}, {3, 4});
         },
         "M1,98 L3,96 " + pen},
        {[](auto& image) {
             AddPoints<ZAMPrtPolylineElt>(image, {{0, 0}, {5, 5}, {0, 0}});
         },
         "M0,100 L5,95 L0,100 " + pen},
        {[](auto& image) {
             AddPoints<ZAMPrtPolygonElt>(image, {{0, 0}, {5, 5}, {9, 0}});
         },
         "M0,100 L5,95 L9,100 Z " + pen},
        {[](auto& image) {
             AddPoints<ZAMPrtPolyQuadraticBezierElt>(image, {{0, 0}, {3, 3}, {6, 0}, {7, 7}});
         },
         "M0,100 C2,98 4,98 6,100 " + pen},
        {[](auto& image) {
             AddPoints<ZAMPrtPolyCubicBezierElt>(image, {{0, 0}, {0, 1}, {2, 3}, {4, 5}});
         },
         "M0,100 C0,99 2,97 4,95 " + pen},
        {[](auto& image) {
             AddArc(image, {{10, 10}, 10, 5, 0, 0, -ZAMPI / 2});
         },
         "M20,90 C20,92.761 15.523,95 10,95 " + pen},
        {[](auto& image) { AddPoints<ZAMPrtPolylineElt>(image, {}); }, ""},
        {[](auto& image) {
             auto& circle = Add<ZAMPrtCircleElt>(image);
             circle.SetRadius(0);
             circle.SetStrokeAttributes(Stroke(0));
         },
         ""},
        {[](auto& image) { // transforms of all that is above, innermost first
             auto& group = Add<ZAMPrtGroupElt>(image);
             ZAMPrtTransformAttributes transform;
             transform.AddTranslation({10, 0});
             group.SetTransformAttributes(transform);
             auto& inner = Add<ZAMPrtGroupElt>(group);
             transform.AddScaleX(2);
             inner.SetTransformAttributes(transform);
             AddLine(inner, {1, 2}, {3, 4});
             AddLine(image, {0, 0}, {1, 1}, Stroke(1, 3));
         },
         "M22,98 L26,96 " + pen + "M0,100 L1,99 pen 255/0/0/255 3 10 13\n"},
    });
}

TEST(ModelRenderTest, FiguresAndOutlinesAreStrungTogether) {
    const std::string pen = "pen 0/0/0/255 1 10 13\n";
    const auto triangle = [](auto& container) {
        AddLine(container, {0, 0}, {9, 0});
        AddPoints<ZAMPrtPolylineElt>(container, {{9, 0}, {5, 5}});
        AddLine(container, {5, 5}, {0, 1e-7}); // near enough
    };
    const auto figureOf = [](auto& image) -> ZAMPrtClosedFigureElt& {
        auto& figure = Add<ZAMPrtClosedFigureElt>(image);
        figure.SetDrawStyle(ZAMPrtDrawStyle::StrokeAndFill);
        figure.SetStrokeAttributes(Stroke(0));
        figure.SetFillAttributes(Fill(1, 255, 1));
        return figure;
    };
    const std::string closed = "M0,100 L9,100 L5,95 L0,100 Z ";
    const std::string paint = "fill 255/0/0/255 evenodd " + pen;
    ExpectMarks({
        {[&](auto& image) { triangle(Add<ZAMPrtClosedFigureRegionElt>(figureOf(image))); }, closed + paint},
        {[&](auto& image) { // regions are contours of one mark; a gap starts another one
             auto& figure = figureOf(image);
             triangle(Add<ZAMPrtClosedFigureRegionElt>(figure));
             auto& second = Add<ZAMPrtClosedFigureRegionElt>(figure);
             AddLine(second, {0, 0}, {1, 0});
             AddLine(second, {1, 0.001}, {2, 2});
         },
         closed + "M0,100 L1,100 M1,99.999 L2,98 " + paint},
        {[&](auto& image) { // nearness is measured by the numbers at hand
             auto& region = Add<ZAMPrtClosedFigureRegionElt>(figureOf(image));
             AddLine(region, {0, 0}, {1e5, 0});
             AddLine(region, {1e5, 0.05}, {2, 2});
         },
         "M0,100 L100000,100 L2,98 " + paint},
        {[&](auto& image) { // what is infinite is near to nothing
             auto& region = Add<ZAMPrtClosedFigureRegionElt>(figureOf(image));
             AddLine(region, {0, 0}, {std::numeric_limits<double>::infinity(), 0});
             AddLine(region, {5, 5}, {9, 9});
         },
         "M0,100 Linf,nan M5,95 L9,91 " + paint},
        {[&](auto& image) { figureOf(image); }, ""},
        // A group's pieces are one path only when it says so and while strokes agree.
        {[&](auto& image) { triangle(AddOutline(image)); }, closed + pen},
        {[&](auto& image) { triangle(Add<ZAMPrtGroupElt>(image)); },
         "M0,100 L9,100 " + pen + "M9,100 L5,95 " + pen + "M5,95 L0,100 " + pen},
        {[&](auto& image) {
             auto& group = AddOutline(image);
             AddLine(group, {0, 0}, {1, 0});
             AddLine(group, {1, 0}, {2, 0});
             AddLine(group, {2, 0}, {3, 0}, Stroke(1));
             AddLine(group, {3, 0}, {4, 0});
         },
         "M0,100 L1,100 L2,100 " + pen + "M2,100 L3,100 pen 255/0/0/255 1 10 13\nM3,100 L4,100 " + pen},
        {[&](auto& image) { // a piece with a transform, and what is no piece, stand for themselves
             auto& group = AddOutline(image);
             AddLine(group, {0, 0}, {1, 0});
             auto& moved = Add<ZAMPrtLineElt>(group);
             moved.SetStartPoint({1, 0});
             moved.SetEndPoint({2, 0});
             moved.SetStrokeAttributes(Stroke(0));
             ZAMPrtTransformAttributes transform;
             transform.AddTranslation({0, 10});
             moved.SetTransformAttributes(transform);
             AddPoints<ZAMPrtPolygonElt>(group, {{7, 7}, {8, 8}});
             AddLine(group, {1, 0}, {2, 0});
             AddArc(group, {{2, 1}, 1, 1, 0, -ZAMPI / 2, ZAMPI / 2});
         },
         "M0,100 L1,100 " + pen + "M1,90 L2,90 " + pen + "M7,93 L8,92 Z " + pen +
             "M1,100 L2,100 C2.552,100 3,99.552 3,99 " + pen},
    });
}

TEST(ModelRenderTest, TextIsDrawnWithItsLayoutWhereItStands) {
    const auto number = [](double value) {
        std::ostringstream text;
        text << std::round(value * 1e3) / 1e3 + 0.0;
        return text.str();
    };
    const ZAMMathBox2D box = ZAMTextLayout("ab", {.height = 8, .anchor = 38}).GetExtents();
    ASSERT_LT(box.xMin, -5); // all of it is left of the anchor, half of it below
    const std::string drawn = "\"ab\" at 25,60 in " + number(25 + 2 * box.xMin) + "," + number(60 - 2 * box.yMin) +
                              " " + number(25 + 2 * box.xMax) + "," + number(60 - 2 * box.yMax) + " ";
    const struct {
        const char* text;
        double height;
        int style;
        unsigned char transparency;
        std::string marks;
    } rows[] = {
        {"ab", 8, 2, 7, drawn + "fill 255/0/0/7 \n"},
        {"ab", 8, 1, 7, drawn + "pen 0/0/0/255 1 10 13\n"},
        {"ab", 8, 3, 7, drawn + "fill 255/0/0/7 pen 0/0/0/255 1 10 13\n"},
        {"ab", 8, 0, 7, ""},
        {"ab", 8, 2, 0, ""},
        {"", 8, 3, 7, ""},
        {"ab", 0, 3, 7, ""},
        {"ab", std::nan(""), 3, 7, ""},
    };
    for (const auto& row : rows) {
        Scene scene;
        auto& group = Add<ZAMPrtGroupElt>(scene.Image());
        ZAMPrtTransformAttributes transform;
        transform.AddTranslation({5, 0});
        group.SetTransformAttributes(transform);
        auto& text = Add<ZAMPrtTextElt>(group);
        ZAMPrtTransformAttributes twice;
        twice.AddScaleX(2);
        twice.AddScaleY(2);
        text.SetTransformAttributes(twice);
        text.SetPosition({10, 20});
        text.SetText(row.text);
        text.SetDrawStyle(static_cast<ZAMPrtDrawStyle>(row.style));
        text.SetStrokeAttributes(Stroke(0));
        text.SetFillAttributes(Fill(1, row.transparency));
        ZAMPrtTextAttributes attributes;
        attributes.SetHeight(row.height);
        attributes.SetAnchor(static_cast<ZAMPrintTextAttribute>(38));
        text.SetTextAttributes(attributes);
        EXPECT_EQ(scene.Marks(), row.marks) << "row " << &row - rows;
    }
}

TEST(ModelRenderTest, BitmapsAndSymbolsAreDrawnWhereTheyStand) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const auto addBitmap = [](auto& container, double width, double height, double direction = 0) {
        auto& bitmap = Add<ZAMPrtBitmapImageElt>(container);
        bitmap.SetOrigin({10, 20});
        bitmap.SetSize(width, height);
        bitmap.SetDirection(static_cast<float>(direction));
        bitmap.SetPixelImage(MakePixels(3, 2).Get());
    };
    const auto addSymbol = [&](auto& container, double width, double height) -> ZAMPrtSymbolElt& {
        auto& symbol = Add<ZAMPrtSymbolElt>(container);
        symbol.SetOrigin({5, 6});
        symbol.SetSize(width, height);
        ZAMPrtTransformAttributes transform;
        transform.AddTranslation({50, 0});
        symbol.SetTransformAttributes(transform);
        addBitmap(symbol, 4, 8);
        return symbol;
    };
    ExpectMarks({
        {[&](auto& image) { addBitmap(image, 4, 8); }, "image 3 x 2 10,80 14,80 10,72\n"},
        {[&](auto& image) { addBitmap(image, 4, 8, ZAMPI / 2); }, "image 3 x 2 10,80 10,76 2,80\n"},
        {[&](auto& image) {
             addBitmap(image, 0, 8);
             addBitmap(image, 4, -8);
             addBitmap(image, kNone, 8);
             Add<ZAMPrtBitmapImageElt>(image).SetSize(4, 8);
         },
         ""},
        {[&](auto& image) { addSymbol(image, 30, 40); }, "clip 50,100 80,60\nimage 3 x 2 55,86 59,86 55,78\nunclip\n"},
        {[&](auto& image) { addSymbol(image, 30, 0); }, "image 3 x 2 60,80 64,80 60,72\n"},
        {[&](auto& image) { addBitmap(Add<ZAMPrtPatternElt>(image), 4, 8); }, ""},
        {[&](auto& image) {
             auto& symbol = addSymbol(image, 30, 40);
             addSymbol(symbol, 3, 4);
             AddLine(symbol, {5, 6}, {6, 7});
         },
         "clip 50,100 80,60\nimage 3 x 2 55,86 59,86 55,78\n"
         "clip 95,106 98,102\nimage 3 x 2 100,92 104,92 100,84\nunclip\n"
         "M50,100 L51,99 pen 0/0/0/255 1 10 13\nunclip\n"},
    });
}

TEST(ModelRenderTest, PatternsFillInThePathsUnits) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::string square = "M0,100 L10,100 L10,90 L0,90 Z ";
    const std::string plain = square + "fill 255/0/0/7 \n";
    const std::string tiled = square + "fill 0/0/0/7 tile 4,8 by 5,9 at 1,2 \n";
    const auto pixels = MakePixels(3, 2);
    const struct {
        ZAMPixelImage* image;
        ZAMMathVector2D size;
        ZAMMathVector2D step;
        ZAMMathPoint2D point;
        ZAMPrtFillStyle style;
        unsigned int colour;
        std::string marks;
    } rows[] = {
        {pixels.Get(), {4, 8}, {5, 9}, {1, 2}, ZAMPrtFillStyle::Pattern, 1, tiled},
        {pixels.Get(), {4, 8}, {5, 9}, {1, 2}, ZAMPrtFillStyle::Pattern, kZAMPrtNoColour, tiled},
        {pixels.Get(), {4, 8}, {5, 9}, {1, 2}, ZAMPrtFillStyle::Solid, 1, plain},
        {nullptr, {4, 8}, {5, 9}, {1, 2}, ZAMPrtFillStyle::Pattern, 1, plain},
        {nullptr, {4, 8}, {5, 9}, {1, 2}, ZAMPrtFillStyle::Pattern, kZAMPrtNoColour, ""},
        {pixels.Get(), {0, 8}, {5, 9}, {1, 2}, ZAMPrtFillStyle::Pattern, 1, plain},
        {pixels.Get(), {4, kInfinity}, {5, 9}, {1, 2}, ZAMPrtFillStyle::Pattern, 1, plain},
        {pixels.Get(), {4, 8}, {5, -9}, {1, 2}, ZAMPrtFillStyle::Pattern, 1, plain},
        {pixels.Get(), {4, 8}, {5, 9}, {kInfinity, 2}, ZAMPrtFillStyle::Pattern, 1, plain},
    };
    for (const auto& row : rows) {
        Scene scene;
        ZAMPrtFillAttributes fill = Fill(row.colour, 7);
        fill.SetPattern(row.image, row.size, row.step);
        fill.SetPatternRefPoint(row.point);
        fill.SetFillStyle(row.style);
        AddSquare(scene.Image(), 2, Stroke(0), fill);
        fill.SetFillColourTransparency(0);
        if (row.style == ZAMPrtFillStyle::Pattern) {
            AddSquare(scene.Image(), 2, Stroke(0), fill);
        }
        EXPECT_EQ(scene.Marks(), row.marks) << "row " << &row - rows;
    }
    // A layout starts at the text's position, its pattern where the text's coordinates do.
    Scene scene;
    auto& text = Add<ZAMPrtTextElt>(scene.Image());
    text.SetText("ab");
    text.SetPosition({10, 20});
    ZAMPrtTextAttributes attributes;
    attributes.SetHeight(8);
    text.SetTextAttributes(attributes);
    ZAMPrtFillAttributes fill = Fill(1);
    fill.SetPattern(pixels.Get(), {4, 8}, {5, 9});
    fill.SetPatternRefPoint({1, 2});
    fill.SetFillStyle(ZAMPrtFillStyle::Pattern);
    text.SetFillAttributes(fill);
    text.SetDrawStyle(ZAMPrtDrawStyle::Fill);
    const std::string marks = scene.Marks();
    EXPECT_NE(marks.find("tile 4,8 by 5,9 at -9,-18"), std::string::npos) << marks;
}

TEST(ModelRenderTest, PagesAndFailures) {
    const auto model = ZAMNew<ZAMPrtModel>();
    const ZAMPrintParameters parameters;
    RecordingGenerator generator;
    EXPECT_EQ(ZAMPrintModelRender(nullptr, &generator, parameters).Draw(), -1);
    EXPECT_EQ(ZAMPrintModelRender(model.Get(), nullptr, parameters).Draw(), -1);
    EXPECT_EQ(ZAMPrintModelRender(model.Get(), &generator, parameters).Draw(), 1);
    EXPECT_EQ(generator.Take(), "");

    for (const double size : {100.0, 1e6}) {
        const auto image = ZAMNew<ZAMPrtImageElt>();
        image->SetSize(size, size / 2);
        model->AddImage(image.Get());
    }
    generator.largestSide = 800;
    EXPECT_EQ(ZAMPrintModelRender(model.Get(), &generator, parameters).Draw(), 1);
    EXPECT_EQ(generator.Take(), "document\npage 80 x 40\nclip 0,40 80,0\nunclip\nend page\n"
                                "page 800 x 400\nclip 0,400 800,0\nunclip\nend page\nend document\n");
    EXPECT_EQ(generator.calls, 6);

    // Whichever call fails is the last one of its kind.
    for (const int failure : {-1, 0}) {
        for (int call = 1; call <= 6; ++call) {
            RecordingGenerator failing;
            failing.failingCall = call;
            failing.failure = failure;
            EXPECT_EQ(ZAMPrintModelRender(model.Get(), &failing, parameters).Draw(), -1);
            EXPECT_EQ(failing.calls, call);
        }
    }
    Scene scene;
    AddLine(scene.Image(), {0, 0}, {1, 1});
    generator.throwsAtMarks = true;
    EXPECT_EQ(scene.Draw(generator), -1);
}
