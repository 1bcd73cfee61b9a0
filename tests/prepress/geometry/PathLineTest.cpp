// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathConstants.h"
#include "prepress/geometry/ZAMPrepressPathLine.h"

#include <gtest/gtest.h>

namespace {

ZAMPrepressPathLine LineOf(const char* data, const ZAMMathAffine2D& map = {}) {
    return {ZAMPrepressPath::Parse(data), map};
}

TEST(PathLine, Length) {
    EXPECT_EQ(LineOf("").GetLength(), 0.0);
    EXPECT_EQ(LineOf("M5 5l0 0z").GetLength(), 0.0);
    EXPECT_EQ(LineOf("M0 0H3V4").GetLength(), 7.0);
    EXPECT_EQ(LineOf("M0 0H3V4Z").GetLength(), 12.0);
    EXPECT_EQ(LineOf("M0 0H3M9 9V5").GetLength(), 7.0); // a move is no way
    EXPECT_EQ(LineOf("M0 0H3", {2.0, 0.0, 0.0, 1.0, 5.0, 5.0}).GetLength(), 6.0);
    EXPECT_NEAR(LineOf("M10 0A10 10 0 1 1 -10 0A10 10 0 1 1 10 0").GetLength(), 20.0 * ZAMPI, 0.01);
}

TEST(PathLine, Place) {
    const struct {
        const char* data;
        double distance;
        ZAMPrepressPathLine::Place place;
    } rows[] = {
        {"M1 2H9", 0.0, {{1.0, 2.0}, {1.0, 0.0}}},        {"M1 2H9", 8.0, {{9.0, 2.0}, {1.0, 0.0}}},
        {"M0 0H3V4", 5.0, {{3.0, 2.0}, {0.0, 1.0}}},      {"M0 0H3V4", 3.0, {{3.0, 0.0}, {1.0, 0.0}}},
        {"M0 0H3M9 9V5", 4.0, {{9.0, 8.0}, {0.0, -1.0}}}, {"M0 0H4Z", 6.0, {{2.0, 0.0}, {-1.0, 0.0}}},
    };
    for (const auto& [data, distance, expected] : rows) {
        const auto place = LineOf(data).GetPlace(distance);
        EXPECT_EQ(place.point, expected.point) << data << ' ' << distance;
        EXPECT_EQ(place.direction, expected.direction) << data << ' ' << distance;
    }
    const auto top = LineOf("M-10 0A10 10 0 0 1 10 0").GetPlace(5.0 * ZAMPI);
    EXPECT_NEAR(top.point.x, 0.0, 0.01);
    EXPECT_NEAR(top.point.y, -10.0, 0.01);
    EXPECT_NEAR(top.direction.x, 1.0, 0.001);
}

} // namespace
