// SPDX-License-Identifier: MIT
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "tests/support/SvgDecoding.h"
#include "ZAMPrtInterpreterSVG/base64/ConvertFromBase64Buffer.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGPictures.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

// Pictures of different sizes, which tell them apart.
const std::string kPng2x1 =
    "iVBORw0KGgoAAAANSUhEUgAAAAIAAAABCAIAAAB7QOjdAAAADUlEQVR42mP4z8AARAAI/gH/GcBr5wAAAABJRU5ErkJggg==";
const std::string kPng1x2 =
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAACCAIAAAAW4yFwAAAADklEQVR42mP4z8DAAMQACf4B/56KYE4AAAAASUVORK5CYII=";
const std::string kBmp1x2 = "Qk0+AAAAAAAAADYAAAAoAAAAAQAAAAIAAAABABgAAAAAAAgAAAAAAAAAAAAAAAAAAAAAAAAAAAD/AP8AAAA=";
const std::string kJpeg3x1 =
    "/9j/4AAQSkZJRgABAQAAAQABAAD/"
    "2wBDABALDA4MChAODQ4SERATGCgaGBYWGDEjJR0oOjM9PDkzODdASFxOQERXRTc4UG1RV19iZ2hnPk1xeXBkeFxl"
    "Z2P/2wBDARESEhgVGC8aGi9jQjhCY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2P/"
    "wAARCAABAAMDASIAAhEB"
    "AxEB/8QAFQABAQAAAAAAAAAAAAAAAAAAAAb/xAAaEAEAAQUAAAAAAAAAAAAAAAAAAQIFNHKy/8QAFQEBAQAAAAAAAAAAAAAAAAAABAb/"
    "xAAcEQABAwUA"
    "AAAAAAAAAAAAAAAAAQIDBDI0crH/2gAMAwEAAhEDEQA/AJi55s6UcQAsaDFi1bxA7rlP/9k=";

// Width and height as "WxH", or "-" for none.
std::string SizeOf(ZAMPrintSVGPictures& pictures, std::string_view reference) {
    const ZAMRef<ZAMPixelImage> image = pictures.Find(reference);
    return image ? std::to_string(image->GetWidth()) + "x" + std::to_string(image->GetHeight()) : "-";
}

std::string Broken(std::string text, std::string_view with) {
    for (std::size_t i = 10; i < text.size(); i += 11 + with.size()) {
        text.insert(i, with);
    }
    return text;
}

std::string PngBytes(const std::string& base64) {
    std::string bytes(base64.size(), '\0');
    unsigned int length = 0;
    ConvertFromBase64Buffer(base64.data(), static_cast<unsigned int>(base64.size()),
                            reinterpret_cast<unsigned char*>(bytes.data()), length);
    return bytes.substr(0, length);
}

void WriteFile(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

// A current folder with pictures, and a folder "docs" below it for the document.
class PictureFilesTest : public testing::Test {
protected:
    void SetUp() override {
        _Before = fs::current_path();
        _Folder = fs::canonical(testing::TempDir()) / ("zam-pictures-" + std::to_string(getpid()));
        const std::string wide = PngBytes(kPng2x1);
        const std::string high = PngBytes(kPng1x2);
        WriteFile(_Folder / "both.png", wide);
        WriteFile(_Folder / "docs/both.png", high);
        WriteFile(_Folder / "docs/below.png", high);
        WriteFile(_Folder / "docs/text.png", "text");
        WriteFile(_Folder / "docs/empty.png", "");
        WriteFile(_Folder / ("data:image/png;base64," + kPng2x1), high);
        fs::create_symlink("../both.png", _Folder / "docs/out.png");
        fs::create_symlink("/dev/zero", _Folder / "docs/zero.png");
        ASSERT_EQ(mkfifo((_Folder / "docs/pipe.png").c_str(), 0600), 0);
        fs::current_path(_Folder);
    }
    void TearDown() override {
        fs::current_path(_Before);
        fs::remove_all(_Folder);
    }

    static std::string SizeFor(std::string_view documentPath, std::string_view reference) {
        ZAMPrintSVGPictures pictures;
        pictures.SetCurrentPath(ZAMUnicodeString(documentPath));
        return SizeOf(pictures, reference);
    }

    fs::path _Folder;

private:
    fs::path _Before;
};

} // namespace

TEST(PicturesTest, DataReferences) {
    const std::string png = "data:image/png;base64,";
    const struct {
        std::string reference;
        std::string_view size;
    } rows[] = {
        {png + kPng2x1, "2x1"},
        {"data:image/bmp;base64," + kBmp1x2, "1x2"},
        {"data:image/jpg;base64," + kJpeg3x1, "3x1"},
        {"data:image/jpeg;base64," + kJpeg3x1, "3x1"},
        {png + kBmp1x2, "-"}, // the prefix says what it is
        {"data:image/jpeg;base64," + kPng2x1, "-"},
        {"data:image/gif;base64," + kPng2x1, "-"},
        {"data:image/png;charset=utf-8;base64," + kPng2x1, "-"},
        {"data:image/png," + kPng2x1, "-"},
        {"Data:image/png;base64," + kPng2x1, "-"},
        {" " + png + kPng2x1, "-"},
        {png + " " + kPng2x1, "2x1"},
        {png + Broken(kPng2x1, "\n"), "2x1"},
        {png + Broken(kPng2x1, "\r\n\t "), "2x1"},
        {png + Broken(kPng2x1, "\v"), "-"},
        {png + kPng2x1.substr(0, 40) + "*" + kPng2x1.substr(41), "-"},
        {png + kPng2x1 + "****", "2x1"}, // "==" ended the text
        {png + kPng1x2 + "****", "-"},   // "=" did not
        {png + kPng1x2 + "*", "1x2"},    // no whole group
        {png + kPng1x2 + "AAAA", "1x2"}, // behind the picture
        {png + kPng2x1.substr(0, 60), "-"},
        {png + "iVBOR", "-"},
        {png + "iVB", "-"},
        {png, "-"},
        {png + " \n", "-"},
        {"", "-"},
        {"#picture", "-"},
    };
    ZAMPrintSVGPictures pictures;
    for (const auto& row : rows) {
        EXPECT_EQ(SizeOf(pictures, row.reference), row.size) << row.reference;
    }
}

TEST(PicturesTest, AReferenceIsReadOnce) {
    const std::string image = "<image xlink:href='data:image/png;base64," + kPng2x1 + "'/>";
    const std::string pattern = "<pattern id='p'>" + image + "</pattern>";
    const std::string text = "<svg>" + image + pattern + "<rect fill='url(#p)'/><g>" + image + "</g></svg>";
    const ZAMLightXmlElement root = ParseDocument(text);
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    ASSERT_EQ(ZAMPrintSVG2Interpreter(&root).Decode(&driver), 1);
    const ZAMPrtChildSpan children = model->GetImages()[0]->GetChildren();
    ASSERT_EQ(children.size(), 3U);
    const auto pixelsOf = [](const ZAMRef<ZAMPrtGraphicPrimitiveElt>& element) {
        return ZAMPrtCast<ZAMPrtBitmapImageElt>(element.Get())->GetPixelImage();
    };
    ASSERT_NE(pixelsOf(children[0]), nullptr);
    EXPECT_EQ(pixelsOf(children[0]), pixelsOf(children[2]->GetChildren()[0]));
    const auto* const rectangle = ZAMPrtCast<ZAMPrtRectangleElt>(children[1].Get());
    EXPECT_EQ(pixelsOf(children[0]), rectangle->GetFillAttributes().GetPattern()->image.Get());
}

TEST_F(PictureFilesTest, AFileThenOneInTheDocumentsFolderThenData) {
    const std::string absolute = (_Folder / "docs/below.png").string();
    const std::string data = "data:image/png;base64," + kPng2x1;
    const struct {
        std::string document;
        std::string reference;
        std::string_view size;
    } rows[] = {
        {"docs/a.svg", "both.png", "2x1"},
        {"docs/a.svg", "below.png", "1x2"},
        {"docs/a.svg", "docs/below.png", "1x2"},
        {"docs/no-such-document", "./below.png", "1x2"},
        {"docs/", "below.png", "1x2"},
        {"docs", "below.png", "-"}, // only the folder part of the path counts
        {"", "below.png", "-"},
        {"a.svg", "both.png", "2x1"},
        {"elsewhere/a.svg", absolute, "1x2"},
        {"docs/a.svg", "/below.png", "-"},
        {"docs/a.svg", "below.png#part", "-"},
        {"docs/a.svg", "file:below.png", "-"},
        {"docs/a.svg", "out.png", "2x1"},
        {"docs/a.svg", data, "1x2"}, // a file of that name
        {"docs/a.svg", "data:image/png;base64," + kPng1x2, "1x2"},
        // What is no picture, or no file.
        {"docs/a.svg", "text.png", "-"},
        {"docs/a.svg", "empty.png", "-"},
        {"docs/a.svg", "", "-"},
        {"docs/a.svg", ".", "-"},
        {"docs/a.svg", "docs", "-"},
        {"docs/a.svg", "pipe.png", "-"},
        {"docs/a.svg", "zero.png", "-"},
        {"docs/a.svg", "/dev/zero", "-"},
        {"docs/a.svg", std::string("below.png\0", 10), "-"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(SizeFor(row.document, row.reference), row.size) << row.document << " " << row.reference;
    }
}

TEST_F(PictureFilesTest, WhatThePolicyForbidsIsNotThere) {
    const std::string data = "data:image/png;base64," + kPng2x1;
    {
        const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::OneFolder("docs");
        EXPECT_EQ(SizeFor("docs/a.svg", "both.png"), "1x2"); // the one in the current folder is not there
        EXPECT_EQ(SizeFor("docs/a.svg", "../both.png"), "-");
        EXPECT_EQ(SizeFor("docs/a.svg", (_Folder / "both.png").string()), "-");
        EXPECT_EQ(SizeFor("docs/a.svg", "out.png"), "-");
        EXPECT_EQ(SizeFor("docs/a.svg", data), "2x1");
    }
    const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::None();
    EXPECT_EQ(SizeFor("docs/a.svg", "below.png"), "-");
    EXPECT_EQ(SizeFor("docs/a.svg", data), "2x1");
}
