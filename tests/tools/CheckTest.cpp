// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <nlohmann/json.hpp>

class CheckTest : public ToolTest {
protected:
    void SetUp() override {
        Write("good.svg", MakeDrawing("width=\"9\" height=\"9\""));
        Write("bad.svg", "<svg>\n<g mask='url(#m)'/>\n <rect rx='1'/><image xmlns:x='x' xlink:href='none.png'/></svg>");
        Write("broken.svg", "<svg><g></svg>");
        Write("page.html", "<html/>");
    }
};

TEST_F(CheckTest, SaysOfEachDocumentWhatIsNotDrawn) {
    const RunResult run = Run({"--check", "bad.svg", "good.svg", "-"}, "<svg:svg xmlns:svg='s'><svg:blob/></svg:svg>");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "bad.svg:2:1: masks are not drawn: 'url(#m)'; all is shown\n"
                       "bad.svg:3:16: there is no picture file 'none.png'; no picture is drawn\n"
                       "standard input:1:24: nothing reads the element 'svg:blob'; it and all in it is left out\n"
                       "3 findings in 2 of 3 documents\n");
    const RunResult asItStands = Run({"--check", "--prepress", "off", "bad.svg"});
    EXPECT_TRUE(Contains(asItStands.out, "bad.svg:3:2: the corners are round; they are drawn square\n"))
        << asItStands.out;
    EXPECT_EQ(Run({"--check", "good.svg"}).out, "0 findings in 0 of 1 document\n");
    EXPECT_EQ(List(), (Arguments{"bad.svg", "broken.svg", "good.svg", "page.html"})) << "nothing is written";
}

TEST_F(CheckTest, TellsProgramsInJson) {
    const RunResult run = Run({"--check", "-f", "json", "bad.svg", "broken.svg", "good.svg"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "zamprint: broken.svg:1:11: mismatched tag\n") << "and the others are checked";
    const auto json = nlohmann::json::parse(run.out);
    ASSERT_EQ(json["files"].size(), 2U);
    EXPECT_EQ(json["files"][1],
              (nlohmann::json{{"file", "good.svg"}, {"findings", nlohmann::json::array()}, {"unlisted", 0}}));
    EXPECT_EQ(json["files"][0]["findings"][0], (nlohmann::json{{"line", 2},
                                                               {"column", 1},
                                                               {"code", "mask"},
                                                               {"element", "g"},
                                                               {"subject", "mask"},
                                                               {"what", "masks are not drawn: 'url(#m)'"},
                                                               {"instead", "all is shown"}}));
}

TEST_F(CheckTest, EndsWithAStatus) {
    const struct {
        Arguments arguments;
        int status;
        std::string complaint;
    } rows[] = {
        {{"--check", "bad.svg"}, 0, ""},
        {{"--check", "--strict", "bad.svg"}, 1, ""},
        {{"--check", "--strict", "good.svg"}, 0, ""},
        {{"--check", "good.svg", "broken.svg", "none.svg"}, 1, "none.svg: No such file"},
        {{"--check", "page.html"}, 1, "page.html: holds no svg element"},
        {{"--check", "--prepress", "off", "page.html"}, 1, "page.html: holds no svg element"},
        {{"--check", "good.svg", "-o", "x.pdf"}, 2, "standard output only"},
        {{"--check", "good.svg", "--output-dir", "x"}, 2, "standard output only"},
        {{"--check", "good.svg", "-f", "png"}, 2, "-f json"},
        {{"--strict", "good.svg"}, 2, "--check"},
    };
    for (const auto& row : rows) {
        const RunResult run = Run(row.arguments);
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        EXPECT_EQ(run.status, row.status);
        EXPECT_TRUE(Contains(run.err, row.complaint)) << run.err;
        EXPECT_EQ(run.err.empty(), row.complaint.empty()) << run.err;
    }
    EXPECT_EQ(Shell("$Z --check bad.svg >/dev/full").status, 1);
}

// Names and texts cannot forge lines.
TEST_F(CheckTest, KeepsItsLines) {
    Write("c.svg", "<svg><image xmlns:x='x' xlink:href='d&#10;e'/></svg>");
    EXPECT_EQ(Run({"--check", "c.svg"}).out,
              "c.svg:1:6: there is no picture file 'd?e'; no picture is drawn\n1 finding in 1 of 1 document\n");
    Write("a\nb.svg", "<svg><blob/></svg>");
    EXPECT_TRUE(Run({"--check", "a\nb.svg"}).out.starts_with("a?b.svg:1:6: ")) << "one line";
}

TEST_F(CheckTest, LooksAtFilesThatTheDocumentMayRead) {
    std::filesystem::create_directory("docs");
    Write("secret.png", "text");
    Write("docs/a.svg", "<svg><image xmlns:x='x' xlink:href='../secret.png'/></svg>");
    EXPECT_TRUE(Contains(Run({"--check", "docs/a.svg"}).out, "may not read the picture file '../secret.png'"));
    EXPECT_TRUE(Contains(Run({"--check", "--allow-files", "all", "docs/a.svg"}).out, "has no known format"));
}
