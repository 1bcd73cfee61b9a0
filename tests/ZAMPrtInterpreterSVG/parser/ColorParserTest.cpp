// SPDX-License-Identifier: MIT
#include "framework/base/ZAMRef.h"
#include "ZAMPrtInterpreterSVG/parser/SVG_ColorKeywordTab.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGColorParser.h"

#include <gtest/gtest.h>
#include <string>

namespace {

// The colour that a text gives, or "-"; and what is left of the text.
std::string Read(const std::string& text) {
    const auto table = ZAMNew<ZAMPrtColourTable>();
    ZAMPrintSVGColorParser parser;
    EXPECT_EQ(parser.SetColorTable(table.Get()), 1);
    ZAMUnicodeString rest{std::string_view(text)};
    unsigned int index = 99;
    const int result = parser.ParseColorString(rest, index);
    const std::string left = " | " + std::string(rest.View());
    if (result != 1) {
        EXPECT_EQ(result, -1) << text;
        EXPECT_EQ(index, 99U) << text;
        EXPECT_TRUE(table->GetColours().empty()) << text;
        return "-" + left;
    }
    const ZAMPrtColourTable::Colour& colour = *table->GetColour(index);
    return std::to_string(colour.red) + ' ' + std::to_string(colour.green) + ' ' + std::to_string(colour.blue) + left;
}

TEST(ColorParser, ValuesAndWhatIsLeft) {
    const char* const rows[][2] = {
        {"#abc", "170 187 204 | aabbcc"},
        {"#ff8000", "255 128 0 | ff8000"},
        {"#FfA00a", "255 160 10 | FfA00a"},
        {" # f f 0 0 0 0 ", "255 0 0 | ff0000"},
        {"#abcd", "- | abcd"},
        {"#ab", "- | ab"},
        {"#", "- | "},
        {"#blue", "- | blue"},
        {"#orange", "- | orange"},
        {"#12345g", "- | 12345g"},
        {"#+10000", "- | +10000"},
        {"red#", "- | red#"},
        {"rgb(1, 2, 3)", "1 2 3 | 3)"},
        {"(0,0,255)", "0 0 255 | 255)"},
        {"rgb(300,256,-1)", "44 0 255 | -1)"},
        {"rgb(+1,\t2,03)", "1 2 3 | 03)"},
        {"rgb(4294967297,0,0)", "1 0 0 | 0)"},
        {"rgb(1,2,3)trailing", "1 2 3 | 3)trailing"},
        {"rgb(1,2,3,4)", "- | 3,4)"},
        {"rgb(1,2,3", "- | 3"},
        {"rgb(1,2)", "- | 2)"},
        {"rgb()", "- | )"},
        {"rgb(12.5,0,0)", "- | 0,0)"},
        {"rgb(1px,0,0)", "- | 0,0)"},
        {"rgb(0x1,0,0)", "- | 0,0)"},
        {"rgb(,red", "- | red"},
        {"rgb(50%,50%,50%)", "127 127 127 | 50%)"},
        {"rgb(100%,120%,0%)", "255 50 0 | 0%)"},
        {"rgb(100%;0%x100%)", "255 0 255 | 100%)"},
        {"rgb(10%20%30%)", "25 0 0 | 0%)"}, // the character behind the sign goes with it
        {"rgb(12.5%,0%,0%)", "- | 0%,0%)"},
        {"rgb(10%,20,30)", "- | 20,30)"},
        {"rgb(10,20,30%)", "- | "},  // one sign makes all of them percentages: red is "10,20,30"
        {"rgb(%1,2,3)", "- | 2,3)"}, // but not the first character
        {"RGB(1,2,3)", "- | RGB(1,2,3)"},
        {"rgba(1,2,3,4)", "- | a(1,2,3,4)"},
        {"rgbred", "255 0 0 | red"},
        {"rgb", "- | "},
        {"red", "255 0 0 | red"},
        {"L i g h t Y e l l o w", "255 255 224 | LightYellow"},
        {"dar\u212Aorange", "255 140 0 | dar\u212Aorange"}, // the Kelvin sign is a capital k
        {"red\t", "- | red\t"},
        {" ", "- | "},
        {"none", "- | none"},
        {"currentColor", "- | currentColor"},
        {"inherit", "- | inherit"},
        {"transparent", "- | transparent"},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(Read(text), expected) << text;
    }
}

TEST(ColorParser, FailsWithoutTextOrTable) {
    ZAMPrintSVGColorParser parser;
    ZAMUnicodeString text("red");
    unsigned int index = 99;
    EXPECT_EQ(parser.ParseColorString(text, index), -1);
    const auto table = ZAMNew<ZAMPrtColourTable>();
    parser.SetColorTable(table.Get());
    text = ZAMUnicodeString();
    EXPECT_EQ(parser.ParseColorString(text, index), -1);
    EXPECT_EQ(index, 99U);
}

TEST(ColorParser, AddsEachColourOnce) {
    const auto table = ZAMNew<ZAMPrtColourTable>();
    ZAMPrintSVGColorParser parser;
    parser.SetColorTable(table.Get());
    unsigned int index = 0;
    for (const char* const red : {"blue", "red", "#f00", "#ff0000", "rgb(255,0,0)", "rgb(100%,0%,0%)", "RED"}) {
        ZAMUnicodeString text(red);
        EXPECT_EQ(parser.ParseColorString(text, index), 1) << red;
    }
    EXPECT_EQ(index, 1U);
    EXPECT_EQ(table->GetColours().size(), 2U);
}

TEST(ColorParser, KeywordTable) {
    std::string_view before;
    for (const ZAMPrintSVGColorKeyword& keyword : SVG_ColorKeywordTab) {
        EXPECT_TRUE(before < keyword.name || before == "grey") << keyword.name; // "green" comes after both greys
        before = keyword.name;
    }
    EXPECT_EQ(Read("aliceblue"), "240 248 255 | aliceblue");
    EXPECT_EQ(Read("yellowgreen"), "154 205 50 | yellowgreen");
    EXPECT_EQ(Read("darkslategrey"), "47 79 79 | darkslategrey");
}

} // namespace
