// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/mathematics/ZAMMathEllipticalArc.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

void ExpectNear(const ZAMMathPoint2D& point, const ZAMMathPoint2D& expected, double tolerance) {
    EXPECT_NEAR(point.x, expected.x, tolerance);
    EXPECT_NEAR(point.y, expected.y, tolerance);
}

class Dice {
public:
    double Between(double low, double high) { return std::uniform_real_distribution(low, high)(_Random); }
    ZAMMathAffine2D Map() {
        return {Between(-3, 3), Between(-3, 3), Between(-3, 3), Between(-3, 3), Between(-50, 50), Between(-50, 50)};
    }
    ZAMMathEllipticalArc Arc() {
        return {{Between(-9, 9), Between(-9, 9)},
                Between(0, 20),
                Between(0, 20),
                Between(-7, 7),
                Between(-20, 20),
                Between(-7, 7)};
    }

private:
    std::mt19937 _Random{77};
};

} // namespace

TEST(AffineTest, AProductAppliesItsRightSideFirst) {
    Dice dice;
    for (int i = 0; i < 100; ++i) {
        const ZAMMathAffine2D outer = dice.Map();
        const ZAMMathAffine2D inner = dice.Map();
        const ZAMMathPoint2D point{dice.Between(-9, 9), dice.Between(-9, 9)};
        ExpectNear((outer * inner).Apply(point), outer.Apply(inner.Apply(point)), 1e-10);
        const ZAMMathVector2D offset = outer.Apply(ZAMMathVector2D{point.x, point.y});
        ExpectNear({offset.x + outer.e, offset.y + outer.f}, outer.Apply(point), 1e-10);
        EXPECT_EQ(outer * ZAMMathAffine2D(), outer);
    }
    const ZAMMathAffine2D byRows = ZAMMathAffine2D::FromMatrix({1, 2, 3, 4});
    EXPECT_EQ(byRows.Apply(ZAMMathPoint2D{10, 100}), (ZAMMathPoint2D{210, 430}));
    EXPECT_EQ(byRows.Linear(), (ZAMMath2x2Matrix{1, 2, 3, 4}));
}

TEST(MatrixTest, OnlyFiniteRegularMatricesAreInvertible) {
    const struct {
        ZAMMath2x2Matrix matrix;
        bool invertible;
    } rows[] = {{{}, true},
                {{0, 1, -1, 0}, true},
                {{1, 2, 2, 4}, false},
                {{0, 0, 0, 0}, false},
                {{kNaN, 0, 0, 1}, false},
                {{1, kInfinity, 0, 1}, false},
                {{1e200, 0, 0, 1e200}, false}};
    for (const auto& row : rows) {
        EXPECT_EQ(row.matrix.IsInvertible(), row.invertible) << row.matrix.a << ' ' << row.matrix.b;
    }
}

TEST(BoxTest, GrowsByFinitePointsAndIntersects) {
    ZAMMathBox2D box;
    EXPECT_TRUE(box.IsEmpty());
    box.Add({kNaN, 0});
    box.Add({0, -kInfinity});
    EXPECT_TRUE(box.IsEmpty());
    box.Add({3, 4});
    EXPECT_FALSE(box.IsEmpty());
    box.Add({-1, 9});
    EXPECT_EQ(box, (ZAMMathBox2D{-1, 4, 3, 9}));
    EXPECT_EQ(box.Intersection({0, 0, 10, 5}), (ZAMMathBox2D{0, 4, 3, 5}));
    EXPECT_TRUE(box.Intersection({5, 5, 6, 6}).IsEmpty());
    EXPECT_TRUE(box.Intersection({}).IsEmpty());
}

TEST(EllipticalArcTest, TheBoxIsThatOfItsPoints) {
    Dice dice;
    for (int i = 0; i < 400; ++i) {
        const ZAMMathEllipticalArc arc = dice.Arc();
        const ZAMMathAffine2D map = dice.Map();
        ZAMMathBox2D box;
        arc.AddTo(box, map);
        ZAMMathBox2D sampled;
        constexpr int kSamples = 4000;
        for (int n = 0; n <= kSamples; ++n) {
            sampled.Add(map.Apply(arc.PointAt(arc.startAngle + arc.sweepAngle * n / kSamples)));
        }
        // Between two samples a circle of radius 120 rises by less than 120 · (7/4000)² / 8.
        ExpectNear({box.xMin, box.yMin}, {sampled.xMin, sampled.yMin}, 5e-5);
        ExpectNear({box.xMax, box.yMax}, {sampled.xMax, sampled.yMax}, 5e-5);
        EXPECT_LE(box.xMin, sampled.xMin + 1e-9);
        EXPECT_GE(box.yMax, sampled.yMax - 1e-9);
    }
    ZAMMathBox2D whole;
    ZAMMathEllipticalArc{{10, 20}, 3, 4, 0, 1, 100}.AddTo(whole, {});
    EXPECT_EQ(whole, (ZAMMathBox2D{7, 16, 13, 24}));
}

TEST(EllipticalArcTest, CubicsFollowTheArc) {
    Dice dice;
    for (int i = 0; i < 400; ++i) {
        const ZAMMathEllipticalArc arc = dice.Arc();
        const double near = 3e-4 * std::max(arc.xRadius, arc.yRadius);
        const double sweep = std::clamp(arc.sweepAngle, -ZAM2PI, ZAM2PI);
        std::vector<ZAMMathPoint2D> points{arc.Start()};
        arc.ForEachCubic([&points](const auto& control1, const auto& control2, const auto& end) {
            points.insert(points.end(), {control1, control2, end});
        });
        const std::size_t count = points.size() / 3;
        ASSERT_GE(count, 1U);
        ASSERT_LE(count, 4U);
        for (std::size_t curve = 0; curve < count; ++curve) {
            const ZAMMathPoint2D* const p = &points[3 * curve];
            for (int n = 0; n <= 16; ++n) {
                const double t = n / 16.0;
                const double s = 1 - t;
                const double w[] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
                const double dx = w[0] * p[0].x + w[1] * p[1].x + w[2] * p[2].x + w[3] * p[3].x - arc.center.x;
                const double dy = w[0] * p[0].y + w[1] * p[1].y + w[2] * p[2].y + w[3] * p[3].y - arc.center.y;
                const double u = dx * std::cos(arc.rotation) + dy * std::sin(arc.rotation);
                const double v = dy * std::cos(arc.rotation) - dx * std::sin(arc.rotation);
                EXPECT_NEAR(std::hypot(u / arc.xRadius, v / arc.yRadius), 1.0, 3e-4);
                // Its own speed is not the arc's, but it is in the middle with it.
                if (n % 8 == 0) {
                    const double along = (static_cast<double>(curve) + t) / static_cast<double>(count);
                    ExpectNear({dx + arc.center.x, dy + arc.center.y}, arc.PointAt(arc.startAngle + sweep * along),
                               near + 1e-9);
                }
            }
        }
    }
}

TEST(EllipticalArcTest, CountsAndWhatIsNotFinite) {
    const struct {
        ZAMMathEllipticalArc arc;
        int cubics;
    } rows[] = {
        {{{0, 0}, 1, 1, 0, 0, ZAMPI / 2}, 1}, {{{0, 0}, 1, 1, 0, 0, -ZAMPI / 2}, 1}, {{{0, 0}, 1, 1, 0, 0, 2.0}, 2},
        {{{0, 0}, 1, 1, 0, 0, ZAM2PI}, 4},    {{{0, 0}, 1, 1, 0, 0, 1e9}, 4},        {{{0, 0}, 0, 1, 0, 0, 1}, 1},
        {{{0, 0}, 1, 1, 0, 0, 0}, 1},         {{{0, 0}, 1, 1, 0, 1e308, 1e308}, 4},  {{{kNaN, 0}, 1, 1, 0, 0, 1}, 0},
        {{{0, 0}, kInfinity, 1, 0, 0, 1}, 0}, {{{0, 0}, 1, 1, kInfinity, 0, 1}, 0},  {{{0, 0}, 1, 1, 0, kNaN, 1}, 0},
        {{{0, 0}, 1, 1, 0, 0, -kInfinity}, 0}};
    for (const auto& row : rows) {
        int cubics = 0;
        row.arc.ForEachCubic([&cubics](const auto&, const auto&, const auto& end) {
            ++cubics;
            EXPECT_TRUE(end.IsFinite());
        });
        EXPECT_EQ(cubics, row.cubics) << row.arc.startAngle << ' ' << row.arc.sweepAngle;
        ZAMMathBox2D box;
        row.arc.AddTo(box, {});
        EXPECT_EQ(box.IsEmpty(), row.cubics == 0);
    }
}
