// SPDX-License-Identifier: MIT
#include "tests/support/PieceText.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct Row {
    std::string data;
    const char* expected;
};

// In a document of 200 by 100, y flipped.
void Check(ZAMPrtDrawStyle drawStyle, std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        ZAMPrintSVGPathParser parser;
        EXPECT_EQ(parser.SetImageSize(200.0, 100.0), 1);
        EXPECT_EQ(parser.SetPaintAttributes(drawStyle, {}, {}), 1);
        const auto group = ZAMNew<ZAMPrtGroupElt>();
        EXPECT_EQ(parser.ParsePathString(group.Get(), row.data), 1) << row.data;
        EXPECT_EQ(PieceText(*group), row.expected) << row.data;
    }
}
void CheckStroked(std::initializer_list<Row> rows) {
    Check(ZAMPrtDrawStyle::Stroke, rows);
}

TEST(PathParser, StraightRuns) {
    CheckStroked({
        {"M10 10", ""},
        {"M10 10 L20 10", "L 10,90 20,90"},
        {"M0 0L1 1M5 5L6 6", "L 0,100 1,99 L 5,95 6,94"},
        {"m10 10 5 5 l5-5", "L 10,90 15,85 20,90"},
        {"M0 0 H10 20 V5 h5 5 v-1", "L 0,100 10,100 20,100 20,95 25,95 30,95 30,96"},
        {"M1 1V2 3v1 1H", "L 1,99 1,98 1,97 1,96 1,95"},
        {"L5 5", ""},
        {"L5 5 6 6", "L 5,95 6,94"}, // nothing connects it with the origin
        {"h5 5", "L 5,100 10,100"},
        {"M1 1ML2 2 3 3", "L 2,98 3,97"}, // a move to nowhere ends the run all the same
    });
}

// The longest path is drawn whole; of a longer one nothing is made any more.
TEST(PathParser, APathThatIsTooLongSpendsTheBudget) {
    for (const char* data : {"M0 0L1 1L2 2Z", "M0 0 1 1 2 2 3 3", "ZZZZ"}) {
        for (const std::size_t most : {4U, 3U}) {
            const ZAMAllocationBudget budget(100, most);
            ZAMPrintSVGPathParser parser;
            const auto group = ZAMNew<ZAMPrtGroupElt>();
            EXPECT_EQ(parser.ParsePathString(group.Get(), data), 1);
            EXPECT_EQ(budget.HasLongPath(), most == 3) << data;
        }
    }
}

TEST(PathParser, TokensOfCoordinates) {
    CheckStroked({
        {"M10-20L30,40", "L 10,120 30,60"},
        {"M 10,,20 , L 30 , 40 ", "L 10,80 30,60"},
        {"M1 2 3 L5 5", "L 1,98 5,95"},    // the third is a y and left over
        {"M5 xx 7 8 L9 9", "L 5,7 9,91"},  // dropped: 7 becomes a y, though read as an x
        {"M.5.5 1 L2 2", "L 0.5,99 2,98"}, // a point starts no number
        {"M+1+2 3 L2 2", "L 1,97 2,98"},   // nor does a plus
        {"M1e1 1E1 L2e-1 0", "L 10,90 0.2,100"},
        {"M1 1L1E-1 5", "L 1,99 1,101"}, // "1E" and "-1"
        {"M1 1L5e--3", "L 1,99 5,103"},
        {"M1 1L--5 6", "L 1,99 105,94"},
        {"M1 1L5eee1 0", "L 1,99 0.5,100"},
        {"M1 1L5ee-1 0", "L 1,99 5,100"},
        {"M1 1L0xee-1 0", "L 1,99 14,100"},
        {"M0 0L1\t9 2", "L 0,100 1,98"}, // a tab separates nothing
        {"M1in 50% L10% 1in", "L 90,50 20,10"},
        {"M0 0L1cm2 3L4 4", "L 2,97 4,96"}, // c and m are commands
    });
}

TEST(PathParser, Items) {
    CheckStroked({
        {";", ""},
        {"M1 1;2 3L4 4", "L 1,99 4,96"},
        {";M1 1;;L4 4;", "L 1,99 4,96"},
        {"10 20 M1 1 L2 2", "L 1,99 2,98"},
        {" M1 1 x L2 2", "L 1,99 2,98"},
        {"M1 1 B5 5 L2 2", "L 1,99 2,98"}, // no letter of a command: one more token
        {"M0 0;\u017F1 1 2 2", "C 0,100 0,100 1,99 2,98"},
        {"\u017F1 1 2 2M0 0", "C 0,100 0,100 1,99 2,98"},
        {"M0 0\u017F1 1 2 2", "L 0,100 1,98"}, // it ends no item
    });
}

TEST(PathParser, ClosePath) {
    CheckStroked({
        {"Z", ""},
        {"M0 0Z", ""},
        {"M0 0L10 0L10 10Z", "L 0,100 10,100 10,90 0,100"},
        {"M0 0L10 0L0 0z", "L 0,100 10,100 0,100"},
        {"M1 1L10 1Z5 5L5 5", "L 1,99 10,99 1,99 L 1,99 5,95"},
        {"M1 1L10 1Zm5 5L0 0", "L 1,99 10,99 1,99 L 6,94 0,100"},
        {"M1 1 2 2Zl1 0Z", "L 1,99 2,98 1,99 L 1,99 2,99 1,99"},
        {"M0 0C1 1 2 2 3 0Z", "C 0,100 1,99 2,98 3,100 L 3,100 0,100"},
    });
}

TEST(PathParser, CubicCurves) {
    CheckStroked({
        {"C1 1 2 2 3 3", "C 0,100 1,99 2,98 3,97"},
        {"M0 0C1 2 3 4 5 6 7", "C 0,100 1,98 3,96 5,94"},
        {"M0 0c1 1 2 2 3 3 1 1 2 2 3 3", "C 0,100 1,99 2,98 3,97 4,96 5,95 6,94"},
        {"M0 0C1 2 3 4 5L9 9", "L 0,100 9,91"},
        {"M0 0L5 5C1 2 3 4 5 6L9 9", "L 0,100 5,95 C 5,95 1,98 3,96 5,94 L 5,94 9,91"},
        {"M0 0L5 5C1 2 3 4 5L9 9", "L 0,100 5,95 L 5,95 9,91"},
        {"M0 0C0 10 10 10 10 0S20-10 20 0", "C 0,100 0,90 10,90 10,100 C 10,100 10,110 20,110 20,100"},
        {"M0 0S10 10 20 0 30 10 40 0", "C 0,100 0,100 10,90 20,100 30,110 30,90 40,100"},
        {"M5 5s10 10 20 0 10 10 20 0", "C 5,95 5,95 15,85 25,95 35,105 35,85 45,95"},
        {"M0 0C0 10 10 10 10 0L20 0S30 10 40 0",
         "C 0,100 0,90 10,90 10,100 L 10,100 20,100 C 20,100 20,100 30,90 40,100"},
        {"M0 0Q5 10 10 0S20 10 30 0", "Q 0,100 5,90 10,100 C 10,100 10,100 20,90 30,100"},
        {"M0 0L1 1S1 2 3L2 2", "L 0,100 1,99 L 1,99 2,98"},
    });
}

TEST(PathParser, QuadraticCurves) {
    CheckStroked({
        {"M0 0Q5 10 10 0 15-10 20 0 9", "Q 0,100 5,90 10,100 15,110 20,100"},
        {"M0 0q5 5 10 0 5 5 10 0", "Q 0,100 5,95 10,100 15,95 20,100"},
        {"M0 0Q1 2 3", ""},
        {"M0 0Q5 10 10 0T20 0 30 0", "Q 0,100 5,90 10,100 Q 10,100 15,110 20,100 25,90 30,100"},
        {"M0 0q5 5 10 0t10 0 10 0", "Q 0,100 5,95 10,100 Q 10,100 15,105 20,100 25,95 30,100"},
        {"M0 0T10 0", "Q 0,100 0,100 10,100"},
        {"M0 0C0 10 10 10 10 0T20 0", "C 0,100 0,90 10,90 10,100 Q 10,100 10,100 20,100"},
        {"M0 0Q5 10 10 0V0T20 0", "Q 0,100 5,90 10,100 L 10,100 10,100 Q 10,100 10,100 20,100"},
        {"M0 0L1 1T5L2 2", "L 0,100 1,99 L 1,99 2,98"},
    });
}

TEST(PathParser, Arcs) {
    const char* const quarter = "A 0,100 10,10 0,0,-1.5708";
    CheckStroked({
        {"M10 0A10 10 0 0 1 0 10", quarter},
        {"M10 0A10 10 0 0 0 0 10", "A 10,90 10,10 0,1.5708,1.5708"},
        {"M10 0A10 10 0 1 1 0 10", "A 10,90 10,10 0,1.5708,-4.71239"},
        {"M10 0A10 10 0 1 0 0 10", "A 0,100 10,10 0,0,4.71239"},
        {"M10 0A-10 10 0 0 .5 0 10", quarter},
        {"M10 0A5% 10% 0 0 1 0 10", quarter},
        {"M0 0A20 10 90 0 1 20 0", "A 10,100 20,10 -1.5708,-1.5708,-3.14159"},
        {"M0 0A1 1 0 0 1 6 8", "A 3,96 5,5 0,2.2143,-3.14159"},   // too small radii grow
        {"M0 0A1 2 0 0 1 6 16", "A 3,92 5,10 0,2.2143,-3.14159"}, // in proportion
        {"M0 0L1 1A0 5 0 0 1 9 9L5 5", "L 0,100 1,99 9,91 5,95"},
        {"M0 0L1 1A5 x 0 0 1 9 9L5 5", "L 0,100 1,99 9,91 5,95"},
        {"M1 1L2 2A5 5 0 0 1 2 2L3 3", "L 1,99 2,98 3,97"},
        {"M0 0L10 0A10 10 0 0 1 0 10L5 5", "L 0,100 10,100 A 0,100 10,10 0,0,-1.5708 L 0,90 5,95"},
        {"M10 0A10 10 0 01 0 10", ""}, // flags do not glue: six values
        {"M10 0A10 10 x 0 1 0 y", "A 5,108.66 10,10 0,-1.0472,-1.0472"},
        {"M10 0a10 10 0 0 1-10 10 10 10 0 0 1-10-10 3 4", "A 0,100 10,10 0,0,-1.5708 A 0,100 10,10 0,-1.5708,-1.5708"},
        {"M10 0a10 10 0 0 1 -10 y", "A 5,108.66 10,10 0,-1.0472,-1.0472"}, // no y is no way down
    });
}

TEST(PathParser, FilledPathsGoIntoFigures) {
    const std::initializer_list<Row> rows = {
        {"M0 0L10 0L10 10", "{[] [L 0,100 10,100 10,90]}"},
        {"M0 0L10 0L10 10Z", "{[] [L 0,100 10,100 10,90 0,100] []}"},
        {"M0 0L5 5Z", "{[] [L 0,100 5,95 0,100] []}"},
        {"M0 0L1 1ZL9 9", "{[] [L 0,100 1,99 0,100] [L 0,100 9,91]}"},
        {"M0 0L1 1M5 5", "{[] [L 0,100 1,99] []}"},
        {"L0 0 1 1 2 2", "{[L 0,100 1,99 2,98]}"},
        {"M0 0C1 1 2 2 3 3Z", "{[] [C 0,100 1,99 2,98 3,97 L 3,97 0,100] []}"},
        {"M0 0A0 0 0 0 1 5 5L9 9", "{[] [L 0,100 5,95 9,91]}"},
        {"M10 0A10 10 0 0 1 0 10Z", "{[] [A 0,100 10,10 0,0,-1.5708 L 0,90 10,100] []}"},
        // Two vertices make no figure.
        {"M10 10", ""},
        {"M1 1Z", ""},
        {";", ""},
        {"M0 0L10 0", "L 0,100 10,100"},
        {"M0 0C1 1 2 2 3 3", "C 0,100 1,99 2,98 3,97"},
        {"M10 0A10 10 0 0 1 0 10", "A 0,100 10,10 0,0,-1.5708"},
        {"M0 0A10 10 0 0 1 0 0L5 5", "L 0,100 5,95"},
        {"C1 1 2 2 3 3M5 5", ""}, // what stands in an earlier region goes with the figure
    };
    for (const auto drawStyle : {ZAMPrtDrawStyle::Fill, ZAMPrtDrawStyle::StrokeAndFill, ZAMPrtDrawStyle::Explicit}) {
        Check(drawStyle, rows);
    }
    Check(ZAMPrtDrawStyle::None, {{"M0 0L10 0L10 10Z", "L 0,100 10,100 10,90 0,100"}});
}

TEST(PathParser, ResultsAndReuse) {
    ZAMPrintSVGPathParser parser;
    const auto group = ZAMNew<ZAMPrtGroupElt>();
    for (const char* const data : {"", " ", "10 20", "e-5"}) {
        EXPECT_EQ(parser.ParsePathString(group.Get(), data), -1) << data;
    }
    EXPECT_EQ(parser.ParsePathString(nullptr, "M0 0L1 1"), -1);
    EXPECT_TRUE(group->GetChildren().empty());

    std::string data = "M0 0L";
    for (int i = 1; i < 1000; ++i) {
        data += std::to_string(i) + " 0 ";
    }
    EXPECT_EQ(parser.ParsePathString(group.Get(), data), 1);
    EXPECT_EQ(parser.ParsePathString(group.Get(), "L1 1 2 2 3 3"), 1); // starts afresh
    const std::string text = PieceText(*group);
    EXPECT_EQ(std::count(text.begin(), text.end(), ','), 1003);
    EXPECT_TRUE(text.ends_with("{[L 1,-1 2,-2 3,-3]}")) << text.substr(text.size() - 40);
}

TEST(PathParser, RelativeListsBecomeAbsolute) {
    const auto listOf = [](std::initializer_list<double> values) {
        ZAMRawColldouble list;
        for (const double value : values) {
            list.Append(value);
        }
        return list;
    };
    const auto textOf = [](const ZAMRawColldouble& list) {
        std::string text;
        for (std::size_t i = 1; i <= list.GetCount(); ++i) {
            text += NumberText({list[i]}) + ' ';
        }
        return text;
    };
    ZAMPrintSVGPathParser parser;
    parser.SetImageSize(200.0, 100.0);
    for (const bool flip : {false, true}) {
        parser._FlipY = flip;
        auto list = listOf({1, 1, 2, 2, 3, 3, 1, 1, 7});
        parser.ModifyRelativePointListToAbsolutePointList(list, {10, 10}, 3);
        EXPECT_EQ(textOf(list), flip ? "11 -89 12 -88 13 -87 14 -186 7 " : "11 11 12 12 13 13 14 14 7 ");
        list = listOf({1, 2});
        parser.ModifyRelativeYCoordListToAbsoluteYCoordList(list, 50);
        EXPECT_EQ(textOf(list), flip ? "-49 -147 " : "51 53 ");
    }
}

} // namespace
