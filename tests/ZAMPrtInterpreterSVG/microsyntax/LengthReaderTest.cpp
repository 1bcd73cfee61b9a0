// SPDX-License-Identifier: MIT
#include "tests/support/PieceText.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGLengthReader.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGViewBoxParser.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double kPreset = 7.0;

TEST(LengthReader, GeneralLengths) {
    const ZAMPrintSVGLengthReader reader(300.0, 400.0, true);
    struct Row {
        const char* text;
        int status;
        double value;
    };
    const Row rows[] = {
        {"10", 1, 10.0},
        {"10px", 1, 10.0},
        {"10em", 1, 10.0},
        {"-.5", 1, -0.5},
        {"+5", 1, 5.0},
        {"5.", 1, 5.0},
        {"\t\n 12 34", 1, 12.0},
        {"1in", 1, 89.9999978},
        {"72pt", 1, 89.9999978},
        {"1pc", 1, 1.0 * 12.0 / 72.0 * 89.9999978},
        {"1cm", 1, 35.43307},
        {"10mm", 1, 10 * 3.543307},
        {" 5mm", 1, 5 * 3.543307},
        {"5 mm", 1, 5 * 3.543307},
        {"1e1in", 1, 10 * 89.9999978},
        {"1MM", 1, 1.0},
        {"mm5", 1, 5 * 3.543307},       // a unit counts wherever it stands
        {"1mm2mm", 1, 12 * 3.543307},   // and goes everywhere
        {"1cm2mm", 1, 12.0 * 35.43307}, // the first of the order; the other ends the number
        {"2mm1pt", 1, 2.0 / 72.0 * 89.9999978},
        {"5%", 1, 17.677669529663689}, // of the normalised diagonal
        {"5%mm", 1, 5 * 3.543307},     // a unit goes before the percentage
        {"50%%", 1, 176.77669529663689},
        {"1e400", 1, std::numeric_limits<double>::infinity()},
        {"0x10", 1, 16.0},
        {"", -1, kPreset},
        {"abc", 0, kPreset},
        {"pt", -1, kPreset}, // nothing is left to convert
        {"inf", 0, kPreset}, // "in" is a unit
        {"%", -1, kPreset},
        {"xmm", 0, kPreset},
        {"-", 0, kPreset},
    };
    for (const Row& row : rows) {
        double value = kPreset;
        EXPECT_EQ(reader.GetLength(row.text, value), row.status) << row.text;
        EXPECT_DOUBLE_EQ(value, row.value) << row.text;
        double coordinate = kPreset;
        EXPECT_EQ(reader.GetCoordinate(row.text, coordinate), row.status) << row.text;
        EXPECT_EQ(coordinate, value) << row.text;
    }
}

TEST(LengthReader, DirectedLengthsAndFlips) {
    ZAMPrintSVGLengthReader reader;
    EXPECT_EQ(reader.SetImageSize(300.0, 400.0), 1);
    struct Row {
        const char* text;
        int status;
        double horizontal;
        double vertical;
    };
    const Row rows[] = {
        {"10", 1, 10.0, 10.0},
        {"50%", 1, 150.0, 200.0},
        {"-25%", 1, -75.0, -100.0},
        {"5%mm", 1, 15.0, 20.0},                 // here the percent sign goes before a unit
        {"mm%5", 1, 5 * 3.543307, 5 * 3.543307}, // but only where a number is left
        {"1in", 1, 89.9999978, 89.9999978},
        {"%", -1, kPreset, kPreset},
        {"x%", 0, kPreset, kPreset},
        {"", -1, kPreset, kPreset},
    };
    for (const Row& row : rows) {
        double value[] = {kPreset, kPreset, kPreset, kPreset, kPreset};
        EXPECT_EQ(reader.GetHorLength(row.text, value[0]), row.status) << row.text;
        EXPECT_EQ(reader.GetXCoordinate(row.text, value[1]), row.status) << row.text;
        EXPECT_EQ(reader.GetVertLength(row.text, value[2]), row.status) << row.text;
        EXPECT_EQ(reader.GetYCoordinate(row.text, value[3]), row.status) << row.text;
        EXPECT_DOUBLE_EQ(value[0], row.horizontal) << row.text;
        EXPECT_EQ(value[1], value[0]) << row.text;
        EXPECT_DOUBLE_EQ(value[2], row.vertical) << row.text;
        EXPECT_EQ(value[3], 400.0 - value[2]) << row.text; // also where nothing was read
        reader._FlipY = false;
        reader.GetYCoordinate(row.text, value[4]);
        EXPECT_EQ(value[4], value[2]) << row.text;
        reader._FlipY = true;
    }
}

TEST(LengthReader, BareNumbers) {
    double value = kPreset;
    EXPECT_EQ(ZAMPrintSVGLengthReader::GetNumber("5mm", value), 1);
    EXPECT_EQ(value, 5.0);
    EXPECT_EQ(ZAMPrintSVGLengthReader::GetNumber("mm5", value), 0);
    EXPECT_EQ(ZAMPrintSVGLengthReader::GetNumber("", value), -1);
    EXPECT_EQ(value, 5.0);
}

TEST(ViewBoxParser, ReadsFourValuesSetApartByBlanks) {
    const char* const rows[][2] = {
        {"0 0 100 50", "0,0,100,50"},
        {"   10 20 30 40", "10,20,30,40"},
        {"10  20   30 40 ", "10,20,30,40"},
        {"1e2 -5 2.5E1 7", "100,-5,25,7"},
        {"10 20 30 40 50 60", "10,20,30,40"},
        {"0,0,100,50", "1,2,3,0"},
        {"10\t20\t30\t40", "1,2,3,10"},
        {"10 20 30", "10,20,3,30"},
        {"10 20 30 ", "10,20,30,4"},
        {"10", "1,2,3,10"},
        {"a 20 b 40", "1,20,3,40"},
        {"0 0 10, 20mm", "0,0,10,20"},
        {"   ", "1,2,3,4"},
        {"x", "1,2,3,4"},
    };
    for (const auto& [text, expected] : rows) {
        double x = 1.0;
        double y = 2.0;
        double width = 3.0;
        double height = 4.0;
        EXPECT_EQ(ZAMPrintSVGViewBoxParser::ParseViewBoxString(text, x, y, width, height), 1) << text;
        EXPECT_EQ(NumberText({x, y, width, height}), expected) << text;
    }
    double value = kPreset;
    EXPECT_EQ(ZAMPrintSVGViewBoxParser::ParseViewBoxString("", value, value, value, value), -1);
    EXPECT_EQ(value, kPreset);
}

} // namespace
