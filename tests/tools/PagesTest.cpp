// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <cstdlib>

class PagesTest : public ToolTest {};

TEST_F(PagesTest, PicturesHaveTheSizeAskedFor) {
    const std::string plain = MakeDrawing("width=\"200\" height=\"100\"");
    const struct {
        std::string drawing;
        Arguments options;
        unsigned width;
        unsigned height;
    } rows[] = {
        {plain, {}, 200, 100},
        {plain, {"-d", "180"}, 400, 200},
        {plain, {"-d", "72"}, 160, 80},
        {plain, {"-w", "333"}, 333, 167},
        {plain, {"-w", "333", "-d", "300"}, 333, 167},
        {plain, {"-h", "25"}, 50, 25},
        {plain, {"-w", "60", "-h", "60"}, 60, 60},
        {MakeDrawing("width=\"25.4mm\" height=\"2in\""), {"-d", "300"}, 300, 600},
        {MakeDrawing("width=\"1in\" viewBox=\"0 0 30 60\""), {}, 90, 180},
        {MakeDrawing("width=\"100%\" viewBox=\"0 0 30 60\""), {}, 30, 60},
        {MakeDrawing("viewBox=\"0 0 30 60\""), {"-w", "10"}, 10, 20},
        // Without any size the content is the page.
        {MakeDrawing(""), {"-w", "50"}, 50, 50},
        {MakeDrawing("width=\"-3\" height=\"4\""), {"-w", "50"}, 50, 50},
        {"<svg/>", {}, 1, 1},
    };
    for (const auto& row : rows) {
        Arguments arguments = {"-f", "png"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        const RunResult run = Run(arguments, row.drawing);
        const Picture picture(run.out);
        EXPECT_EQ(std::pair(picture.width, picture.height), std::pair(row.width, row.height))
            << row.drawing << testing::PrintToString(row.options) << run.err;
    }
}

TEST_F(PagesTest, TheDrawingIsCentredOnItsBackground) {
    const struct {
        Arguments options;
        std::string corner;
    } rows[] = {
        {{}, "00000000"},
        {{"-b", "none"}, "00000000"},
        {{"-b", "transparent"}, "00000000"},
        {{"-b", "#12f"}, "1122ffff"},
        {{"-b", "#ABCDEF"}, "abcdefff"},
        {{"-b", "LightSteelBlue"}, "b0c4deff"},
        {{"-b", "white", "-b", "yellow"}, "ffff00ff"},
    };
    for (const auto& row : rows) {
        Arguments arguments = {"-f", "png", "-w", "60", "-h", "60"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        const Picture picture(Run(arguments, MakeDrawing("width=\"200\" height=\"100\"")).out);
        SCOPED_TRACE(testing::PrintToString(row.options));
        EXPECT_EQ(picture.At(0, 0), row.corner);
        EXPECT_EQ(picture.At(30, 13), row.corner);
        EXPECT_EQ(picture.At(30, 16), "ff0000ff");
        EXPECT_EQ(picture.At(30, 43), "ff0000ff");
        EXPECT_EQ(picture.At(30, 46), row.corner);
    }
}

TEST_F(PagesTest, EachDrawingIsAPageOfItsOwnSize) {
    const std::string book =
        "<book><title> A  short\n book </title><desc>Of\n three pages</desc><svg width=\"90\" height=\"45\"/>"
        "<note/><SVG viewBox=\"0 0 180 90\"/><svg width=\"1in\" height=\"3in\"/></book>";
    const RunResult natural = Run({}, book);
    EXPECT_EQ(natural.status, 0) << natural.err;
    const std::string info = CheckPdf(natural.out);
    for (const char* line :
         {"Title:           A short book\n", "Subject:         Of three pages\n", "Pages:           3\n",
          "Page    1 size:  72 x 36 pts", "Page    2 size:  144 x 72 pts", "Page    3 size:  72 x 216 pts"}) {
        EXPECT_TRUE(Contains(info, line)) << line << "\n" << info;
    }
    const std::string wide = CheckPdf(Run({"-w", "900", "-d", "300"}, book).out);
    EXPECT_TRUE(Contains(wide, "Page    1 size:  720 x 360 pts")) << wide;
    EXPECT_TRUE(Contains(wide, "Page    3 size:  720 x 2160 pts")) << wide;

    const RunResult picture = Run({"-f", "png"}, book);
    EXPECT_EQ(picture.status, 0);
    EXPECT_EQ(Picture(picture.out).width, 90U);
    EXPECT_TRUE(Contains(picture.err, "zamprint: standard input: holds 3 drawings")) << picture.err;
    // Where nobody listens, the message does not end up in the picture.
    EXPECT_EQ(Shell("$Z -f png -o a.png 2>&-", book).status, 0);
    EXPECT_EQ(Read("a.png"), picture.out);
}

TEST_F(PagesTest, APageThatIsTooLargeIsReducedAloud) {
    const RunResult run = Run({}, MakeDrawing("width=\"300in\" height=\"150in\""));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "zamprint: standard input: the page of 300 x 150 in is larger than 200 in and was reduced to "
                       "66.7 %\n");
    EXPECT_TRUE(Contains(CheckPdf(run.out), "size:  14400 x 7200 pts"));
    const RunResult picture = Run({"-f", "png", "-o", "a.png"}, MakeDrawing("width=\"1e6\" height=\"10\""));
    EXPECT_EQ(picture.status, 1);
    EXPECT_TRUE(picture.err.starts_with("zamprint: standard input: ")) << picture.err;
    EXPECT_TRUE(List().empty());
}

TEST_F(PagesTest, SourceDateEpochMakesTheSameBytes) {
    const std::string drawing = MakeDrawing("width=\"30\" height=\"20\"");
    setenv("SOURCE_DATE_EPOCH", "981173106", 1);
    const std::string fixed = Run({}, drawing).out;
    EXPECT_EQ(Run({}, drawing).out, fixed);
    EXPECT_TRUE(Contains(CheckPdf(fixed), "20010203040506")) << CheckPdf(fixed);
    // What is no time is ignored, and the output carries that of printing.
    for (const char* text : {"", "-1", "yesterday", "99999999999999999999", "981173106x"}) {
        setenv("SOURCE_DATE_EPOCH", text, 1);
        const std::string info = CheckPdf(Run({}, drawing).out);
        EXPECT_TRUE(Contains(info, "CreationDate:    D:20")) << text;
        EXPECT_FALSE(Contains(info, "D:2001")) << text;
    }
    unsetenv("SOURCE_DATE_EPOCH");
}
