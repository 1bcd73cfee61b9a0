// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtCircleElt.h"
#include "framework/print/ZAMPrintPlacement.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

ZAMRef<ZAMPrtImageElt> MakeImage(const ZAMMathPoint2D& origin, const ZAMMathVector2D& size,
                                 const ZAMMath2x2Matrix& matrix = {}) {
    auto image = ZAMNew<ZAMPrtImageElt>();
    image->SetOrigin(origin);
    image->SetSize(size.x, size.y);
    image->SetMatrix(matrix);
    return image;
}

ZAMPrintParameters Paper(double width, double height, ZAMPrintFit fit, double margin = 0, double scale = 1) {
    ZAMPrintParameters parameters;
    parameters.pageWidth = width;
    parameters.pageHeight = height;
    parameters.fit = fit;
    parameters.margin = margin;
    parameters.scale = scale;
    return parameters;
}

} // namespace

TEST(PlacementTest, WhereTheCornersOfAnImageLie) {
    constexpr auto kNone = ZAMPrintFit::None;
    constexpr auto kShrink = ZAMPrintFit::Shrink;
    constexpr auto kPage = ZAMPrintFit::Page;
    const ZAMMath2x2Matrix quarterTurn{0, -1, 1, 0};
    const struct {
        ZAMMathPoint2D origin;
        ZAMMathVector2D size;
        ZAMMath2x2Matrix matrix;
        ZAMPrintParameters parameters;
        double largestSide;
        double width;
        double height;
        ZAMMathPoint2D first; // where the origin comes to lie
        ZAMMathPoint2D last;  // where the opposite corner does
    } rows[] = {
        // A page of the drawing's own size: 0.8 points a unit, y turned.
        {{0, 0}, {100, 50}, {}, {}, kInfinity, 80, 40, {0, 40}, {80, 0}},
        {{-5, 7}, {100, 50}, {}, {}, kInfinity, 80, 40, {0, 40}, {80, 0}},
        {{0, 0}, {100, 50}, {}, Paper(0, 0, kPage, 10, 2), kInfinity, 160, 80, {0, 80}, {160, 0}},
        {{0, 0}, {100, 50}, {}, Paper(0, 0, kPage, 0, -1), kInfinity, 80, 40, {0, 40}, {80, 0}},
        {{0, 0}, {100, 50}, {}, Paper(500, kNaN, kPage), kInfinity, 80, 40, {0, 40}, {80, 0}},
        {{0, 0}, {1000, 10}, {}, {}, 400, 400, 4, {0, 4}, {400, 0}},
        {{0, 0}, {1e300, 10}, {}, {}, 14400, 14400, 0.01, {0, 0.005}, {14400, 0.005}},
        // On paper.
        {{0, 0}, {100, 50}, {}, Paper(200, 100, kPage), kInfinity, 200, 100, {0, 100}, {200, 0}},
        {{0, 0}, {100, 50}, {}, Paper(200, 200, kPage, 10), kInfinity, 200, 200, {10, 145}, {190, 55}},
        {{0, 0}, {100, 50}, {}, Paper(200, 200, kPage, 0, 0.5), kInfinity, 200, 200, {50, 125}, {150, 75}},
        {{3, 4}, {100, 50}, {}, Paper(200, 200, kNone), kInfinity, 200, 200, {60, 120}, {140, 80}},
        {{0, 0}, {100, 50}, {}, Paper(200, 200, kNone, 0, 10), kInfinity, 200, 200, {-300, 300}, {500, -100}},
        {{0, 0}, {100, 50}, {}, Paper(200, 200, kShrink), kInfinity, 200, 200, {60, 120}, {140, 80}},
        {{0, 0}, {1000, 500}, {}, Paper(200, 200, kShrink, 10), kInfinity, 200, 200, {10, 145}, {190, 55}},
        {{0, 0}, {100, 50}, {}, Paper(400, 400, kPage), 100, 100, 100, {0, 75}, {100, 25}},
        {{0, 0}, {100, 50}, {}, Paper(20, 20, kPage, 15), kInfinity, 20, 20, {10, 10}, {10, 10}}, // no room at all
        // The matrix turns the page about the coordinate origin; one that cannot be undone does not count.
        {{0, 0}, {100, 50}, quarterTurn, {}, kInfinity, 40, 80, {40, 80}, {0, 0}},
        {{0, 0}, {100, 50}, {2, 0, 0, 1}, {}, kInfinity, 160, 40, {0, 40}, {160, 0}},
        {{0, 0}, {100, 50}, {0, 0, 0, 1}, {}, kInfinity, 80, 40, {0, 40}, {80, 0}},
        {{0, 0}, {100, 50}, {kInfinity, 0, 0, 1}, {}, kInfinity, 80, 40, {0, 40}, {80, 0}},
    };
    for (const auto& row : rows) {
        const auto image = MakeImage(row.origin, row.size, row.matrix);
        const auto placement = ZAMPrintPlacement::Of(*image, row.parameters, row.largestSide);
        const ZAMMathPoint2D first = placement.toPage.Apply(row.origin);
        const ZAMMathPoint2D last =
            placement.toPage.Apply(ZAMMathPoint2D{row.origin.x + row.size.x, row.origin.y + row.size.y});
        const double actual[] = {placement.pageWidth, placement.pageHeight, first.x, first.y, last.x, last.y};
        const double expected[] = {row.width, row.height, row.first.x, row.first.y, row.last.x, row.last.y};
        for (std::size_t i = 0; i < std::size(actual); ++i) {
            EXPECT_NEAR(actual[i], expected[i], 1e-9) << "row " << &row - rows << ", number " << i;
        }
    }
}

TEST(PlacementTest, SizesThatAreNoneBecomeThoseOfTheContent) {
    const auto circle = ZAMNew<ZAMPrtCircleElt>();
    circle->SetCenter({10, 20});
    circle->SetRadius(5);
    const struct {
        ZAMMathPoint2D origin;
        ZAMMathVector2D size;
    } rows[] = {{{0, 0}, {0, 0}},
                {{0, 0}, {-1, 10}},
                {{0, 0}, {kNaN, 10}},
                {{0, 0}, {10, kInfinity}},
                {{kNaN, 0}, {1, 1}},
                {{1e20, 0}, {1, 1}},
                {{-1.7e308, 0}, {1.7e308, kInfinity}}};
    for (const auto& row : rows) {
        const auto image = MakeImage(row.origin, row.size);
        EXPECT_EQ(ZAMPrintPlacement::Of(*image, {}, kInfinity).area, (ZAMMathBox2D{0, 0, 1, 1}));
        image->AddChild(circle.Get());
        EXPECT_EQ(ZAMPrintPlacement::Of(*image, {}, kInfinity).area, (ZAMMathBox2D{5, 15, 15, 25}));
    }
}

TEST(PlacementTest, APageIsAlwaysFiniteAndPositive) {
    constexpr double kAbsurd[] = {0, -1, 1e-310, 1e-30, 1, 1e20, 1e300, 1.7e308, kInfinity, kNaN};
    for (const double first : kAbsurd) {
        for (const double second : kAbsurd) {
            for (const double third : kAbsurd) {
                for (const double largestSide : {14400.0, kInfinity}) {
                    const auto image = MakeImage({third, 1}, {first, second}, {third, 0, 0, first});
                    for (const auto& parameters : {Paper(0, 0, ZAMPrintFit::Page, 0, third),
                                                   Paper(third, second, ZAMPrintFit::Page, first, third),
                                                   Paper(first, third, ZAMPrintFit::Shrink, second, 1)}) {
                        const auto placement = ZAMPrintPlacement::Of(*image, parameters, largestSide);
                        for (const double side : {placement.pageWidth, placement.pageHeight}) {
                            ASSERT_TRUE(std::isfinite(side) && side > 0 && side <= largestSide)
                                << first << ' ' << second << ' ' << third << ": " << side;
                        }
                    }
                }
            }
        }
    }
}
