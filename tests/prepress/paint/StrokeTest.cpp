// SPDX-License-Identifier: MIT
// Whether the outline of a stroke covers a place, which pieces that run the same way around must never undo.
#include "prepress/paint/ZAMPrepressStroke.h"
#include "tests/prepress/Documents.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using Path = ZAMPrepressPath;
using Points = std::vector<ZAMMathPoint2D>;
using Stroke = ZAMPrepressStroke;

constexpr double kTolerance = 0.01;
constexpr std::size_t kMany = 100'000;

// How often the outline runs clockwise around the place.
int Wind(const Path& outline, const ZAMMathPoint2D& place) {
    int winding = 0;
    ZAMMathPoint2D from;
    for (const Path::Segment& segment : outline.segments) {
        const ZAMMathPoint2D& to = segment.end;
        if (segment.verb != Path::Verb::MoveTo && (from.y <= place.y) != (to.y <= place.y)) {
            const double x = from.x + (to.x - from.x) * (place.y - from.y) / (to.y - from.y);
            winding += x < place.x ? (from.y < to.y ? -1 : 1) : 0;
        }
        from = to;
    }
    return winding;
}

double Distance(const ZAMMathPoint2D& place, const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    const double share = ((place.x - from.x) * x + (place.y - from.y) * y) / (x * x + y * y);
    const double nearest = std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0.0;
    return std::hypot(from.x + nearest * x - place.x, from.y + nearest * y - place.y);
}

double Distance(const ZAMMathPoint2D& place, const std::vector<ZAMPrepressFlatLine>& lines) {
    double least = INFINITY;
    for (const ZAMPrepressFlatLine& line : lines) {
        const std::size_t count = line.vertices.size();
        for (std::size_t i = 0; i + (line.isClosed ? 0 : 1) < count; ++i) {
            least = std::min(least, Distance(place, line.vertices[i].point, line.vertices[(i + 1) % count].point));
        }
    }
    return least;
}

TEST(Stroke, RoundOnesCoverWhatIsNearThePath) {
    const char* const paths[] = {
        "M10 10H40L20 30z",
        "M10 10C40 10 10 40 40 40S0 20 30 0",
        "M20 20a10 10 0 1 0 1 0z",
        "M20 20C20 20 40 40 40 20S20 10 40 45",
        "M10 30C50 30 0 30 40 30", // turns back twice
        "M10 10L40 10L10 11L40 12",
        "M25 25z",
        "M10 10h5m10 0v0M30 30q9 9 5-9t-20 0",
        "M5 5H45V45H5zM15 15V35H35V15z",
    };
    for (const char* data : paths) {
        const Path path = Path::Parse(data);
        const auto lines = ZAMPrepressFlatten(path, {kTolerance / 10.0, 0.0, kMany});
        ASSERT_TRUE(lines);
        for (const double width : {0.5, 3.0, 9.0, 24.0}) {
            const Stroke stroke{width, Stroke::Cap::Round, Stroke::Join::Round};
            const auto outline = stroke.GetOutline(path, kTolerance, kMany);
            ASSERT_TRUE(outline);
            for (double y = -9.87; y < 60.0; y += 2.03) {
                for (double x = -9.91; x < 60.0; x += 1.87) {
                    const double distance = Distance({x, y}, *lines) - width / 2.0;
                    const int winding = Wind(*outline, {x, y});
                    EXPECT_GE(winding, 0) << data << " width " << width << " at " << x << ", " << y;
                    if (std::abs(distance) > 2.0 * kTolerance) {
                        EXPECT_EQ(winding != 0, distance < 0.0)
                            << data << " width " << width << " at " << x << ", " << y;
                    }
                }
            }
        }
    }
}

struct Row {
    const char* path;
    const char* stroke; // attributes
    Points covered;
    Points bare;
};

TEST(Stroke, EndsJoinsAndDashesLookAsTheyShould) {
    const Row rows[] = {
        {"M10 10H20", "", {{10.1, 11.9}, {19.9, 8.1}}, {{9.9, 10}, {20.1, 10}, {15, 12.1}}},
        {"M10 10H20", "stroke-linecap='square'", {{8.1, 11.9}, {21.9, 8.1}}, {{7.9, 10}, {22.1, 10}}},
        {"M10 10H20", "stroke-linecap='round'", {{8.1, 10}, {21.9, 10}}, {{8.1, 11.9}, {21.9, 8.1}}},
        {"M10 10H20V20", "", {{21.9, 8.1}, {18.1, 19}}, {{22.1, 8}, {17.9, 12.1}}},
        {"M10 10H20V20", "stroke-linejoin='bevel'", {{20.9, 9}}, {{21.2, 8.8}}},
        {"M10 10H20V20", "stroke-linejoin='round'", {{21.3, 8.7}}, {{21.5, 8.5}}},
        {"M10 10H20V20", "stroke-miterlimit='1.4'", {{20.9, 9}}, {{21.2, 8.8}}},
        {"M10 10H20V20H10z", "", {{8.1, 8.1}, {8.1, 21.9}, {15, 8.5}}, {{15, 15}, {7.9, 8}}},
        {"M10 10H20V20H10L10 10", "", {{8.1, 12}}, {{8.1, 8.1}}},
        {"M10 10H30", "stroke-dasharray='5 3'", {{14.9, 10}, {18.1, 10}, {29, 10}}, {{15.1, 10}, {17.9, 10}}},
        {"M10 10H30", "stroke-dasharray='3'", {{12.9, 10}, {16.1, 10}}, {{13.1, 10}, {15.9, 10}}},
        {"M10 10H30",
         "stroke-linecap='round' stroke-dasharray='0 6'",
         {{16, 10}, {17.9, 10}, {22, 11.9}},
         {{18.1, 10}}},
        {"M10 10H20V20", "stroke-dasharray='6 1'", {{21.9, 8.1}, {15.9, 10}}, {{16.5, 10}, {20, 13.5}}},
        // The last dash goes on with the first, around the corner.
        {"M10 10H20V20H10z", "stroke-dasharray='5 30'", {{8.1, 9}, {14.9, 10}}, {{15.1, 10}, {20, 15}}},
        {"M10 10H20V20H10z", "stroke-dasharray='3 34 9 1'", {{8.1, 8.1}, {10, 12}}, {{10, 15}, {14, 10}}},
        {"M10 10z", "stroke-linecap='square'", {{8.1, 8.1}, {11.9, 11.9}}, {{12.1, 10}}},
        {"M10 10z", "", {}, {{10, 10.1}, {10.1, 10}}},
        {"M10 10", "stroke-linecap='round'", {}, {{10, 10.1}}},
    };
    for (const Row& row : rows) {
        ZAMPrepressTree tree(ParseDocument("<path stroke-width='4' " + std::string(row.stroke) + "/>"));
        const auto outline = Stroke::Of(tree.GetRoot()).GetOutline(Path::Parse(row.path), kTolerance, kMany);
        ASSERT_TRUE(outline);
        for (const ZAMMathPoint2D& place : row.covered) {
            EXPECT_GT(Wind(*outline, place), 0) << row.path << " at " << place.x << ", " << place.y;
        }
        for (const ZAMMathPoint2D& place : row.bare) {
            EXPECT_EQ(Wind(*outline, place), 0) << row.path << " at " << place.x << ", " << place.y;
        }
    }
}

TEST(Stroke, OnesOfTooMuchAreNotOutlined) {
    const Path line = Path::Parse("M0 0H1000");
    EXPECT_FALSE((Stroke{1.0, {}, {}, 4.0, {0, 0.01}}.GetOutline(line, kTolerance, 1'000)));
    EXPECT_FALSE(Stroke{}.GetOutline(Path::Parse("M0 0H1V1H2V2H3V3"), kTolerance, 30));
    EXPECT_TRUE(Stroke{}.GetOutline(Path::Parse("M0 0H1V1H2V2H3V3"), kTolerance, 70));
    for (const char* data : {"M0 0L1e308 -1e308L-1e308 1e308", "M0 0C1e308 0 0 1e308 -1e308 0", "M1e-320 0L0 1e-320"}) {
        for (const double width : {1e-300, 1.0, 1e300}) {
            for (const Stroke& stroke :
                 {Stroke{width, {}, {}, 4.0, {1e300}}, Stroke{width, Stroke::Cap::Round, Stroke::Join::Round}}) {
                const auto outline = stroke.GetOutline(Path::Parse(data), kTolerance, 1'000);
                EXPECT_LE(outline ? outline->segments.size() : 0, 1'000U) << data;
            }
        }
    }
}

} // namespace
