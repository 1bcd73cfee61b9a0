// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathConstants.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using Verb = ZAMPrepressPath::Verb;

TEST(Path, Commands) {
    const char* const rows[][2] = {
        {"M1 2L3 4H5V6Z", "M 1 2 L 3 4 L 5 4 L 5 6 Z"},
        {"m1 2l3 4h5v6z", "M 1 2 L 4 6 L 9 6 L 9 12 Z"},
        {"M1 2 3 4 5 6", "M 1 2 L 3 4 L 5 6"},
        {"m1 2 3 4m5 6 7 8", "M 1 2 L 4 6 M 9 12 L 16 20"},
        {"M1 2h3 4v5 6", "M 1 2 L 4 2 L 8 2 L 8 7 L 8 13"},
        {"M1 1L2 1zl5 5zm1 1", "M 1 1 L 2 1 Z L 6 6 Z M 2 2"}, // from where the subpath began
        {"M1 1C2 2 3 3 4 4c1 1 2 2 3 3", "M 1 1 C 2 2 3 3 4 4 C 5 5 6 6 7 7"},
        {"M0 0c0 1 2 3 4 4s5 6 7 8S1 2 3 4", "M 0 0 C 0 1 2 3 4 4 C 6 5 9 10 11 12 C 13 14 1 2 3 4"},
        {"M0 0L1 1S3 3 4 4", "M 0 0 L 1 1 C 1 1 3 3 4 4"}, // no curve before: from where it stands
        {"M0 0Q3 3 6 0t6 0", "M 0 0 C 2 2 4 2 6 0 C 8 -2 10 -2 12 0"},
        {"M0 0Q3 3 6 0T12 0 18 0", "M 0 0 C 2 2 4 2 6 0 C 8 -2 10 -2 12 0 C 14 2 16 2 18 0"},
        {"M0 0C0 3 3 3 3 0T6 0", "M 0 0 C 0 3 3 3 3 0 C 3 0 4 0 6 0"}, // a cubic leaves no control for it
        {"M0 0A0 5 0 0 1 3 4", "M 0 0 L 3 4"},
        {"M3 4A5 5 0 0 1 3 4", "M 3 4"},
        {"M0 0A1e200 1e200 0 0 1 1e-200 0", "M 0 0 L 1e-200 0"}, // beyond all arithmetic
    };
    for (const auto& [data, expected] : rows) {
        EXPECT_EQ(ZAMPrepressPath::Parse(data).ToData(), expected) << data;
    }
}

TEST(Path, Syntax) {
    const char* const rows[][2] = {
        {" \t\nM\r1,2 , 3\n,4 ", "M 1 2 L 3 4"},
        {"M1-2.5.5-.5e1+3", "M 1 -2.5 L 0.5 -5"}, // and a 3 without a partner
        {"M+1 1.L1E1,1e+1 1e-1 0", "M 1 1 L 10 10 L 0.1 0"},
        {"M0 0a0 5 30 0110 0", "M 0 0 L 10 0"},
        {"M0 0a0 5 30 1 0-.5.5", "M 0 0 L -0.5 0.5"},
        {"", ""},
        {"L1 1", ""},
        {"1 1", ""},
        {"zM1 1", ""},
        {"none", ""},
        {"M1", ""},
        {"M,1 1", ""},
        {"M1 1,L2 2", "M 1 1"},
        {"M1 1L2 2,,3 3", "M 1 1 L 2 2"},
        {"M1 1L2 2 3", "M 1 1 L 2 2"},
        {"M1 1H2B3V4", "M 1 1 L 2 1"},
        {"M1 1zz5", "M 1 1 Z Z"},
        {"M1 1A1 1 0 2 0 3 3", "M 1 1"},
        {"M1 1 2 2px", "M 1 1 L 2 2"},
        {"M1e 1", ""},
        {"M1 1L. 5", "M 1 1"},
    };
    for (const auto& [data, expected] : rows) {
        EXPECT_EQ(ZAMPrepressPath::Parse(data).ToData(), expected) << data;
    }
}

// Every arc is checked against the circle, after undoing the ellipse's shape: its points lie on it, it turns in the
// right direction, and as far as asked.
TEST(Path, Arcs) {
    struct Row {
        const char* flags;
        double turn; ///< degrees
    };
    for (const Row& row : {Row{"0 0", -90.0}, {"0 1", 90.0}, {"1 0", -270.0}, {"1 1", 270.0}}) {
        // A quarter of an ellipse of radii 20 and 10, turned by 90 degrees, so that the chord is (10, 20).
        const auto path = ZAMPrepressPath::Parse("M0 0A20 10 90 " + std::string(row.flags) + " 10 20");
        const bool lower = row.turn == -90.0 || row.turn == 270.0;
        const ZAMMathPoint2D center = lower ? ZAMMathPoint2D{10.0, 0.0} : ZAMMathPoint2D{0.0, 20.0};
        const auto onCircle = [&](const ZAMMathPoint2D& point) {
            return ZAMMathPoint2D{(point.x - center.x) / 10.0, (point.y - center.y) / 20.0};
        };
        double turned = 0.0;
        ZAMMathPoint2D from = onCircle({0.0, 0.0});
        for (std::size_t i = 1; i < path.segments.size(); ++i) {
            const auto& segment = path.segments[i];
            const ZAMMathPoint2D to = onCircle(segment.end);
            EXPECT_NEAR(std::hypot(to.x, to.y), 1.0, 1e-9) << row.flags;
            turned += std::atan2(from.x * to.y - from.y * to.x, from.x * to.x + from.y * to.y) / ZAMDegreeToRadian;
            EXPECT_EQ(segment.isVertex, i + 1 == path.segments.size());
            from = to;
        }
        EXPECT_NEAR(turned, row.turn, 1e-6) << row.flags;
        EXPECT_EQ(path.segments.back().end, (ZAMMathPoint2D{10.0, 20.0}));
    }
}

void ExpectBox(const ZAMMathBox2D& box, const ZAMMathBox2D& expected, std::string_view what) {
    EXPECT_NEAR(box.xMin, expected.xMin, 1e-3) << what;
    EXPECT_NEAR(box.yMin, expected.yMin, 1e-3) << what;
    EXPECT_NEAR(box.xMax, expected.xMax, 1e-3) << what;
    EXPECT_NEAR(box.yMax, expected.yMax, 1e-3) << what;
}

TEST(Path, Boxes) {
    const std::pair<const char*, ZAMMathBox2D> rows[] = {
        {"M1 2L5 3L4 9", {1.0, 2.0, 5.0, 9.0}},
        {"M100 100M1 2L5 3M-50-50", {1.0, 2.0, 5.0, 3.0}}, // moves alone draw nothing
        {"M0 0C0 4 4 4 4 0", {0.0, 0.0, 4.0, 3.0}},
        {"M0 0C8 0 -4 4 4 4", {0.0, 0.0, 4.0, 4.0}},
        {"M0 0C12 0 -9 3 3 3", {-0.8501, 0.0, 3.8501, 3.0}},
        {"M0 0Q2 4 4 0", {0.0, 0.0, 4.0, 2.0}}, // the derivative is linear
        {"M0 0C1 1 2 2 3 3", {0.0, 0.0, 3.0, 3.0}},
        {"M0 0A5 5 0 0 1 10 0", {0.0, -5.0, 10.0, 0.0}},
        {"M0 0A1 1 0 0 0 10 0", {0.0, 0.0, 10.0, 5.0}}, // enlarged to fit
        {"M0 0A10 10 0 1 1 10 10", {0.0, -10.0, 20.0, 10.0}},
    };
    for (const auto& [data, expected] : rows) {
        ExpectBox(ZAMPrepressPath::Parse(data).GetBox(), expected, data);
    }
    EXPECT_TRUE(ZAMPrepressPath::Parse("M1 1M2 2").GetBox().IsEmpty());
}

struct Shape {
    std::string_view name;
    std::pmr::vector<ZAMPrepressElement::Attribute> attributes;
    const char* data;
    ZAMMathBox2D box;
};

TEST(Path, Shapes) {
    const Shape rows[] = {
        {"rect", {{"x", "1"}, {"width", "4"}, {"height", "3"}}, "M 1 0 L 5 0 L 5 3 L 1 3 Z", {1.0, 0.0, 5.0, 3.0}},
        {"rect", {{"width", "4"}, {"height", "0"}}, "", {}},
        {"rect", {{"width", "4"}, {"height", "-1"}}, "", {}},
        {"rect",
         {{"width", "4"}, {"height", "4"}, {"rx", "0"}, {"ry", "2"}},
         "M 0 0 L 4 0 L 4 4 L 0 4 Z",
         {0, 0, 4, 4}},
        {"rect", {{"width", "8"}, {"height", "4"}, {"rx", "9"}}, nullptr, {0.0, 0.0, 8.0, 4.0}},
        {"circle", {{"cx", "1"}, {"cy", "2"}, {"r", "3"}}, nullptr, {-2.0, -1.0, 4.0, 5.0}},
        {"circle", {{"r", "-3"}}, "", {}},
        {"ellipse", {{"rx", "3"}}, nullptr, {-3.0, -3.0, 3.0, 3.0}},
        {"ellipse", {{"rx", "3"}, {"ry", "1"}}, nullptr, {-3.0, -1.0, 3.0, 1.0}},
        {"line", {{"x2", "3"}, {"y1", "1"}}, "M 0 1 L 3 0", {0.0, 0.0, 3.0, 1.0}},
        {"polyline", {{"points", " 0,0 3-1.5.5 7"}}, "M 0 0 L 3 -1.5 L 0.5 7", {0.0, -1.5, 3.0, 7.0}},
        {"polygon", {{"points", "0,0,3,1,2"}}, "M 0 0 L 3 1 Z", {0.0, 0.0, 3.0, 1.0}},
        {"polygon", {{"points", "none"}}, "", {}},
        {"path", {{"d", "M0 0H5"}}, "M 0 0 L 5 0", {0.0, 0.0, 5.0, 0.0}},
    };
    for (const Shape& row : rows) {
        ZAMPrepressElement element;
        element.name = row.name;
        element.attributes = row.attributes;
        const auto path = ZAMPrepressPath::Of(element);
        ASSERT_TRUE(path) << row.name;
        if (row.data != nullptr) {
            EXPECT_EQ(path->ToData(), row.data) << row.name;
        }
        if (row.box.IsEmpty()) {
            EXPECT_TRUE(path->GetBox().IsEmpty()) << row.name;
        } else {
            ExpectBox(path->GetBox(), row.box, row.name);
        }
    }
    ZAMPrepressElement group;
    group.name = "g";
    EXPECT_FALSE(ZAMPrepressPath::Of(group));
}

// Radii of half the sides make an ellipse, whose points tell the corners' form.
TEST(Path, RoundedCorners) {
    ZAMPrepressElement element;
    element.name = "rect";
    element.attributes = {{"x", "10"}, {"y", "20"}, {"width", "8"}, {"height", "4"}, {"rx", "100"}, {"ry", "100"}};
    const auto path = ZAMPrepressPath::Of(element);
    ASSERT_TRUE(path);
    int curves = 0;
    ZAMMathPoint2D from;
    for (const auto& segment : path->segments) {
        if (segment.verb == Verb::CubicTo) {
            ++curves;
            const double x = (from.x + 3.0 * (segment.control1.x + segment.control2.x) + segment.end.x) / 8.0;
            const double y = (from.y + 3.0 * (segment.control1.y + segment.control2.y) + segment.end.y) / 8.0;
            EXPECT_NEAR(std::hypot((x - 14.0) / 4.0, (y - 22.0) / 2.0), 1.0, 1e-3);
        }
        from = segment.end;
    }
    EXPECT_EQ(curves, 4);
}

} // namespace
