// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

class SeveralInputsTest : public ToolTest {
protected:
    /// a.svg of 90 x 45 units, c.svg of 180 x 90, and in b.svg nothing that can be read.
    void SetUp() override {
        Write("a.svg", MakeDrawing("width=\"90\" height=\"45\""));
        Write("b.svg", "<svg><g></svg>");
        Write("c.svg", MakeDrawing("width=\"180\" height=\"90\""));
    }
};

TEST_F(SeveralInputsTest, BecomeThePagesOfOneOutput) {
    const RunResult run = Run({"a.svg", "b.svg", "-", "c.svg", "-o", "all.pdf", "--title", "T", "--author", "A B"},
                              MakeDrawing("width=\"9\" height=\"9\""));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "zamprint: b.svg:1:11: mismatched tag\n") << "and the others are printed";
    const std::string info = CheckPdf(Read("all.pdf"));
    for (const char* line : {"Title:           T\n", "Author:          A B\n", "Pages:           3\n",
                             "Page    1 size:  72 x 36 pts", "Page    3 size:  144 x 72 pts"}) {
        EXPECT_TRUE(Contains(info, line)) << line << "\n" << info;
    }
    EXPECT_EQ(Run({"a.svg", "c.svg", "-f", "ps"}).status, 0);
    EXPECT_EQ(Run({"b.svg", "none.svg", "-o", "none.pdf"}).status, 1);
    EXPECT_EQ(List(), (Arguments{"a.svg", "all.pdf", "b.svg", "c.svg"}));
}

TEST_F(SeveralInputsTest, HaveOutputsOfTheirOwn) {
    for (const char* jobs : {"1", "2", "9"}) {
        const std::string folder = std::string("out") + jobs;
        const RunResult run = Run({"a.svg", "b.svg", "c.svg", "--output-dir", folder, "-j", jobs, "-f", "png"});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.err, "zamprint: b.svg:1:11: mismatched tag\n");
        EXPECT_EQ(List(folder), (Arguments{"a.png", "c.png"}));
        EXPECT_EQ(Picture(Read(folder + "/c.png")).width, 180U);
    }
    EXPECT_EQ(Run({"a.svg", "c.svg", "--output-dir", "a.svg/x"}).status, 1) << "no folder";
    std::filesystem::create_directory("more");
    Write("more/a.svg", MakeDrawing("width=\"1\" height=\"1\""));
    const struct {
        Arguments arguments;
        std::string complaint;
    } rows[] = {
        {{"a.svg", "more/a.svg", "--output-dir", "x"}, "another input"},
        {{"a.svg", "--output-dir", ".", "-f", "svg"}, "replace the input"},
        {{"a.svg", "--output-dir", "x", "-o", "y.pdf"}, "where to write"},
        {{"a.svg", "c.svg", "-f", "png"}, "--output-dir"},
        {{"a.svg", "c.svg", "-o", "x.svg"}, "--output-dir"},
        {{"a.svg", "-", "-"}, "only once"},
    };
    for (const auto& row : rows) {
        const RunResult run = Run(row.arguments);
        EXPECT_EQ(run.status, 2) << row.complaint;
        EXPECT_TRUE(Contains(run.err, row.complaint)) << run.err;
    }
}

TEST_F(SeveralInputsTest, ShowHowFarTheyAre) {
    const RunResult shown = Run({"a.svg", "b.svg", "c.svg", "-o", "x.pdf", "--progress", "always"});
    EXPECT_TRUE(Contains(shown.err, "\r\033[K[##########                    ] 1/3 a.svg")) << shown.err;
    EXPECT_TRUE(Contains(shown.err, "\r\033[Kzamprint: b.svg:")) << "a message has a line of its own";
    EXPECT_TRUE(shown.err.ends_with("] 3/3 c.svg\r\033[K")) << shown.err;
    EXPECT_EQ(Run({"a.svg", "c.svg", "-o", "x.pdf"}).err, "") << "this is no terminal";
    EXPECT_EQ(Run({"a.svg", "c.svg", "-o", "x.pdf", "--progress", "always", "-q"}).err, "");
}

TEST_F(SeveralInputsTest, AreTheSameBytesTwice) {
    const std::string print = "for f in pdf ps eps svg png json; do SOURCE_DATE_EPOCH=1 $Z a.svg -o ";
    EXPECT_EQ(Shell(print + "1.$f; done; sleep 1; " + print + "2.$f && cmp 1.$f 2.$f || echo $f differs; done").out,
              "");
    EXPECT_EQ(List().size(), 15U);
}

// What is killed leaves no unfinished output, and no processes that go on.
TEST_F(SeveralInputsTest, EndWithASignal) {
    const RunResult run =
        Shell("until_it() { for i in $(seq 100); do eval \"$1\" && return; sleep 0.05; done; }\n"
              "mkfifo d.svg e.svg; ($Z a.svg d.svg e.svg --output-dir out -j 2 & echo $! >pid; wait) & "
              "until_it '[ \"$(ls -A out 2>/dev/null | wc -l)\" = 3 ]'; "
              "children=$(cat /proc/$(cat pid)/task/*/children); kill $(cat pid); "
              "until_it '! ls -A out | grep -q zamprint'; "
              "for child in $children; do until_it \"! grep -s '^State:' /proc/$child/status | grep -qv Z\" || "
              "echo $child lives; done; echo $children | wc -w");
    EXPECT_EQ(run.out, "2\n") << "two processes were at work";
    EXPECT_EQ(List("out"), Arguments{"a.pdf"});
}
