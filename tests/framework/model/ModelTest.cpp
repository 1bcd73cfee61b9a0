// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtModelJson.h"
#include "framework/model/ZAMPrtTypeList.h"
#include "framework/visualisation/ZAMFont.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <random>
#include <span>
#include <sstream>
#include <thread>
#include <vector>

namespace {

using Group = ZAMRef<ZAMPrtGroupElt>;

Group MakeChain(int height) {
    Group top = ZAMNew<ZAMPrtGroupElt>();
    for (int i = 1; i < height; ++i) {
        const Group parent = ZAMNew<ZAMPrtGroupElt>();
        parent->AddChild(top.Get());
        top = parent;
    }
    return top;
}

} // namespace

TEST(AttributesTest, Defaults) {
    const ZAMPrtStrokeAttributes stroke;
    EXPECT_EQ(stroke.GetStrokeColourIndex(), kZAMPrtNoColour);
    EXPECT_EQ(stroke.GetStrokeColourTransparency(), 255);
    EXPECT_EQ(stroke.GetStrokeType(), ZAMPrintLineAttribute::Solid);
    EXPECT_EQ(stroke.GetStrokeWidth(), 1.0);
    EXPECT_EQ(stroke.GetStrokeStyle(), 0);
    EXPECT_EQ(stroke.GetStrokeCap(), ZAMPrintLineAttribute::CapButt);
    EXPECT_EQ(stroke.GetStrokeJoin(), ZAMPrintLineAttribute::JoinMiter);
    EXPECT_TRUE(stroke.GetStrokeTypePattern().empty());
    const ZAMPrtFillAttributes fill;
    EXPECT_EQ(fill.GetFillColourIndex(), 0U);
    EXPECT_EQ(fill.GetFillColourTransparency(), 255);
    EXPECT_EQ(fill.GetFillRule(), ZAMPrtFillRule::NonZero);
    EXPECT_EQ(fill.GetFillStyle(), ZAMPrtFillStyle::Solid);
    EXPECT_EQ(ZAMNew<ZAMPrtPolygonElt>()->GetDrawStyle(), ZAMPrtDrawStyle::Stroke);
    EXPECT_FALSE(ZAMPrtGroupAttributes().HasLinkURI());
    EXPECT_EQ(ZAMPrtGroupAttributes().GetLinkURI().GetLinkShow(), ZAMPrtLinkShow::Unset);
}

TEST(AttributesTest, ValuesCompareMemberByMember) {
    using Stroke = ZAMPrtStrokeAttributes;
    const float dashes[] = {1, 2, 3};
    void (*const changes[])(Stroke&, const float*) = {
        [](Stroke& s, const float*) { s.SetStrokeColourIndex(1); },
        [](Stroke& s, const float*) { s.SetStrokeColourTransparency(1); },
        [](Stroke& s, const float*) { s.SetStrokeType(ZAMPrintLineAttribute::UserPattern); },
        [](Stroke& s, const float*) { s.SetStrokeWidth(2); },
        [](Stroke& s, const float*) { s.SetStrokeStyle(1); },
        [](Stroke& s, const float*) { s.SetStrokeCap(ZAMPrintLineAttribute::CapRound); },
        [](Stroke& s, const float*) { s.SetStrokeJoin(ZAMPrintLineAttribute::JoinBevel); },
        [](Stroke& s, const float* list) { s.SetStrokeTypePattern(list, 3); },
    };
    for (const auto change : changes) {
        Stroke left;
        Stroke right;
        change(left, dashes);
        EXPECT_FALSE(left == right);
        change(right, dashes);
        EXPECT_TRUE(left == right);
    }
    Stroke original;
    original.SetStrokeTypePattern(dashes, 3);
    Stroke copy = original;
    copy.SetStrokeTypePattern(dashes, 2);
    EXPECT_EQ(original.GetStrokeTypePattern().size(), 3U); // the copy's change is its own
    copy.SetStrokeTypePattern(dashes, 0);
    EXPECT_TRUE(copy == Stroke());

    ZAMPrtFillAttributes fill;
    fill.SetFillStyle(ZAMPrtFillStyle::Pattern);
    EXPECT_FALSE(fill == ZAMPrtFillAttributes());
    fill.SetFillColourIndex(0); // a colour ends the pattern
    EXPECT_TRUE(fill == ZAMPrtFillAttributes());
}

TEST(AttributesTest, OfText) {
    using Text = ZAMPrtTextAttributes;
    EXPECT_EQ(Text().GetFont(), nullptr);
    EXPECT_EQ(static_cast<int>(Text().GetWeight()), 25);
    EXPECT_EQ(Text().GetHeight(), 16.0);
    EXPECT_EQ(static_cast<int>(Text().GetAnchor()), 29);
    EXPECT_EQ(Text().GetSlant(), 0.0F);
    EXPECT_EQ(Text().GetDirection(), 0.0F);
    EXPECT_EQ(Text().GetExtraSpacing(), 0.0);
    EXPECT_EQ(Text().GetExpansion(), 1.0);
    EXPECT_EQ(static_cast<int>(Text().GetWritingMode()), 0);
    static ZAMFont font(1, {});
    void (*const changes[])(Text&) = {
        [](Text& t) { t.SetFont(&font); },
        [](Text& t) { t.SetWeight(ZAMPrintTextAttribute::WeightBold); },
        [](Text& t) { t.SetHeight(17); },
        [](Text& t) { t.SetAnchor(ZAMPrintTextAttribute::AnchorLast); },
        [](Text& t) { t.SetSlant(1); },
        [](Text& t) { t.SetDirection(1); },
        [](Text& t) { t.SetExtraSpacing(1); },
        [](Text& t) { t.SetExpansion(2); },
        [](Text& t) { t.SetWritingMode(ZAMPrtTextWritingMode::TopToBottom); },
    };
    for (const auto change : changes) {
        Text changed;
        change(changed);
        EXPECT_FALSE(changed == Text());
        EXPECT_TRUE(Text(changed) == changed);
    }
}

TEST(ElementTest, TextDuplicatesWithAllItHolds) {
    const auto text = ZAMNew<ZAMPrtTextElt>();
    EXPECT_EQ(text->GetText(), "");
    EXPECT_EQ(text->GetViewBox(), nullptr);
    EXPECT_EQ(text->GetDrawStyle(), ZAMPrtDrawStyle::Stroke);
    ZAMPrtTextAttributes attributes;
    attributes.SetHeight(3);
    text->SetTextAttributes(attributes);
    attributes.SetHeight(4); // the element has a copy
    text->SetPosition({1, 2});
    text->SetText("text");
    text->SetViewBox(1, 2, 3, 4);
    const auto duplicate = text->Duplicate();
    text->SetText("changed");
    text->SetPosition({});
    text->SetTextAttributes(attributes);
    const auto* const copy = ZAMPrtCast<ZAMPrtTextElt>(duplicate.Get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->GetText(), "text");
    EXPECT_EQ(copy->GetPosition(), (ZAMMathPoint2D{1, 2}));
    EXPECT_EQ(copy->GetTextAttributes().GetHeight(), 3);
    ASSERT_NE(copy->GetViewBox(), nullptr);
    EXPECT_EQ(*copy->GetViewBox(), (ZAMPrtTextElt::ViewBox{1, 2, 3, 4}));
}

TEST(TransformTest, WhatIsAddedLastIsAppliedFirst) {
    const float quarter = static_cast<float>(ZAMPI / 2);
    const float eighth = static_cast<float>(ZAMPI / 4);
    using Transform = ZAMPrtTransformAttributes;
    const struct {
        void (*build)(Transform&, float, float);
        ZAMMathPoint2D image; // of (2, 1)
    } rows[] = {
        {[](Transform&, float, float) {}, {2, 1}},
        {[](Transform& t, float, float) {
             t.AddTranslation({10, 20});
         },
         {12, 21}},
        {[](Transform& t, float, float) {
             t.AddTranslation({10, 20}), t.AddScaleX(3), t.AddScaleY(5);
         },
         {16, 25}},
        {[](Transform& t, float, float) {
             t.AddScaleX(3), t.AddTranslation({10, 20});
         },
         {36, 21}},
        {[](Transform& t, float q, float) { t.AddRotation(q); }, {-1, 2}},
        {[](Transform& t, float q, float) {
             t.AddTranslation({10, 0}), t.AddRotation(q);
         },
         {9, 2}},
        {[](Transform& t, float, float e) { t.AddSkewX(e); }, {3, 1}},
        {[](Transform& t, float, float e) { t.AddSkewY(e); }, {2, 3}},
        {[](Transform& t, float, float) {
             t.AddMatrix({1, 2, 3, 4});
         },
         {4, 10}},
        {[](Transform& t, float, float) {
             t.AddScaleX(2), t.AddMatrix({0, 1, 1, 0});
         },
         {2, 2}},
    };
    for (const auto& row : rows) {
        Transform transform;
        row.build(transform, quarter, eighth);
        const ZAMMathPoint2D image = transform.GetMatrix().Apply(ZAMMathPoint2D{2, 1});
        EXPECT_NEAR(image.x, row.image.x, 1e-6) << &row - rows;
        EXPECT_NEAR(image.y, row.image.y, 1e-6) << &row - rows;
        EXPECT_EQ(transform.IsIdentity(), &row == rows);
    }
}

TEST(ColourTableTest, FindsTheFirstIndexAndAddsAlways) {
    const auto table = ZAMNew<ZAMPrtColourTable>();
    unsigned int index = 99;
    EXPECT_EQ(table->FindColour(index, 1, 2, 3), 0);
    EXPECT_EQ(index, 99U);
    for (const unsigned int expected : {0U, 1U}) {
        EXPECT_EQ(table->AddColour(1, 2, 3, index), 1);
        EXPECT_EQ(index, expected);
    }
    EXPECT_EQ(table->AddColour(3, 2, 1, index), 1);
    EXPECT_EQ(table->FindColour(index, 1, 2, 3), 1);
    EXPECT_EQ(index, 0U);
    EXPECT_EQ(*table->GetColour(2), (ZAMPrtColourTable::Colour{3, 2, 1}));
    EXPECT_EQ(table->GetColour(3), nullptr);
    EXPECT_EQ(table->GetColour(kZAMPrtNoColour), nullptr);
}

TEST(ColourTableTest, ManyColoursAreFoundWhereTheyWereAddedFirst) {
    const auto table = ZAMNew<ZAMPrtColourTable>();
    std::map<std::uint32_t, unsigned int> expected;
    std::mt19937 random(24); // NOLINT: every run adds the same colours
    for (int i = 0; i < 30'000; ++i) {
        const std::uint32_t colour = random() % 3 == 0 ? random() % 64 : random() & 0xFFFFFFU;
        const auto part = [colour](unsigned shift) { return static_cast<unsigned char>(colour >> shift); };
        unsigned int index = 0;
        EXPECT_EQ(table->FindColour(index, part(16), part(8), part(0)), expected.contains(colour) ? 1 : 0);
        EXPECT_EQ(index, expected.contains(colour) ? expected[colour] : 0);
        EXPECT_EQ(table->AddColour(part(16), part(8), part(0), index), 1);
        EXPECT_EQ(index, static_cast<unsigned int>(i));
        expected.try_emplace(colour, index);
    }
}

TEST(ElementTest, ClassesAreToldApartExactly) {
    const auto circle = ZAMNew<ZAMPrtCircleElt>();
    ZAMPrtGraphicPrimitiveElt* const element = circle.Get();
    EXPECT_EQ(ZAMPrtCast<ZAMPrtCircleElt>(element), circle.Get());
    EXPECT_EQ(ZAMPrtCast<ZAMPrtEllipseElt>(element), nullptr);
    EXPECT_EQ(ZAMPrtCast<ZAMPrtGraphicPrimitiveElt>(element), nullptr); // a base class is another class
    EXPECT_EQ(ZAMPrtCast<ZAMPrtCircleElt>(static_cast<ZAMPrtGraphicPrimitiveElt*>(nullptr)), nullptr);
    EXPECT_TRUE(element->IsAKindOf("ZAMPrtGraphicPrimitiveElt"));
    EXPECT_FALSE(element->IsAKindOf("ZAMPrtEllipseElt"));

    const ZAMMetaObject& meta = element->GetMetaObject();
    EXPECT_EQ(meta.className, "ZAMPrtCircleElt");
    EXPECT_EQ(meta.classType, 1);
    EXPECT_EQ(meta.base, &ZAMPrtGraphicPrimitiveElt::MetaObject());
    EXPECT_EQ(meta.interfaceName, "ZAMnull");
    EXPECT_EQ(meta.component, "PrtKernel");
    EXPECT_EQ(meta.size, sizeof(ZAMPrtCircleElt));
    EXPECT_EQ(ZAMPrtCircleElt::CreateItself(), nullptr);

    std::string tried;
    EXPECT_TRUE((ZAMPrtTypeList<ZAMPrtEllipseElt, ZAMPrtCircleElt>::Visit(
        element, [&tried](const auto& typed) { tried += typed.IsA(); })));
    EXPECT_EQ(tried, "ZAMPrtCircleElt");
    EXPECT_FALSE((ZAMPrtTypeList<ZAMPrtLineElt, ZAMPrtEllipseElt>::Holds(element)));
}

TEST(ContainerTest, AddsAndRemovesByReference) {
    const Group group = ZAMNew<ZAMPrtGroupElt>();
    const auto line = ZAMNew<ZAMPrtLineElt>();
    const auto circle = ZAMNew<ZAMPrtCircleElt>();
    for (ZAMPrtGraphicPrimitiveElt* const child :
         {static_cast<ZAMPrtGraphicPrimitiveElt*>(line.Get()), static_cast<ZAMPrtGraphicPrimitiveElt*>(circle.Get()),
          static_cast<ZAMPrtGraphicPrimitiveElt*>(line.Get())}) {
        group->AddChild(child);
    }
    EXPECT_EQ(line->GetReferenceCount(), 3U);
    group->RemoveChild(line.Get());
    ASSERT_EQ(group->GetChildren().size(), 2U);
    EXPECT_EQ(group->GetChildren()[0].Get(), circle.Get()); // the first of the two went
    group->RemoveChild(line.Get());
    group->RemoveChild(line.Get());
    group->RemoveChild(nullptr);
    EXPECT_EQ(line->GetReferenceCount(), 1U);
    EXPECT_EQ(group->GetChildren().size(), 1U);
}

TEST(ContainerTest, NothingCyclicOrTooHighIsTaken) {
    const Group chain = MakeChain(3);
    auto* const middle = ZAMPrtCast<ZAMPrtGroupElt>(chain->GetChildren()[0].Get());
    auto* const bottom = ZAMPrtCast<ZAMPrtGroupElt>(middle->GetChildren()[0].Get());
    for (ZAMPrtGroupElt* const refused : {static_cast<ZAMPrtGroupElt*>(nullptr), bottom, middle, chain.Get()}) {
        bottom->AddChild(refused);
    }
    EXPECT_TRUE(bottom->GetChildren().empty());
    EXPECT_EQ(chain->GetReferenceCount(), 1U);

    const Group highest = MakeChain(256);
    const Group above = ZAMNew<ZAMPrtGroupElt>();
    above->AddChild(highest.Get());
    ASSERT_EQ(above->GetChildren().size(), 1U);
    const Group tooHigh = ZAMNew<ZAMPrtGroupElt>();
    tooHigh->AddChild(above.Get());
    EXPECT_TRUE(tooHigh->GetChildren().empty());
}

// From lists that copies share to few points, which each copy has itself.
TEST(ElementTest, TakesItsOwnPointsAgain) {
    const auto polygon = ZAMNew<ZAMPrtPolygonElt>();
    const std::vector<ZAMMathPoint2D> points = {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10}, {11, 12}, {13, 14}};
    polygon->SetPoints(points.data(), 7);
    for (std::size_t first = 0; first < points.size(); ++first) {
        const auto got = polygon->GetPoints();
        ASSERT_TRUE(std::ranges::equal(got, std::span(points).subspan(first))) << first;
        const auto copy = ZAMNew<ZAMPrtPolygonElt>(*polygon);
        polygon->SetPoints(got.data() + 1, static_cast<int>(got.size()) - 1);
        EXPECT_TRUE(std::ranges::equal(copy->GetPoints(), std::span(points).subspan(first))) << first;
    }
    EXPECT_TRUE(polygon->GetPoints().empty());
}

TEST(ElementTest, ADuplicateSharesNoElement) {
    const Group group = ZAMNew<ZAMPrtGroupElt>();
    const Group inner = ZAMNew<ZAMPrtGroupElt>();
    const auto polygon = ZAMNew<ZAMPrtPolygonElt>();
    const ZAMMathPoint2D points[] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10}};
    polygon->SetPoints(points, 5);
    polygon->SetID("p");
    polygon->SetTitle("title");
    polygon->SetDescription("description");
    ZAMPrtTransformAttributes transform;
    transform.AddTranslation({1, 2});
    polygon->SetTransformAttributes(transform);
    inner->AddChild(polygon.Get());
    group->AddChild(inner.Get());
    group->SetContinuousOutline(true);

    const auto shallow = ZAMNew<ZAMPrtGroupElt>(*group);
    EXPECT_EQ(shallow->GetChildren()[0].Get(), inner.Get());

    const auto deep = group->Duplicate();
    EXPECT_EQ(deep->GetReferenceCount(), 1U);
    EXPECT_EQ(polygon->GetReferenceCount(), 2U);
    const auto& innerCopy = deep->GetChildren()[0];
    const auto& polygonCopy = innerCopy->GetChildren()[0];
    EXPECT_NE(innerCopy.Get(), inner.Get());
    EXPECT_NE(polygonCopy.Get(), polygon.Get());
    EXPECT_TRUE(ZAMPrtCast<ZAMPrtGroupElt>(deep.Get())->IsContinuousOutline());
    const auto* typed = ZAMPrtCast<ZAMPrtPolygonElt>(polygonCopy.Get());
    EXPECT_EQ(typed->GetPoints().data(), polygon->GetPoints().data()); // what never changes is shared
    polygon->SetPoints(points, 0);
    polygon->SetTitle("other");
    EXPECT_EQ(typed->GetPoints().size(), 5U);
    EXPECT_EQ(typed->GetTitle(), "title");
    EXPECT_EQ(typed->GetDescription(), "description");
    EXPECT_EQ(typed->GetID().View(), "p");
    EXPECT_EQ(typed->GetTransformAttributes(), transform);
}

TEST(ElementTest, ThreadsShareAndCopyOneModel) {
    const Group chain = MakeChain(5);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&chain] {
            for (int n = 0; n < 2000; ++n) {
                const Group holder = ZAMNew<ZAMPrtGroupElt>();
                holder->AddChild(chain.Get());
                EXPECT_EQ(holder->Duplicate()->GetChildren().size(), 1U);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(chain->GetReferenceCount(), 1U);
}

TEST(ModelJsonTest, AModelIsWrittenKeyByKey) {
    const auto model = ZAMNew<ZAMPrtModel>();
    const auto image = ZAMNew<ZAMPrtImageElt>();
    const auto table = ZAMNew<ZAMPrtColourTable>();
    unsigned int index = 0;
    table->AddColour(0, 0, 0, index);
    table->AddColour(255, 128, 1, index);
    image->SetColourTable(table.Get());
    image->SetSize(30, std::numeric_limits<double>::infinity());
    image->SetMatrix({1, 2, 3, 4});
    image->SetTitle("a \"title\"");
    model->AddImage(image.Get());
    model->AddImage(nullptr);

    ZAMPrtStrokeAttributes stroke;
    const float dashes[] = {1.5F, 2};
    stroke.SetStrokeTypePattern(dashes, 2);
    stroke.SetStrokeType(ZAMPrintLineAttribute::UserPattern);
    stroke.SetStrokeColourIndex(1);
    const auto line = ZAMNew<ZAMPrtLineElt>();
    line->SetStartPoint({1, 2});
    line->SetEndPoint({3, std::nan("")});
    line->SetStrokeAttributes(stroke);
    line->SetID("l");
    const Group group = ZAMNew<ZAMPrtGroupElt>();
    ZAMPrtTransformAttributes transform;
    transform.AddTranslation({5, 6});
    transform.AddMatrix({1, 2, 3, 4});
    group->SetTransformAttributes(transform);
    ZAMPrintLinkURI link;
    link.SetBaseURL("http://x/");
    ZAMPrtGroupAttributes attributes;
    attributes.SetLinkURI(link);
    group->SetGroupAttributes(attributes);
    group->AddChild(line.Get());
    image->AddChild(group.Get());
    const auto arc = ZAMNew<ZAMPrtEllipticalArcElt>();
    arc->SetArc({{1, 2}, 3, 4, 0.5, -1, 2});
    arc->SetDrawStyle(ZAMPrtDrawStyle::StrokeAndFill);
    image->AddChild(arc.Get());
    image->AddChild(ZAMNew<ZAMPrtPolylineElt>().Get());
    const auto figure = ZAMNew<ZAMPrtClosedFigureElt>();
    figure->AddChild(ZAMNew<ZAMPrtClosedFigureRegionElt>().Get());
    image->AddChild(figure.Get());

    const std::string plainStroke =
        R"("stroke": {"colour": null, "transparency": 255, "type": 0, "width": 1, "style": 0, "cap": 10, "join": 13})";
    const std::string fill = R"("fill": {"colour": 0, "transparency": 255, "rule": 0, "style": 0})";
    const std::string expected =
        R"({"images": [
  {"class": "ZAMPrtImageElt", "title": "a \"title\"", "origin": [0, 0], "size": [30, "inf"], "matrix": [1, 2, 3, 4], "colours": [[0, 0, 0], [255, 128, 1]], "children": [
    {"class": "ZAMPrtGroupElt", "transform": [1, 3, 2, 4, 5, 6], "link": {"elementId": "", "baseURL": "http://x/", "show": 0}, "children": [
      {"class": "ZAMPrtLineElt", "id": "l", "start": [1, 2], "end": [3, "nan"], "stroke": {"colour": 1, "transparency": 255, "type": 7, "width": 1, "style": 0, "cap": 10, "join": 13, "dashes": [1.5, 2]}}
    ]},
    {"class": "ZAMPrtEllipticalArcElt", "center": [1, 2], "xRadius": 3, "yRadius": 4, "rotation": 0.5, "startAngle": -1, "sweepAngle": 2, "drawStyle": 3, )" +
        plainStroke + ", " + fill + R"(},
    {"class": "ZAMPrtPolylineElt", "points": [], )" +
        plainStroke + R"(},
    {"class": "ZAMPrtClosedFigureElt", "drawStyle": 1, )" +
        plainStroke + ", " + fill + R"(, "children": [
      {"class": "ZAMPrtClosedFigureRegionElt", "children": []}
    ]}
  ]}
]}
)";
    std::ostringstream out;
    ZAMPrtWriteModelAsJson(*model, out);
    EXPECT_EQ(out.str(), expected);
}
