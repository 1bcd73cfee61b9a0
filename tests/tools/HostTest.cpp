// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

class HostTest : public ToolTest {};

TEST_F(HostTest, TheExampleHostOutlinesTheModel) {
    Write("a.svg", "<svg width=\"9\" height=\"9\"><g id=\"both\"><rect id=\"r\" width=\"5\" height=\"5\" fill=\"red\"/>"
                   "<circle r=\"2\" fill=\"red\"/></g></svg>");
    const RunResult run = Shell("$H a.svg");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "ZAMPrtImageElt (1 child)\n"
                       "  ZAMPrtGroupElt #both (2 children)\n"
                       "    ZAMPrtRectangleElt #r\n"
                       "    ZAMPrtCircleElt\n");
    EXPECT_EQ(Shell("$H missing.svg").status, 1);
}
