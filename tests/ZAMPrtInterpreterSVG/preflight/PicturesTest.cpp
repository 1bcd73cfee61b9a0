// SPDX-License-Identifier: MIT
#include "framework/base/ZAMFileAccessPolicy.h"
#include "tests/ZAMPrtInterpreterSVG/preflight/Findings.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGDataText.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const std::string kPng =
    "iVBORw0KGgoAAAANSUhEUgAAAAIAAAABCAIAAAB7QOjdAAAADUlEQVR42mP4z8AARAAI/gH/GcBr5wAAAABJRU5ErkJggg==";

std::string Image(const std::string& reference) {
    return "<svg xmlns:xlink='x'><image xlink:href='" + reference + "'/></svg>";
}

} // namespace

TEST(PreflightPictures, SaysWhatIsWrongWithData) {
    const struct {
        std::string reference;
        std::string asItStands;
        std::string prepared;
    } rows[] = {
        {"data:image/png;base64," + kPng, "", ""},
        {"data:image/png;charset=utf-8;base64," + kPng, "image-format data:image/png;charset=utf-8;base64", ""},
        {"data:;base64," + kPng.substr(0, kPng.size() - 2), "image-format data:;base64", ""},
        {"data:image/png;base64," + kPng.substr(0, 60), "damaged-image data:image/png;base64",
         "damaged-image data:image/png;base64"},
        {"data:image/gif;base64,R0lGODlhAQABAAAAACw=", "image-format data:image/gif;base64",
         "image-format data:image/gif;base64"},
        {"data:image/svg+xml,%3Csvg%2F%3E", "image-format data:image/svg+xml", ""},
        {"data:image/png", "image-format data:image/png", "image-format data:image/png"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FindingsOf(Image(row.reference), kAsItStands), row.asItStands) << row.reference;
        EXPECT_EQ(FindingsOf(Image(row.reference), kPrepared), row.prepared) << row.reference;
    }
}

TEST(PreflightPictures, SaysWhyFilesAreNotRead) {
    const fs::path folder = fs::canonical(testing::TempDir()) / ("zam-preflight-" + std::to_string(getpid()));
    fs::create_directories(folder / "docs");
    const auto png = ZAMPrintSVGDataText::Decode("data:;base64," + kPng);
    const auto write = [&](const char* name, const std::string& bytes) {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    };
    write("docs/a b.png", {png.begin(), png.end()});
    write("outside.png", {png.begin(), png.end()});
    write("docs/cut.png", {png.begin(), png.begin() + 40});
    write("docs/text.png", "text");
    write("docs/drawing.svg", "<svg/>");
    const struct {
        std::string reference;
        std::string asItStands;
        std::string prepared;
    } rows[] = {
        {"a b.png", "", ""},
        {"a%20b.png", "missing-image a%20b.png", ""},
        {"file://" + (folder / "docs/a%20b.png").string(), "missing-image", ""},
        {"none.png", "missing-image none.png", "missing-image none.png"},
        {"../outside.png", "forbidden-image ../outside.png", "forbidden-image ../outside.png"},
        {"cut.png", "damaged-image cut.png", "damaged-image cut.png"},
        {"text.png", "image-format text.png", "image-format text.png"},
        {"drawing.svg", "image-format drawing.svg", ""},
        {"https://example.org/a.png", "remote-image https://example.org/a.png",
         "remote-image https://example.org/a.png"},
        {"//example.org/a.png", "remote-image //example.org/a.png", "remote-image //example.org/a.png"},
    };
    const std::string path = folder / "docs/document.svg";
    {
        const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::OneFolder((folder / "docs").string());
        for (const auto& row : rows) {
            EXPECT_TRUE(FindingsOf(Image(row.reference), kAsItStands, path).starts_with(row.asItStands))
                << row.reference;
            EXPECT_EQ(FindingsOf(Image(row.reference), kAsItStands, path).empty(), row.asItStands.empty());
            EXPECT_EQ(FindingsOf(Image(row.reference), kPrepared, path), row.prepared) << row.reference;
        }
    }
    const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::None();
    EXPECT_EQ(FindingsOf(Image("a b.png"), kPrepared, path), "forbidden-image a b.png");
    fs::remove_all(folder);
}
