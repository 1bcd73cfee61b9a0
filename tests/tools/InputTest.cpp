// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <nlohmann/json.hpp>
#include <unistd.h>

class InputTest : public ToolTest {};

TEST_F(InputTest, WhatCannotBeReadIsSaidAndHarmsNoOutput) {
    const struct {
        std::string file;
        std::string message;
    } rows[] = {
        {"open.svg", "zamprint: open.svg:3:1: "},
        {"crossed.svg", "zamprint: crossed.svg:2:11: "},
        {"empty.svg", "zamprint: empty.svg:1:1: "},
        {"binary.svg", "zamprint: binary.svg:1:"},
        {"deep.svg", "zamprint: deep.svg:1:"},
        {"page.html", "zamprint: page.html: holds no svg element\n"},
        {"missing.svg", "zamprint: missing.svg: No such file or directory\n"},
        {"folder", "zamprint: folder: Is a directory\n"},
        {"-", "zamprint: standard input:1:6: "},
        // Nothing is secret to root, who sees the emptiness of the file.
        {"secret.svg", geteuid() == 0 ? "zamprint: secret.svg:1:1: " : "zamprint: secret.svg: Permission denied\n"},
        {"line\nbreak.svg", "zamprint: line?break.svg: No such file or directory\n"},
    };
    Write("open.svg", "<svg>\n<g>\n");
    Write("crossed.svg", "<svg>\n  <g><a></g></svg>\n");
    Write("empty.svg", "");
    Write("secret.svg", "");
    std::filesystem::permissions("secret.svg", std::filesystem::perms::none);
    Write("binary.svg", std::string("\x89PNG\r\n\x1a\n\0\0", 10));
    std::string deep = "<svg>";
    for (int i = 0; i < 1000; ++i) {
        deep += "<g>";
    }
    Write("deep.svg", deep);
    Write("page.html", "<html><body><svg/></body></html>");
    Write("kept.pdf", "as it was");
    std::filesystem::create_directory("folder");
    for (const auto& row : rows) {
        const auto before = List();
        const RunResult kept = Run({row.file, "-o", "kept.pdf"}, "<svg>&");
        EXPECT_EQ(kept.status, 1);
        EXPECT_TRUE(kept.err.starts_with(row.message)) << kept.err;
        EXPECT_TRUE(kept.err.ends_with("\n") && kept.err.size() > row.message.size() - 1) << kept.err;
        EXPECT_EQ(Run({row.file, "-o", "new.png"}, "<svg>&").status, 1);
        EXPECT_EQ(Run({row.file}, "<svg>&").out, "");
        EXPECT_EQ(List(), before);
        EXPECT_EQ(Read("kept.pdf"), "as it was");
    }
}

TEST_F(InputTest, StandardInputAndAPipeGiveWhatTheFileGives) {
    const std::string drawing = MakeDrawing("width=\"30\" height=\"20\"");
    Write("a.svg", drawing);
    const std::string expected = Run({"-f", "json", "a.svg"}).out;
    EXPECT_EQ(nlohmann::json::parse(expected)["images"].size(), 1U);
    EXPECT_EQ(Run({"-f", "json"}, drawing).out, expected);
    EXPECT_EQ(Run({"-f", "json", "-", "-o", "-"}, drawing).out, expected);
    const RunResult pipe = Shell("cat a.svg | $Z -f json -o pipe.json /dev/fd/0");
    EXPECT_EQ(pipe.status, 0) << pipe.err;
    EXPECT_EQ(Read("pipe.json"), expected);
    EXPECT_EQ(Shell("$Z <&-").err, "zamprint: standard input: Bad file descriptor\n");
}

TEST_F(InputTest, TheExamplesPrintInEveryFormat) {
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZAM_SOURCE_DIR "/examples")) {
        const std::string file = entry.path();
        if (!file.ends_with(".svg")) {
            continue;
        }
        SCOPED_TRACE(file);
        ++count;
        const RunResult pdf = Run({file});
        EXPECT_EQ(pdf.status, 0) << pdf.err;
        EXPECT_TRUE(Contains(CheckPdf(pdf.out), "Pages:           1\n"));
        EXPECT_EQ(Picture(Run({"-f", "png", "-w", "300", file}).out).width, 300U);
        const auto model = nlohmann::json::parse(Run({"-f", "json", file}).out);
        EXPECT_FALSE(model["images"][0]["children"].empty());
    }
    EXPECT_GE(count, 20);
}

TEST_F(InputTest, CompressedDocumentsAreRead) {
    const std::string drawing = MakeDrawing("width=\"90\" height=\"45\"");
    Write("plain.svg", drawing);
    EXPECT_EQ(Shell("gzip -c plain.svg >a.svgz; head -c 30 plain.svg | gzip >two.svgz; : | gzip >>two.svgz; tail -c "
                    "+31 plain.svg | gzip "
                    ">>two.svgz; head -c 60 a.svgz >cut.svgz; head -c 500 /dev/zero | cat a.svgz - >padded.svgz")
                  .status,
              0);
    const std::string expected = Run({"plain.svg", "-f", "json"}).out;
    for (const char* file : {"a.svgz", "two.svgz", "padded.svgz"}) {
        const RunResult run = Run({file, "-f", "json"});
        EXPECT_EQ(run.out, expected) << file << run.err;
    }
    EXPECT_EQ(Run({"-f", "json"}, Read("a.svgz")).out, expected) << "from standard input";
    EXPECT_EQ(Run({"cut.svgz"}).err, "zamprint: cut.svgz: the compressed data is cut short\n");
    EXPECT_EQ(Run({}, "\x1F\x8B\x08 and nothing of the kind").err,
              "zamprint: standard input: the compressed data is damaged\n");
    const RunResult bomb = Shell("head -c 600000000 /dev/zero | gzip -1 | $Z");
    EXPECT_EQ(bomb.status, 1);
    EXPECT_TRUE(Contains(bomb.err, "holds more than 200 times its size")) << bomb.err;
    const RunResult large = Shell("{ head -c 4000000 /dev/urandom; head -c 600000000 /dev/zero; } | gzip -1 | $Z");
    EXPECT_TRUE(Contains(large.err, "holds more than 512 MiB")) << large.err;
}
