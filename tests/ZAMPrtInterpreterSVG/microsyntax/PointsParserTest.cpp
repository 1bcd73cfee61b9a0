// SPDX-License-Identifier: MIT
#include "tests/support/PieceText.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPointsParser.h"

#include <gtest/gtest.h>

namespace {

TEST(PointsParser, Points) {
    ZAMPrintSVGPointsParser parser;
    EXPECT_EQ(parser.SetImageSize(200.0, 100.0), 1);
    const char* const rows[][2] = {
        {"0,0 10,0 10,10", "L 0,100 10,100 10,90"},
        {"  0 , 0 ,, 10 , 20  ", "L 0,100 10,80"},
        {"1 2 3 4 5", "L 1,98 3,96"},
        {"5", "L"},
        {"5 5", "L 5,95"},
        {"10-20 5 6 7", "L 10,95 6,93"}, // a minus separates nothing
        {"-1-2 -3", "L -1,103"},
        {"x 1 2 3", "L 99,2"}, // what is dropped turns y into x
        {"1 1\t2 3 4", "L 1,99 3,96"},
        {"1mm 50% 10% 1E1", "L 3.54331,50 20,90"},
        {"1 2 3 4 ", "L 1,98 3,96"},
        {"   ", "L"},
        {"nonsense", "L"},
    };
    for (const auto& [text, expected] : rows) {
        const auto group = ZAMNew<ZAMPrtGroupElt>();
        const auto polyline = ZAMNew<ZAMPrtPolylineElt>();
        const auto polygon = ZAMNew<ZAMPrtPolygonElt>();
        group->AddChild(polyline.Get());
        EXPECT_EQ(parser.ParsePointsString(polyline.Get(), text, nullptr), 1) << text;
        EXPECT_EQ(parser.ParsePointsString(polygon.Get(), text, nullptr), 1) << text;
        EXPECT_EQ(PieceText(*group), expected) << text;
        EXPECT_TRUE(std::ranges::equal(polygon->GetPoints(), polyline->GetPoints())) << text;
    }
    const auto polygon = ZAMNew<ZAMPrtPolygonElt>();
    EXPECT_EQ(parser.ParsePointsString(polygon.Get(), "", nullptr), -1);
    EXPECT_EQ(parser.ParsePointsString(static_cast<ZAMPrtPolylineElt*>(nullptr), "1 2", nullptr), -1);
}

} // namespace
