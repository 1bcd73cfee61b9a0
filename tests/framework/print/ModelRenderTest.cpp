// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "framework/print/ZAMPrintModelRender.h"
#include "framework/visualisation/ZAMTextLayout.h"
#include "tests/framework/print/RecordingGenerator.h"
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

// A stroke of the colour with the index: 0 black, 1 red.
ZAMPrtStrokeAttributes Stroke(unsigned int colour, double width = 1) {
    ZAMPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(colour);
    stroke.SetStrokeWidth(width);
    return stroke;
}

ZAMPrtStrokeAttributes Dashed(const std::vector<float>& lengths, Line type = Line::UserPattern) {
    ZAMPrtStrokeAttributes stroke = Stroke(0);
    stroke.SetStrokeType(type);
    stroke.SetStrokeTypePattern(lengths.data(), static_cast<unsigned char>(lengths.size()));
    return stroke;
}

ZAMPrtFillAttributes Fill(unsigned int colour, unsigned char transparency = 255, int rule = 0) {
    ZAMPrtFillAttributes fill;
    fill.SetFillColourIndex(colour);
    fill.SetFillColourTransparency(transparency);
    fill.SetFillRule(static_cast<ZAMPrtFillRule>(rule));
    return fill;
}

// A model of one page, 100 points a side, on which (x, y) of the model is (x, 100 - y).
class Scene {
public:
    Scene() {
        unsigned int index = 0;
        _Colours->AddColour(0, 0, 0, index);
        _Colours->AddColour(255, 0, 0, index);
        _Image->SetColourTable(_Colours.Get());
        _Image->SetSize(100, 100);
        _Model->AddImage(_Image.Get());
        _Parameters.scale = 1.25;
    }

    ZAMPrtImageElt& Image() { return *_Image; }
    int Draw(ZAMPrintGenerator& generator) { return ZAMPrintModelRender(_Model.Get(), &generator, _Parameters).Draw(); }

    // What is drawn between clip and unclip, one mark a line.
    std::string Marks() {
        RecordingGenerator generator;
        EXPECT_EQ(Draw(generator), 1);
        const std::string text = generator.Take();
        const std::string head = "document\npage 100 x 100\nclip 0,100 100,0\n";
        const std::string tail = "unclip\nend page\nend document\n";
        EXPECT_TRUE(text.starts_with(head) && text.ends_with(tail)) << text;
        return text.substr(head.size(), text.size() - head.size() - tail.size());
    }

private:
    ZAMRef<ZAMPrtModel> _Model = ZAMNew<ZAMPrtModel>();
    ZAMRef<ZAMPrtImageElt> _Image = ZAMNew<ZAMPrtImageElt>();
    ZAMRef<ZAMPrtColourTable> _Colours = ZAMNew<ZAMPrtColourTable>();
    ZAMPrintParameters _Parameters;
};

template <class Container>
void AddLine(Container& container, const ZAMMathPoint2D& start, const ZAMMathPoint2D& end,
             const ZAMPrtStrokeAttributes& stroke = Stroke(0)) {
    const auto line = ZAMNew<ZAMPrtLineElt>();
    line->SetStartPoint(start);
    line->SetEndPoint(end);
    line->SetStrokeAttributes(stroke);
    container.AddChild(line.Get());
}

template <class Element, class Container> Element& Add(Container& container) {
    const auto element = ZAMNew<Element>();
    container.AddChild(element.Get());
    return *element;
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

ZAMPrtGroupElt& AddLinkGroup(ZAMPrtGroupElt& parent, const char* url) {
    auto& group = Add<ZAMPrtGroupElt>(parent);
    ZAMPrintLinkURI link;
    link.SetBaseURL(url);
    ZAMPrtGroupAttributes attributes;
    attributes.SetLinkURI(link);
    group.SetGroupAttributes(attributes);
    return group;
}

struct Row {
    std::function<void(ZAMPrtImageElt&)> build;
    std::string marks;
};

void ExpectMarks(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        Scene scene;
        row.build(scene.Image());
        EXPECT_EQ(scene.Marks(), row.marks) << "row " << &row - rows.data();
    }
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

TEST(ModelRenderTest, LinksCoverWhatTheyHoldOnThePage) {
    const auto linkTo = [](const char* url, const ZAMMathPoint2D& first, const ZAMMathPoint2D& opposite) {
        return [=](ZAMPrtImageElt& image) {
            auto& rectangle = Add<ZAMPrtRectangleElt>(AddLinkGroup(Add<ZAMPrtGroupElt>(image), url));
            rectangle.SetCorners(first, opposite);
        };
    };
    ExpectMarks({
        {linkTo("http://a/", {10, 20}, {30, 50}), "link http://a/ 10,50 30,80\n"},
        {linkTo("http://a/", {-10, 90}, {30, 150}), "link http://a/ 0,0 30,10\n"},
        {linkTo("http://a/", {-10, 20}, {-5, 30}), ""},
        {linkTo("", {10, 20}, {30, 50}), ""},
        {[](auto& image) { AddLinkGroup(Add<ZAMPrtGroupElt>(image), "http://empty/"); }, ""},
        {[](auto& image) {
             auto& outer = AddLinkGroup(Add<ZAMPrtGroupElt>(image), "http://outer/");
             AddLine(outer, {0, 0}, {50, 50});
             AddLine(AddLinkGroup(outer, "http://inner/"), {10, 10}, {20, 20}, Stroke(9));
         },
         "M0,100 L50,50 pen 0/0/0/255 1 10 13\nlink http://inner/ 10,80 20,90\nlink http://outer/ 0,50 50,100\n"},
    });
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
