// SPDX-License-Identifier: MIT
#include "tests/support/PieceText.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTransformParser.h"

#include <gtest/gtest.h>

namespace {

std::string Read(const ZAMPrintSVGTransformParser& parser, std::string_view text) {
    const auto group = ZAMNew<ZAMPrtGroupElt>();
    EXPECT_EQ(parser.ParseTransformString(text, group.Get()), 1) << text;
    const ZAMMathAffine2D& m = group->GetTransformAttributes().GetMatrix();
    return NumberText({m.a, m.b, m.c, m.d, m.e, m.f});
}

TEST(TransformParser, FunctionsWithoutFlip) {
    ZAMPrintSVGTransformParser parser;
    EXPECT_EQ(parser.SetImageSize(200.0, 100.0), 1);
    parser._FlipY = false;
    const char* const identity = "1,0,0,1,0,0";
    const char* const rows[][2] = {
        {"translate(10,20)", "1,0,0,1,10,20"},
        {"translate(10)", "1,0,0,1,10,0"},
        {"translate( 10 , 20 , 30)", "1,0,0,1,10,20"},
        {"translate(10-5)", "1,0,0,1,10,0"},
        {"translate(a 5)", "1,0,0,1,5,0"},
        {"translate(5mm 10%)", "1,0,0,1,5,10"},
        {"translate(10\t20)", "1,0,0,1,10,0"},
        {"translate()", identity},
        {"translate (5)", identity},
        {"scale(2)", "2,0,0,2,0,0"},
        {"scale(2 3 4)", "2,0,0,3,0,0"},
        {"scale()", identity},
        {"scale(a)", identity},
        {"scale( )", identity},
        {"scale(0)", "0,0,0,0,0,0"},
        {"matrix(1 2 3 4 5 6 7)", "1,2,3,4,5,6"},
        {"matrix(2)", "2,0,0,1,0,0"},
        {"matrix(1 2 3)", "1,2,3,1,0,0"},
        {"translate(10,20) scale(2)", "2,0,0,2,10,20"},
        {"scale(2)translate(10,20)", "2,0,0,2,20,40"},
        {"scale(2),translate(10,20)", "2,0,0,2,20,40"},
        {"  translate(1 1)  ", "1,0,0,1,1,1"},
        {"nonsense(5) translate(1 1) other(3)", "1,0,0,1,1,1"},
        {"skewX(45)", "1,0,1,1,0,0"},
        {"skewY(45)", "1,1,0,1,0,0"},
        {"skewX(a)", identity},
        {"skewX(0, 45)", identity},
        {"skewx(45)", "1,0,1,1,0,0"}, // a list without a keyword in its own spelling is one item
        {"SCALE(2)", "2,0,0,2,0,0"},
        {"SCALE(2) Scale(3)", "2,0,0,2,0,0"},
        {"SCALE(2) scale(3)", "3,0,0,3,0,0"}, // what stands before the first keyword is thrown away
        {"scale(3) SCALE(2)", "3,0,0,3,0,0"},
        {";Scale(3);SCALE(2)", "6,0,0,6,0,0"},
        {";;scale(3);", "3,0,0,3,0,0"},
        {" Scale(3)", identity},
        {"\u017Fcale(3)", "3,0,0,3,0,0"},
        {"rotatescale(2)", "2,0,0,2,0,0"},
        {"scale(2", identity},
        {"scale 2)", identity},
        {"scale)2(3)", identity},
        {"scale(2 translate(5 6)", "1,0,0,1,5,6"},
        {"scale(2(3))", "2,0,0,2,0,0"},
        {"rotate()", identity},
        {"rotate(x)", identity},
        {"rotate(90)", "-4.37114e-08,1,-1,-4.37114e-08,0,0"}, // the angle goes through single precision
        {"rotate(90 50 50)", "-4.37114e-08,1,-1,-4.37114e-08,100,2.18557e-06"},
        {"rotate(0 10 20)", identity},
        {"rotate(30 50)", "0.866025,0.5,-0.5,0.866025,0,0"},
        {";", identity},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(Read(parser, text), expected) << text;
    }
}

TEST(TransformParser, FlipWrapsTheWholeList) {
    ZAMPrintSVGTransformParser parser;
    parser.SetImageSize(200.0, 100.0);
    const char* const rows[][2] = {
        {"translate(10,20)", "1,0,0,1,10,-20"},
        {"scale(2)", "2,0,0,2,0,-100"}, // the upper edge stays where it is
        {"translate(10,20) scale(2)", "2,0,0,2,10,-120"},
        {"rotate(30)", "0.866025,-0.5,0.5,0.866025,-50,13.3975"},
        {"matrix(1 2 3 4 5 6)", "1,-2,-3,4,305,-306"},
        {"nonsense", "1,0,0,1,0,0"},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(Read(parser, text), expected) << text;
    }
}

TEST(TransformParser, AddsToWhatTheElementHas) {
    ZAMPrintSVGTransformParser parser;
    parser._FlipY = false;
    const auto rect = ZAMNew<ZAMPrtRectangleElt>();
    parser.ParseTransformString("translate(5 6)", rect.Get());
    parser.ParseTransformString("scale(2)", rect.Get());
    const ZAMMathAffine2D expected{2.0, 0.0, 0.0, 2.0, 5.0, 6.0};
    EXPECT_EQ(rect->GetTransformAttributes().GetMatrix(), expected);
    EXPECT_EQ(parser.ParseTransformString("", rect.Get()), -1);
    EXPECT_EQ(parser.ParseTransformString("scale(2)", nullptr), -1);
    EXPECT_EQ(rect->GetTransformAttributes().GetMatrix(), expected);
    const auto image = ZAMNew<ZAMPrtImageElt>(); // bears no transform
    EXPECT_EQ(parser.ParseTransformString("scale(2)", image.Get()), 1);
    EXPECT_TRUE(image->GetTransformAttributes().IsIdentity());
}

} // namespace
