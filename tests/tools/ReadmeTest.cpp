// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

class ReadmeTest : public ToolTest {};

TEST_F(ReadmeTest, TheProgramThatItShowsPrints) {
    Write("drawing.svg", MakeDrawing("width=\"90\" height=\"45\""));
    const RunResult run = Shell("'" ZAM_README_PATH "'");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Contains(CheckPdf(Read("drawing.pdf")), "72 x 36 pts"));
}
