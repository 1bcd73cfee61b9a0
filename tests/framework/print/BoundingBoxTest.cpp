// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"
#include "framework/visualisation/ZAMTextLayout.h"
#include "tests/support/FontFolders.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace {

using Points = std::vector<ZAMMathPoint2D>;
using Element = ZAMRef<ZAMPrtGraphicPrimitiveElt>;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

template <class T> ZAMRef<T> WithPoints(const Points& points) {
    auto element = ZAMNew<T>();
    element->SetPoints(points.data(), static_cast<int>(points.size()));
    return element;
}

Element Circle(const ZAMMathPoint2D& center, double radius) {
    auto circle = ZAMNew<ZAMPrtCircleElt>();
    circle->SetCenter(center);
    circle->SetRadius(radius);
    return circle;
}

Element Arc(const ZAMMathEllipticalArc& arc) {
    auto element = ZAMNew<ZAMPrtEllipticalArcElt>();
    element->SetArc(arc);
    return element;
}

Element Text(const char* content, double height = 8) {
    auto text = ZAMNew<ZAMPrtTextElt>();
    text->SetPosition({10, 20});
    text->SetText(content);
    ZAMPrtTextAttributes attributes;
    attributes.SetHeight(height);
    text->SetTextAttributes(attributes);
    return text;
}

Element Bitmap(const ZAMMathPoint2D& origin, double width, double height, double direction = 0) {
    auto bitmap = ZAMNew<ZAMPrtBitmapImageElt>();
    bitmap->SetOrigin(origin);
    bitmap->SetSize(width, height);
    bitmap->SetDirection(static_cast<float>(direction));
    return bitmap;
}

template <class Container> ZAMRef<Container> Holding(const std::vector<Element>& children) {
    auto container = ZAMNew<Container>();
    for (const Element& child : children) {
        container->AddChild(child.Get());
    }
    return container;
}

Element Moved(Element element, const std::function<void(ZAMPrtTransformAttributes&)>& add) {
    ZAMPrtTransformAttributes transform;
    add(transform);
    element->SetTransformAttributes(transform);
    return element;
}

Element Group(const std::vector<Element>& children) {
    return Holding<ZAMPrtGroupElt>(children);
}

template <class Container>
Element Framed(const ZAMMathPoint2D& origin, const ZAMMathVector2D& size, const std::vector<Element>& children) {
    const auto container = Holding<Container>(children);
    container->SetOrigin(origin);
    container->SetSize(size.x, size.y);
    return container;
}

void Shift(ZAMPrtTransformAttributes& transform) {
    transform.AddTranslation({100, 0});
}

} // namespace

TEST(BoundingBoxTest, Rows) {
    const auto line = ZAMNew<ZAMPrtLineElt>();
    line->SetStartPoint({5, 6});
    line->SetEndPoint({1, 9});
    const auto rectangle = ZAMNew<ZAMPrtRectangleElt>();
    rectangle->SetCorners({4, 1}, {-2, 3});
    rectangle->SetDrawStyle(ZAMPrtDrawStyle::None);
    const double diagonal = 5 * std::sqrt(2.0);
    const ZAMMathBox2D ab = ZAMTextLayout("ab", {.height = 8}).GetExtents();
    ASSERT_FALSE(ab.IsEmpty());
    const struct {
        Element element;
        ZAMMathBox2D box;
    } rows[] = {
        {line, {1, 6, 5, 9}},
        {rectangle, {-2, 1, 4, 3}},
        {Circle({1, 2}, 5), {-4, -3, 6, 7}},
        {WithPoints<ZAMPrtPolygonElt>({{0, 0}, {4, 5}, {-1, 2}}), {-1, 0, 4, 5}},
        {WithPoints<ZAMPrtPolylineElt>({{1, 1}, {kNaN, 50}, {2, kInfinity}, {3, 0}}), {1, 0, 3, 1}},
        {WithPoints<ZAMPrtPolyQuadraticBezierElt>({{0, 0}, {5, 10}, {10, 0}, {20, 0}, {20, 20}}), {0, 0, 20, 20}},
        {WithPoints<ZAMPrtPolyQuadraticBezierElt>({{0, 0}, {5, 10}, {10, 0}, {99, 99}}), {0, 0, 10, 5}},
        {WithPoints<ZAMPrtPolyCubicBezierElt>({{0, 0}, {0, 4}, {9, 4}, {9, 0}, {99, 99}, {99, 99}}), {0, 0, 9, 3}},
        {WithPoints<ZAMPrtPolyCubicBezierElt>({{0, 0}, {0, 4e200}, {9, 4e200}, {9, 0}}), {0, 0, 9, 3e200}},
        {WithPoints<ZAMPrtPolyCubicBezierElt>({{0, 0}, {kNaN, 4}, {9, 4}, {9, 1}}), {0, 0, 9, 1}},
        {Arc({{0, 0}, 5, 5, 0, 0, ZAMPI / 2}), {0, 0, 5, 5}},
        {Arc({{0, 0}, 5, 5, ZAMPI / 4, 0, ZAMPI / 2}), {-diagonal / 2, diagonal / 2, diagonal / 2, 5}},
        // An element's own transform does not count, those below it do.
        {Moved(Circle({0, 0}, 1), Shift), {-1, -1, 1, 1}},
        {Group({Moved(Circle({0, 0}, 1), Shift)}), {99, -1, 101, 1}},
        {Moved(
             Group({Moved(Group({Moved(Circle({0, 0}, 1), Shift)}), [](auto& t) { t.AddScaleX(2), t.AddScaleY(3); })}),
             Shift),
         {198, -3, 202, 3}},
        {Group({Moved(WithPoints<ZAMPrtPolyQuadraticBezierElt>({{0, 0}, {5, 10}, {10, 0}}),
                      [](auto& t) { t.AddRotation(static_cast<float>(ZAMPI / 2)); })}),
         {-5, 0, 0, 10}},
        {Group({Circle({kNaN, 0}, 1), Circle({0, 0}, kInfinity), Circle({0, 0}, kNaN), Circle({3, 3}, 1)}),
         {2, 2, 4, 4}},
        {Moved(Text("ab"), Shift), {10 + ab.xMin, 20 + ab.yMin, 10 + ab.xMax, 20 + ab.yMax}},
        {Group({Moved(Text("ab"),
                      [](auto& t) {
                          t.AddTranslation({1, 2});
                          t.AddRotation(static_cast<float>(ZAMPI / 2));
                      })}),
         {1 - 20 - ab.yMax, 2 + 10 + ab.xMin, 1 - 20 - ab.yMin, 2 + 10 + ab.xMax}},
        {Group({Text(""), Text("ab", kNaN), Text("ab", 0), Circle({3, 3}, 1)}), {2, 2, 4, 4}},
        // A bitmap needs no pixels.
        {Bitmap({1, 2}, 10, 20), {1, 2, 11, 22}},
        {Group({Moved(Bitmap({1, 2}, 10, 20, ZAMPI / 2), Shift)}), {81, 2, 101, 12}},
        {Group({Bitmap({kNaN, 2}, 10, 20), Bitmap({0, 0}, 10, kInfinity), Circle({3, 3}, 1)}), {2, 2, 4, 4}},
        // A symbol with a size is that, whatever it holds and wherever that is.
        {Moved(Framed<ZAMPrtSymbolElt>({5, 5}, {30, 40}, {Circle({0, 0}, 99)}), Shift), {0, 0, 30, 40}},
        {Group({Moved(Framed<ZAMPrtSymbolElt>({5, 5}, {30, 40}, {}), Shift)}), {100, 0, 130, 40}},
        {Framed<ZAMPrtSymbolElt>({5, 5}, {30, 0}, {Moved(Circle({0, 0}, 1), Shift)}), {99, -1, 101, 1}},
        // A pattern is measured only itself.
        {Framed<ZAMPrtPatternElt>({5, 5}, {30, 40}, {Circle({0, 0}, 2)}), {-2, -2, 2, 2}},
        {Group({Framed<ZAMPrtPatternElt>({}, {1, 1}, {Circle({0, 0}, 9)}), Circle({3, 3}, 1)}), {2, 2, 4, 4}},
        // Within a figure only the geometry of the pieces counts.
        {Group({Holding<ZAMPrtClosedFigureElt>(
             {Moved(Holding<ZAMPrtClosedFigureRegionElt>({Moved(line, Shift), Circle({50, 50}, 9)}), Shift)})}),
         {1, 6, 5, 9}},
    };
    for (const auto& row : rows) {
        ZAMMathBox2D box;
        EXPECT_EQ(ZAMPrintModelBoundingBoxComputer::Compute(row.element.Get(), box.xMin, box.xMax, box.yMin, box.yMax),
                  1);
        const double near = 2e-6 + std::abs(row.box.yMax) * 1e-12;
        EXPECT_NEAR(box.xMin, row.box.xMin, near) << &row - rows;
        EXPECT_NEAR(box.yMin, row.box.yMin, near) << &row - rows;
        EXPECT_NEAR(box.xMax, row.box.xMax, near) << &row - rows;
        EXPECT_NEAR(box.yMax, row.box.yMax, near) << &row - rows;
    }
}

TEST(BoundingBoxTest, NothingDrawnLeavesTheValues) {
    const Element rows[] = {Element(),
                            Group({}),
                            Circle({0, 0}, 0),
                            Text(""),
                            Circle({0, 0}, -1),
                            Arc({{0, 0}, 1, kNaN, 0, 0, 1}),
                            WithPoints<ZAMPrtPolylineElt>({}),
                            WithPoints<ZAMPrtPolygonElt>({{kNaN, 0}, {0, kInfinity}}),
                            Group({Moved(Circle({0, 0}, 1), [](auto& t) { t.AddScaleX(kNaN); })}),
                            Bitmap({kNaN, 0}, 1, 1),
                            Framed<ZAMPrtSymbolElt>({}, {kNaN, 1}, {}),
                            Group({Framed<ZAMPrtPatternElt>({}, {1, 1}, {Circle({0, 0}, 9)})}),
                            Holding<ZAMPrtClosedFigureElt>({Holding<ZAMPrtClosedFigureRegionElt>({})})};
    for (const Element& row : rows) {
        double values[] = {1, 2, 3, 4};
        EXPECT_EQ(ZAMPrintModelBoundingBoxComputer::Compute(row.Get(), values[0], values[1], values[2], values[3]), 0);
        EXPECT_EQ(values[0] * 1000 + values[1] * 100 + values[2] * 10 + values[3], 1234);
    }
}

TEST(BoundingBoxTest, CurvesUnderRandomMapsFitTheirSamples) {
    std::mt19937 random(3);
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution(low, high)(random);
    };
    for (int i = 0; i < 300; ++i) {
        const bool cubic = i % 2 == 0;
        Points p(cubic ? 4 : 3);
        for (ZAMMathPoint2D& point : p) {
            point = {between(-10, 10), between(-10, 10)};
        }
        const Element curve = cubic ? Element(WithPoints<ZAMPrtPolyCubicBezierElt>(p))
                                    : Element(WithPoints<ZAMPrtPolyQuadraticBezierElt>(p));
        const auto add = [&between](auto& transform) {
            transform.AddTranslation({between(-9, 9), between(-9, 9)});
            transform.AddMatrix({between(-2, 2), between(-2, 2), between(-2, 2), between(-2, 2)});
        };
        const Element inner = Group({Moved(curve, add)});
        const Element top = Group({Moved(inner, add)});
        const ZAMMathAffine2D map =
            inner->GetTransformAttributes().GetMatrix() * curve->GetTransformAttributes().GetMatrix();
        ZAMMathBox2D sampled;
        for (int n = 0; n <= 2000; ++n) {
            const double t = n / 2000.0;
            Points q = p;
            for (std::size_t left = q.size() - 1; left > 0; --left) {
                for (std::size_t k = 0; k < left; ++k) {
                    q[k] = {q[k].x + t * (q[k + 1].x - q[k].x), q[k].y + t * (q[k + 1].y - q[k].y)};
                }
            }
            sampled.Add(map.Apply(q[0]));
        }
        const ZAMMathBox2D box = ZAMPrintModelBoundingBoxComputer::BoxOf(*top, {});
        EXPECT_NEAR(box.xMin, sampled.xMin, 1e-4);
        EXPECT_NEAR(box.yMin, sampled.yMin, 1e-4);
        EXPECT_NEAR(box.xMax, sampled.xMax, 1e-4);
        EXPECT_NEAR(box.yMax, sampled.yMax, 1e-4);
    }
}
