// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

class ReadmeTest : public ToolTest {};

TEST_F(ReadmeTest, TheProgramThatItShowsPrints) {
    Write("drawing.svg", MakeDrawing("width=\"90\" height=\"45\""));
    const RunResult run = RunProgram(ZAM_README_PATH, {}, {}, "out");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(CheckPdf(Read("drawing.pdf")).find("72 x 36 pts"), std::string::npos);
}
