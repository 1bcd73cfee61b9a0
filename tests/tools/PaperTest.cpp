// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

class PaperTest : public ToolTest {};

TEST_F(PaperTest, HasTheSizeThatItsNameSays) {
    const struct {
        Arguments options;
        std::string size;
    } rows[] = {
        {{"A4"}, "595.276 x 841.89 pts (A4)"},  {{"a4", "--landscape"}, "841.89 x 595.276 pts (A4)"},
        {{"letter"}, "612 x 792 pts (letter)"}, {{"Legal"}, "612 x 1008 pts"},
        {{"100x50"}, "100 x 50 pts"},           {{"100x50", "--landscape"}, "100 x 50 pts"},
        {{"2x3in"}, "144 x 216 pts"},           {{"1cmx1IN"}, "28.3465 x 72 pts"},
        {{"document"}, "80 x 40 pts"},
    };
    for (const auto& row : rows) {
        Arguments arguments = {"--page-size"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        const RunResult run = Run(arguments, MakeDrawing("width=\"100\" height=\"50\""));
        EXPECT_TRUE(Contains(CheckPdf(run.out), row.size)) << row.size << run.err;
    }
}

// A drawing of 90 x 45 pixels on a paper of 180 x 180.
TEST_F(PaperTest, HoldsTheDrawingWhereItIsWanted) {
    const struct {
        Arguments options;
        unsigned width; ///< of the drawing, in pixels
        unsigned height;
    } rows[] = {
        {{}, 90, 45},
        {{"--scale", "1.5"}, 135, 68},
        {{"-z", "3"}, 180, 90},
        {{"-z", "3", "--margin", "0.5in"}, 90, 45},
        {{"--fit", "none", "-z", "3"}, 180, 135},
        {{"--fit", "page"}, 180, 90},
        {{"--fit", "page", "--margin", "5.08mm"}, 144, 72},
    };
    for (const auto& row : rows) {
        Arguments arguments = {"-f", "png", "--page-size", "2x2in"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        const Picture picture(Run(arguments, MakeDrawing("width=\"90\" height=\"45\"")).out);
        ASSERT_EQ(std::pair(picture.width, picture.height), std::pair(180U, 180U));
        unsigned width = 0;
        unsigned height = 0;
        for (unsigned i = 0; i < 180; ++i) {
            width += picture.At(i, 90) == "ff0000ff" ? 1U : 0U;
            height += picture.At(90, i) == "ff0000ff" ? 1U : 0U;
        }
        EXPECT_NEAR(width, row.width, 2) << testing::PrintToString(row.options);
        EXPECT_NEAR(height, row.height, 2) << testing::PrintToString(row.options);
    }
    EXPECT_EQ(Picture(Run({"-f", "png", "-z", "2"}, MakeDrawing("width=\"90\" height=\"45\"")).out).width, 180U)
        << "without a paper the page grows";
}
