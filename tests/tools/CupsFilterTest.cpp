// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <algorithm>
#include <sstream>

/// Runs the filter as the scheduler of CUPS does.
class CupsFilterTest : public ToolTest {
protected:
    CupsFilterTest() { setenv("F", ZAM_ZAMSVGTOPDF_PATH, 1); }

    /// Prints a file, or standard input for an empty name.
    RunResult Print(const std::string& file, const std::string& input = {}, const std::string& title = "a job") const {
        return Shell("exec \"$F\" 7 someone '" + title + "' 2 'fit-to-page media=A5' " + file, input);
    }
    /// The lines of standard error but for those that only a log shows.
    static std::string Messages(const std::string& err) {
        std::istringstream lines(err);
        std::string messages;
        for (std::string line; std::getline(lines, line);) {
            messages += line.starts_with("DEBUG: ") ? "" : line + "\n";
        }
        return messages;
    }
    [[nodiscard]] std::string TextOf(const std::string& pdf) const {
        Write("text.pdf", pdf);
        return Shell("pdftotext text.pdf -").out;
    }
};

namespace {

constexpr const char* kDrawing = R"(<svg width="144mm" height="36mm"><text x="20" y="60">Hello queue</text></svg>)";

// Each level draws the one before twice.
std::string MakeBomb() {
    std::string bomb = R"(<svg xmlns:xlink="http://www.w3.org/1999/xlink"><defs><g id="g0"><circle r="1"/></g>)";
    for (int i = 1; i <= 30; ++i) {
        const std::string use = "<use xlink:href='#g" + std::to_string(i - 1) + "'/>";
        bomb.append("<g id='g" + std::to_string(i) + "'>").append(use).append(use).append("</g>");
    }
    return bomb + "</defs><use xlink:href='#g30'/></svg>";
}

} // namespace

TEST_F(CupsFilterTest, PrintsFilesAndStandardInputPlainAndCompressed) {
    setenv("SOURCE_DATE_EPOCH", "1000000000", 1);
    Write("a.svg", kDrawing);
    const RunResult printed = Print("a.svg");
    EXPECT_EQ(printed.status, 0);
    EXPECT_EQ(Messages(printed.err), "");
    // The size is the drawing's: the options of the job are for the filters that follow.
    const std::string information = CheckPdf(printed.out);
    EXPECT_TRUE(Contains(information, "size:  408.189 x 102.047 pts")) << information;
    EXPECT_TRUE(Contains(TextOf(printed.out), "Hello queue"));

    const std::string compressed = Shell("gzip -c a.svg").out;
    Write("a.svgz", compressed);
    EXPECT_EQ(Print("a.svgz").out, printed.out);
    EXPECT_EQ(Print("", kDrawing).out, printed.out);
    EXPECT_EQ(Print("", compressed).out, printed.out);
    unsetenv("SOURCE_DATE_EPOCH");
}

TEST_F(CupsFilterTest, EachDrawingIsAPageAndTheTitleIsTheDocumentsElseTheJobs) {
    const std::string two = std::string("<all>") + kDrawing +
                            R"(<svg width="90" height="180"><rect width="9" height="9"/>)"
                            "</svg></all>";
    const std::string pages = CheckPdf(Print("", two, "two of them").out);
    EXPECT_TRUE(Contains(pages, "Page    1 size:  408.189 x 102.047 pts")) << pages;
    EXPECT_TRUE(Contains(pages, "Page    2 size:  72 x 144 pts")) << pages;
    EXPECT_TRUE(Contains(pages, "two of them")) << pages;
    const std::string titled =
        CheckPdf(Print("", R"(<svg><title>Its own</title><rect width="9" height="9"/></svg>)").out);
    EXPECT_TRUE(Contains(titled, "Its own") && !Contains(titled, "a job")) << titled;
}

TEST_F(CupsFilterTest, WhatCannotBePrintedIsOneErrorAndNoOutput) {
    const struct {
        std::string content;
        std::string message;
    } rows[] = {
        {"", "ERROR: a job:1:1: no element found\n"},
        {"<svg>\n<g></svg>", "ERROR: a job:2:6: mismatched tag\n"},
        {std::string(kDrawing) + "<", "ERROR: a job:1:"},
        {"<html><body><svg/></body></html>", "ERROR: a job: holds no svg element\n"},
        {R"(<svg width="90" height="90"><g/></svg>)", "ERROR: a job: has nothing that can be drawn"},
        {"\x1F\x8B\x08 no more than that", "ERROR: a job: the compressed data"},
        {MakeBomb(), "ERROR: a job: reuses too many elements\n"},
    };
    for (const auto& row : rows) {
        Write("d00007-001", row.content);
        for (const RunResult& result : {Print("d00007-001"), Print("", row.content)}) {
            EXPECT_EQ(result.status, 1);
            EXPECT_EQ(result.out, "");
            EXPECT_TRUE(result.err.starts_with(row.message)) << result.err;
            EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
        }
    }
    EXPECT_EQ(Print("missing").err, "ERROR: a job: No such file or directory\n");
    EXPECT_TRUE(Shell("\"$F\" 7 someone title 1").err.starts_with("ERROR: usage"));
    EXPECT_EQ(Print(">/dev/full", kDrawing).err, "ERROR: standard output: No space left on device\n");
    EXPECT_EQ(Print(">/dev/full", kDrawing).status, 1);
}

// Else the scheduler may lose the reason: it looks for it until the filter has ended.
TEST_F(CupsFilterTest, StaysUntilItsErrorWasRead) {
    const RunResult result = Shell("exec bash -c '"
                                   "{ \"$F\" 7 someone title 1 \"\" missing; touch ended; } 2> >(sleep 0.4; "
                                   "[[ -e ended ]] && echo early; cat) | cat; wait'");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, "ERROR: title: No such file or directory\n");
}

TEST_F(CupsFilterTest, ReadsNoPictureFiles) {
    const std::string picture = std::string(ZAM_SOURCE_DIR) + "/docs/images/map.png";
    std::filesystem::copy_file(picture, "map.png");
    const std::string named = R"(<svg xmlns:xlink="http://www.w3.org/1999/xlink" width="90" height="90">
<image width="90" height="90" xlink:href="map.png"/><image width="90" height="90" xlink:href="file://)" +
                              picture +
                              R"("/><pattern id="p" width="9" height="9" patternUnits="userSpaceOnUse">
<image width="9" height="9" xlink:href="map.png"/></pattern><rect width="30" height="30" fill='url(#p)'/>
<text x="10" y="50">seen</text></svg>)";
    Write("a.svg", named);
    const RunResult result = Print("a.svg");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(Contains(TextOf(result.out), "seen"));
    EXPECT_FALSE(Contains(Shell("pdfimages -list text.pdf").out, "image"));
    // The tool, which may read them, shows that they could be read.
    EXPECT_TRUE(Contains(Shell("\"$Z\" a.svg -o all.pdf && pdfimages -list all.pdf").out, "image"));
}

TEST_F(CupsFilterTest, EndsAtOnceWhenTheJobIsCancelled) {
    std::filesystem::create_directory("spool");
    std::string large = "<svg width='900' height='900'>";
    for (int i = 0; i < 200000; ++i) {
        large += "<path d='M" + std::to_string(i % 900) + " 0 C 1 2 3 4 500 600' stroke='red' fill='url(#none)'/>";
    }
    Write("large.svg", large + "</svg>");
    const struct {
        std::string source;
        std::string delay;
    } rows[] = {{"<(sleep 20)", "0.3"}, {"<large.svg", "0.05"}, {"<large.svg", "0.4"}};
    for (const auto& row : rows) {
        const RunResult result = Shell("exec bash -c 'TMPDIR=$PWD/spool \"$F\" 7 someone title 1 \"\" " + row.source +
                                       " & sleep " + row.delay + "; kill -TERM $!; wait $!'");
        EXPECT_EQ(result.status, 128 + 15) << row.source;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "");
        EXPECT_LT(result.seconds, 2.0) << row.source;
    }
    EXPECT_EQ(List("spool"), Arguments());
    EXPECT_EQ(List(), (Arguments{"large.svg", "spool"}));
}
