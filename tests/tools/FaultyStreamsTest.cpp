// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

// Streams that fail in the middle, for every format.
class FaultyStreamsTest : public ToolTest {
protected:
    static constexpr const char* kFormats[] = {"pdf", "ps", "eps", "svg", "png", "json"};

    // So many shapes that no output of them fits into a buffer.
    static std::string MakeLarge() {
        std::string document = R"(<svg width="900" height="900">)";
        for (int i = 0; i < 9000; ++i) {
            const auto number = [i](int factor) { return std::to_string(i * factor % 89989 / 100.0); };
            document += "<path stroke=\"#" + std::to_string(100000 + i * 17) + "\" d=\"M" + number(7919) + " " +
                        number(104729) + "L" + number(49999) + " " + number(27644) + "\"/>";
        }
        return document + "</svg>";
    }
};

// A disk that fills up while an output is written leaves what was there before.
TEST_F(FaultyStreamsTest, AFullDiskLeavesTheOutputBefore) {
    Write("in.svg", MakeLarge());
    for (const std::string format : kFormats) {
        SCOPED_TRACE(format);
        Write("out", "before");
        // Without the signal that it sends a write that is too long is an error.
        const RunResult run = Shell("trap '' XFSZ; ulimit -f 16; $Z -f " + format + " in.svg -o out");
        EXPECT_EQ(run.status, 1);
        // Cairo collects PostScript in a temporary file, which is too long first.
        EXPECT_EQ(run.err, format == "ps" || format == "eps"
                               ? "zamprint: in.svg: cannot draw: error while writing to output stream\n"
                               : "zamprint: out: File too large\n");
        EXPECT_EQ(Read("out"), "before");
        EXPECT_EQ(List(), (Arguments{"in.svg", "out"}));
        EXPECT_EQ(Shell("$Z -f " + format + " in.svg >/dev/full").err,
                  "zamprint: standard output: No space left on device\n");
    }
}

TEST_F(FaultyStreamsTest, AReaderThatGoesAwayInTheMiddleIsAnError) {
    Write("in.svg", MakeLarge());
    for (const std::string format : kFormats) {
        const RunResult run = Shell("{ $Z -f " + format + " in.svg; echo $? >&2; } | head -c 9 >got");
        EXPECT_EQ(run.err, "zamprint: standard output: Broken pipe\n1\n") << format;
        EXPECT_EQ(Read("got").size(), 9U);
    }
}

TEST_F(FaultyStreamsTest, AnInputThatDoesNotWaitIsWaitedFor) {
    Write("in.svg", MakeLarge());
    const RunResult run =
        Shell("{ sleep 0.2; cat in.svg; } | { python3 -c 'import os; os.set_blocking(0, False)'; $Z -o out; }");
    EXPECT_EQ(run.status, 0) << run.err;
}

TEST_F(FaultyStreamsTest, WhatCannotBeReadToItsEndIsAnError) {
    for (const std::string format : kFormats) {
        // A folder can be opened, but not read.
        const RunResult run = Shell("$Z -f " + format + " -o out <.");
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.err, "zamprint: standard input: Is a directory\n");
        EXPECT_TRUE(List().empty());
    }
    // A writer that dies has written an end.
    EXPECT_EQ(Shell("{ echo '<svg><g>'; kill -9 $BASHPID; } | $Z -o out").status, 1);
    EXPECT_TRUE(List().empty());
}

TEST_F(FaultyStreamsTest, SignalsLeaveNothingBehind) {
    Write("in.svg", MakeLarge());
    const struct {
        const char* name;
        int status;
    } rows[] = {{"HUP", 129}, {"INT", 130}, {"TERM", 143}};
    for (const auto& row : rows) {
        for (const std::string format : kFormats) {
            SCOPED_TRACE(row.name + format);
            // The input ends long after the signal, so that there is an output under way for certain.
            const RunResult run = Shell("mkfifo pipe; { cat in.svg; sleep 9; } >pipe & sleeper=$!; "
                                        "env --default-signal=INT $Z -f " +
                                        format +
                                        " -o out pipe & tool=$!; "
                                        "until ls -A | grep -q '^[.]zamprint'; do sleep 0.01; done; kill -" +
                                        row.name + " $tool; wait $tool; echo $?; kill $sleeper; rm pipe");
            EXPECT_EQ(run.out, std::to_string(row.status) + "\n");
            EXPECT_EQ(List(), Arguments{"in.svg"});
        }
    }
}
