// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// What a program did.
struct RunResult {
    int status = -1; ///< as the shell has it: 128 + the signal when one ended the program
    std::string out;
    std::string err;
    double seconds = 0.0;
};

/// A picture as 8-bit RGBA; empty when it could not be read.
struct Picture {
    explicit Picture(const std::string& png);
    /// "rrggbbaa" of a pixel.
    [[nodiscard]] std::string At(unsigned x, unsigned y) const;

    unsigned width = 0;
    unsigned height = 0;
    std::vector<unsigned char> pixels;
};

/// Runs the built programs in a folder of the test's own, which is the current one meanwhile.
class ToolTest : public testing::Test {
protected:
    using Arguments = std::vector<std::string>;

    ToolTest();
    ~ToolTest() override;

    /// Runs zamprint; `input` is its standard input.
    RunResult Run(const Arguments& arguments, const std::string& input = {}) const;
    /// Runs a command of the shell, in which $Z is zamprint and $H the example host.
    RunResult Shell(const std::string& command, const std::string& input = {}) const;
    /// Complains about a PDF that the checker does not call clean; returns what the reader tells of it.
    [[nodiscard]] std::string CheckPdf(const std::string& bytes) const;

    static void Write(const std::string& name, const std::string& content);
    static std::string Read(const std::string& name);
    /// All names in the folder, sorted.
    static Arguments List(const std::string& folder = ".");
    static bool Contains(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }
    /// A document of one filled square of 1000 units.
    static std::string MakeDrawing(const std::string& attributes) {
        return "<svg " + attributes + R"(><rect x="0" y="0" width="1000" height="1000" fill="#f00"/></svg>)";
    }

private:
    std::filesystem::path _Before;
    std::string _Folder; // holds the test's folder, and what goes in and out
};
