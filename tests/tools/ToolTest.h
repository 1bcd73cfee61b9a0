// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// What a program did.
struct RunResult {
    int status = -1; ///< exit status; 128 + the signal when one ended it
    std::string out;
    std::string err;
    double seconds = 0.0;
};

/// A picture as 8-bit RGBA; empty when it could not be read.
struct Picture {
    unsigned width = 0;
    unsigned height = 0;
    std::vector<unsigned char> pixels;

    /// "rrggbbaa" of a pixel.
    [[nodiscard]] std::string At(unsigned x, unsigned y) const;
};

/// Runs the built programs in a folder of the test's own, which is the current one meanwhile.
class ToolTest : public testing::Test {
protected:
    ToolTest();
    ~ToolTest() override;

    /// Runs zamprint; `input` is its standard input.
    RunResult Run(const std::vector<std::string>& arguments, const std::string& input = {}) const;
    /// Runs any program, standard output into a file of the caller's choice.
    RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const std::string& input, const std::string& outputFile) const;

    static void Write(const std::string& name, const std::string& content);
    static std::string Read(const std::string& name);
    static Picture ReadPng(const std::string& bytes);
    /// All names in the folder, sorted.
    static std::vector<std::string> List();
    /// Complains about a PDF that the checker does not call clean; returns what the reader tells of it.
    [[nodiscard]] std::string CheckPdf(const std::string& bytes) const;
    /// The documents that come with the sources.
    static std::vector<std::string> Examples();

private:
    std::filesystem::path _Before;
    std::filesystem::path _Folder;
    std::filesystem::path _Streams; // what goes in and out, out of the way of the test
};

/// A document of one filled rectangle that covers it.
std::string MakeDrawing(const std::string& attributes, const std::string& fill = "#ff0000");
