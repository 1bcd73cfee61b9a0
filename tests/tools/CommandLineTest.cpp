// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <algorithm>
#include <sstream>

class CommandLineTest : public ToolTest {};

TEST_F(CommandLineTest, WrongUsageIsOneLineAndNoOutput) {
    const struct {
        Arguments arguments;
        std::string complaint;
    } rows[] = {
        {{"--tiles"}, "--tiles"},
        {{"-x"}, "-x"},
        {{"a.svg", "-o"}, "--output"},
        {{"a.svg", "-o", ""}, "--output"},
        {{"a.svg", "-o", "a.svg"}, "replace the input"},
        {{"a.svg", "-o", "link.svg"}, "replace the input"},
        {{"a.svg", "-f", "tiff"}, "pdf, ps, eps, svg, png, json"},
        {{"a.svg", "--page-size", "A9"}, "--page-size 'A9'"},
        {{"a.svg", "--page-size", "0x5mm"}, "--page-size"},
        {{"a.svg", "--page-size", "A4", "-w", "5"}, "--width"},
        {{"a.svg", "--landscape"}, "--landscape"},
        {{"a.svg", "--margin", "-1mm"}, "--margin"},
        {{"a.svg", "--fit", "wide"}, "none, shrink or page"},
        {{"a.svg", "-z", "0"}, "--scale"},
        {{"a.svg", "-j", "0"}, "--jobs"},
        {{"a.svg", "--progress", "no"}, "auto, always or never"},
        {{"a.svg", "-w", "0"}, "-w"},
        {{"a.svg", "-w=-5"}, "-w"},
        {{"a.svg", "--width=-5"}, "--width '-5'"},
        {{"a.svg", "-w", "nan"}, "--width 'nan'"},
        {{"a.svg", "-h", "inf"}, "--height 'inf'"},
        {{"a.svg", "-h", "1e9"}, "--height '1e9'"},
        {{"a.svg", "-h", "12px"}, "--height '12px'"},
        {{"a.svg", "-d", "0.5"}, "--dpi '0.5'"},
        {{"a.svg", "-d", "4801"}, "--dpi '4801'"},
        {{"a.svg", "-b", "reddish"}, "--background 'reddish'"},
        {{"a.svg", "-b", "#12345"}, "--background '#12345'"},
        {{"a.svg", "-b", "#12345g"}, "--background '#12345g'"},
    };
    Write("a.svg", MakeDrawing("width=\"10\" height=\"10\""));
    std::filesystem::create_symlink("a.svg", "link.svg");
    for (const auto& row : rows) {
        const RunResult run = Run(row.arguments);
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(run.err.starts_with("zamprint: ")) << run.err;
        EXPECT_TRUE(Contains(run.err, row.complaint)) << run.err;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    }
    EXPECT_EQ(List(), (Arguments{"a.svg", "link.svg"}));
    EXPECT_EQ(Read("a.svg"), MakeDrawing("width=\"10\" height=\"10\""));
}

TEST_F(CommandLineTest, InformationGoesToStandardOutput) {
    const RunResult help = Run({"--help"});
    EXPECT_EQ(help.status, 0) << help.err;
    for (const char* option : {"-o,--output", "-f,--format", "--page-size", "-w,--width", "-h,--height", "-d,--dpi",
                               "-b,--background", "--version", "--help"}) {
        EXPECT_TRUE(Contains(help.out, option)) << option << "\n" << help.out;
    }
    const RunResult version = Run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.starts_with("zamprint ") && version.out.ends_with("\n")) << version.out;
    EXPECT_EQ(Shell("$Z --help >/dev/full").status, 1);
}

TEST_F(CommandLineTest, TheFormatComesFromTheOptionElseTheEnding) {
    const struct {
        Arguments options;
        std::string file;
        std::string start;
    } rows[] = {
        {{}, "a.pdf", "%PDF-"},
        {{}, "a.PNG", "\x89PNG"},
        {{}, "a.json", "{\"images\""},
        {{}, "a.txt", "%PDF-"},
        {{}, "folder.png/a", "%PDF-"},
        {{"-f", "png"}, "b.pdf", "\x89PNG"},
        {{"-f", "pdf", "--format=JSON"}, "b.png", "{\"images\""},
    };
    std::filesystem::create_directory("folder.png");
    for (const auto& row : rows) {
        Arguments arguments = row.options;
        arguments.insert(arguments.end(), {"-o", row.file, "--page-size", "document"});
        const RunResult run = Run(arguments, MakeDrawing("width=\"10\" height=\"10\""));
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out + run.err, "");
        EXPECT_TRUE(Read(row.file).starts_with(row.start)) << row.file;
    }
}

TEST_F(CommandLineTest, EverythingThatTellsOfOptionsTellsOfAll) {
    const std::string manual = Run({"--manual"}).out;
    const std::string help = Run({"--help"}).out;
    const std::string shells[] = {Run({"--completion", "bash"}).out, Run({"--completion", "zsh"}).out,
                                  Run({"--completion", "fish"}).out};
    int options = 0;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t at = line.starts_with("  -") ? line.find("--") : std::string::npos;
        if (at == std::string::npos) {
            continue;
        }
        const std::string name = line.substr(at + 2, line.find(' ', at) - at - 2);
        std::string escaped = name;
        for (std::size_t minus = 0; (minus = escaped.find('-', minus)) != std::string::npos; minus += 2) {
            escaped.insert(minus, 1, '\\');
        }
        ++options;
        EXPECT_TRUE(Contains(manual, "\\-\\-" + escaped)) << name;
        for (const std::string& script : shells) {
            EXPECT_TRUE(Contains(script, name)) << name << "\n" << script;
        }
    }
    EXPECT_GT(options, 20);
    Write("complete", shells[0]);
    const auto complete = [&](const std::string& before, const std::string& word) {
        return Shell("bash -c '. ./complete; COMP_WORDS=(zamprint " + before + " \"" + word +
                     "\"); COMP_CWORD=2; _zamprint; echo ${COMPREPLY[*]}'")
            .out;
    };
    EXPECT_EQ(complete("-f", "p"), "pdf ps png\n");
    EXPECT_EQ(complete("-q", "--pag"), "--page-size\n");
    Write("drawing.svg", "");
    Write("drawing.txt", "");
    EXPECT_EQ(complete("-q", "d"), "drawing.svg\n");
}
