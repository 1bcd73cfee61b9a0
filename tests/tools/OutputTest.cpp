// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <sys/stat.h>
#include <unistd.h>

class OutputTest : public ToolTest {
protected:
    OutputTest() { Write("a.svg", MakeDrawing("width=\"30\" height=\"20\"")); }

    static unsigned Mode(const std::string& file) {
        struct stat status = {};
        stat(file.c_str(), &status);
        return status.st_mode & 07777U;
    }
};

TEST_F(OutputTest, AFileIsReplacedAsAWhole) {
    Write("old.json", "old");
    std::filesystem::permissions("old.json", std::filesystem::perms{0604});
    std::filesystem::create_hard_link("old.json", "other.json");
    std::filesystem::create_directory("folder");
    std::filesystem::create_symlink("../old.json", "folder/link.json");
    std::filesystem::create_symlink("folder/fresh.json", "dangling.json");
    const mode_t before = umask(027);
    for (const char* file : {"old.json", "folder/link.json", "dangling.json", "new.json"}) {
        const RunResult run = Run({"a.svg", "-o", file});
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_TRUE(Read(file).starts_with("{\"images\"")) << file;
    }
    umask(before);
    EXPECT_EQ(Read("other.json"), "old") << "written over and not replaced";
    EXPECT_EQ(Mode("old.json"), 0604U);
    EXPECT_EQ(Mode("new.json"), 0640U);
    EXPECT_TRUE(std::filesystem::is_symlink("folder/link.json") && std::filesystem::is_symlink("dangling.json"));
    EXPECT_EQ(List(), (Arguments{"a.svg", "dangling.json", "folder", "new.json", "old.json", "other.json"}));
}

TEST_F(OutputTest, WhatCannotBeWrittenIsSaid) {
    const struct {
        std::string file;
        std::string reason;
    } rows[] = {
        {"none/a.pdf", "No such file or directory"},
        {"a.svg/a.pdf", "Not a directory"},
        {"folder", "Is a directory"},
        {"circle", "Too many levels of symbolic links"},
        {"/dev/full", "No space left on device"},
        {std::string(300, 'x'), "File name too long"},
    };
    std::filesystem::create_directory("folder");
    std::filesystem::create_symlink("circle", "circle");
    const auto before = List();
    for (const auto& row : rows) {
        for (const char* format : {"pdf", "png", "json"}) {
            const RunResult run = Run({"a.svg", "-f", format, "-o", row.file});
            EXPECT_EQ(run.status, 1);
            EXPECT_EQ(run.err, "zamprint: " + row.file + ": " + row.reason + "\n");
        }
    }
    EXPECT_EQ(List(), before);
    EXPECT_TRUE(std::filesystem::is_symlink("circle"));
}

TEST_F(OutputTest, DevicesAndPipesAreWrittenDirectly) {
    EXPECT_EQ(Run({"a.svg", "-o", "/dev/null"}).status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_EQ(Shell("mkfifo pipe && { cat pipe >got & } && $Z a.svg -o pipe && wait").status, 0);
    EXPECT_TRUE(std::filesystem::is_fifo("pipe"));
    EXPECT_TRUE(Contains(CheckPdf(Read("got")), "Pages:           1\n"));
}

TEST_F(OutputTest, StandardOutputFailsAloud) {
    EXPECT_EQ(Shell("$Z a.svg >/dev/full").err, "zamprint: standard output: No space left on device\n");
    EXPECT_EQ(Shell("$Z a.svg >&-").err, "zamprint: standard output: Bad file descriptor\n");
    // The reader is gone for certain before the first byte is written.
    const RunResult pipe = Shell("{ until [ -e gone ]; do sleep 0.01; done; $Z a.svg; echo $? >status; } | "
                                 "{ exec <&-; touch gone; }; cat status >&2");
    EXPECT_EQ(pipe.err, "zamprint: standard output: Broken pipe\n1\n");
}

TEST_F(OutputTest, ATerminalGetsTextOnly) {
    const auto onTerminal = [&](const std::string& options) {
        return Shell("script -qec \"$Z a.svg " + options + "\" /dev/null");
    };
    EXPECT_EQ(onTerminal("").status, 2);
    EXPECT_FALSE(Contains(onTerminal("-f png -o -").out, "PNG\r\n"));
    EXPECT_EQ(onTerminal("-f json").status, 0);
    EXPECT_EQ(onTerminal("-o a.pdf").status, 0);
}
