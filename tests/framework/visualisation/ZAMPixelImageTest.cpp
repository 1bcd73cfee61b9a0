// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMPixelImage.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/visualisation/ZAMPixelImageReaders.h"
#include "tests/framework/visualisation/FontSetup.h"
#include "tests/framework/visualisation/PictureFiles.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr auto kMemory = ZAMReadOnlyState::Memory;

using Reader = ZAMRef<ZAMPixelImage> (*)(std::span<const unsigned char>, ZAMReadOnlyState);

ZAMRef<ZAMPixelImage> Read(const FileBytes& file) {
    for (const Reader read : {ReadMemoryPNGPixelImage, ReadMemoryJPEGPixelImage, ReadMemBMPPixelImage}) {
        if (auto image = read(file, kMemory)) {
            return image;
        }
    }
    return {};
}

bool IsNear(std::uint32_t left, std::uint32_t right, int tolerance) {
    for (const unsigned int shift : {0U, 8U, 16U, 24U}) {
        if (std::abs(static_cast<int>(left >> shift & 255U) - static_cast<int>(right >> shift & 255U)) > tolerance) {
            return false;
        }
    }
    return true;
}

// A picture of each kind, for what is done to all of them.
std::vector<FileBytes> AllKinds() {
    PngFile png{.width = 3, .height = 3, .colourType = 6, .isInterlaced = true};
    png.sample = [](auto x, auto y, auto channel) { return 40 * (x + y) + 20 * channel; };
    BmpFile palette{.width = 8,
                    .height = 2,
                    .bits = 4,
                    .between = FromHex("0000FF00 00FF0000"),
                    .data = FromHex("01000000 10100011")};
    BmpFile runs{.width = 4,
                 .height = 2,
                 .bits = 8,
                 .compression = 1,
                 .between = FromHex("0000FF00 00FF0000"),
                 .data = FromHex("0401 0000 00030100 0100 0100 0001")};
    BmpFile fields{.width = 2,
                   .height = 1,
                   .bits = 32,
                   .compression = 3,
                   .headerSize = 56,
                   .laterFields = FromHex("FF000000 00FF0000 0000FF00 000000FF"),
                   .data = FromHex("FF000080 00FF00FF")};
    return {png.Make(),
            JpegFile{.values = {200, 90, 160}, .sampling = {0x22, 0x11, 0x11}, .hasJfif = true}.Make(),
            JpegFile{.values = {50}, .frame = 0xC2, .refinements = 3}.Make(),
            JpegFile{.values = {10, 20, 30, 40}}.Make(),
            BmpFile{.width = 2, .height = 2, .data = FromHex("010203040506 0000 0708090A0B0C")}.Make(),
            palette.Make(),
            runs.Make(),
            fields.Make()};
}

} // namespace

TEST(ZAMPixelImageTest, HoldsWhatItIsGiven) {
    const auto image = ZAMNew<ZAMPixelImage>(2, 2, std::vector<std::uint32_t>{0xFF000001, 0xFF000002, 0xFF000003});
    EXPECT_EQ(TextOf(image), "ff000001,ff000002 ff000003,00000000");
    EXPECT_FALSE(image->IsOpaque());
    EXPECT_TRUE(image->GetJpeg().empty());
    const auto jpeg = std::make_shared<const ZAMPixelImage::Bytes>(3, 'x');
    const auto other = ZAMNew<ZAMPixelImage>(1, 1, std::vector<std::uint32_t>(1, 0xFF123456), jpeg);
    EXPECT_TRUE(other->IsOpaque());
    EXPECT_EQ(other->GetJpeg().data(), jpeg->data());
}

TEST(ZAMPixelImageTest, ReadsJpegOfEveryColourSpace) {
    const std::uint32_t kRed = 0xFFFE0000;
    const std::vector<unsigned char> red{76, 85, 255}; // as YCbCr
    const std::vector<unsigned char> rgb{'R', 'G', 'B'};
    const struct {
        const char* name;
        JpegFile file;
        std::uint32_t pixel;
        bool isUsable;
    } rows[] = {
        {"grey", {.values = {77}}, 0xFF4D4D4D, true},
        {"grey, progressive", {.values = {77}, .frame = 0xC2, .refinements = 10}, 0xFF4D4D4D, true},
        {"grey, extended", {.values = {255}, .frame = 0xC1}, 0xFFFFFFFF, true},
        {"YCbCr", {.values = red}, kRed, true},
        {"JFIF, 4:2:0",
         {.width = 9, .height = 9, .values = red, .sampling = {0x22, 0x11, 0x11}, .hasJfif = true},
         kRed,
         true},
        {"4:1:0, nameless", {.width = 33, .values = red, .sampling = {0x42, 0x11, 0x11}}, kRed, true},
        {"progressive, 4:2:2", {.width = 99, .values = red, .sampling = {0x21, 0x11, 0x11}, .frame = 0xC2}, kRed, true},
        {"Adobe YCbCr", {.values = red, .adobeTransform = 1}, kRed, true},
        {"Adobe RGB", {.values = {10, 200, 30}, .adobeTransform = 0}, 0xFF0AC81E, true},
        {"JFIF wins here, Adobe in PDF", {.values = red, .hasJfif = true, .adobeTransform = 0}, kRed, false},
        {"RGB by its names", {.values = {10, 200, 30}, .names = rgb}, 0xFF0AC81E, false},
        {"named RGB, but JFIF", {.values = red, .names = rgb, .hasJfif = true}, kRed, true},
        {"CMYK", {.values = {0, 55, 255, 0}}, 0xFFFFC800, true},
        {"CMYK, half black", {.values = {0, 55, 255, 127}}, 0xFF806400, true},
        {"Adobe CMYK", {.values = {255, 200, 0, 255}, .adobeTransform = 0}, 0xFFFFC800, false},
        {"Adobe YCCK", {.values = {76, 85, 255, 128}, .adobeTransform = 2}, PixelOf(0.5, 128, 128, 255), false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FileBytes bytes = row.file.Make();
        const FileBytes sound = bytes;
        bytes.insert(bytes.end(), {0x00, 0xFF, 0xD9}); // a stray byte, and what looks like another end
        const auto image = ReadMemoryJPEGPixelImage(bytes, kMemory);
        ASSERT_TRUE(image);
        EXPECT_EQ(image->GetWidth(), static_cast<int>(row.file.width));
        EXPECT_EQ(image->GetHeight(), static_cast<int>(row.file.height));
        EXPECT_TRUE(image->IsOpaque());
        for (const std::uint32_t pixel : image->GetPixels()) {
            ASSERT_TRUE(IsNear(pixel, row.pixel, row.file.values.size() == 1 ? 0 : 1)) << std::hex << pixel;
        }
        EXPECT_EQ(FileBytes(image->GetJpeg().begin(), image->GetJpeg().end()), row.isUsable ? sound : FileBytes());
    }
}

TEST(ZAMPixelImageTest, RefusesJpegThatOtherReadersCouldNotTake) {
    const JpegFile good{.values = {76, 85, 255}};
    const auto with = [&](std::size_t at, const std::string& digits) {
        FileBytes bytes = good.Make();
        const FileBytes more = FromHex(digits);
        bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), more.begin(), more.end());
        return bytes;
    };
    const std::size_t scanEnd = good.Make().size() - 2;
    EXPECT_TRUE(ReadMemoryJPEGPixelImage(with(2, "FFFE 0003 41"), kMemory)); // a comment
    EXPECT_TRUE(ReadMemoryJPEGPixelImage(with(2, "FFFFFF"), kMemory));       // fill bytes
    const std::pair<const char*, FileBytes> rows[] = {
        {"bytes between the markers", with(2, "41")},
        {"a second beginning", with(2, "FFD8")},
        {"an unexpected restart", with(scanEnd, "FFD0 00")},
        {"coded data that goes on", with(scanEnd, "0000000000000000 0000000000000000")},
        {"a length below 2", with(2, "FFFE 0001")},
        {"two components", JpegFile{.values = {1, 2}}.Make()},
        {"arithmetic codes", JpegFile{.frame = 0xC9}.Make()},
        {"lossless", JpegFile{.frame = 0xC3}.Make()},
        {"no height", JpegFile{.height = 0}.Make()},
        {"an unknown transform", JpegFile{.values = {1, 2, 3}, .adobeTransform = 7}.Make()},
        {"endless scans", JpegFile{.frame = 0xC2, .refinements = 14 * 63}.Make()}};
    for (const auto& [name, bytes] : rows) {
        EXPECT_FALSE(ReadMemoryJPEGPixelImage(bytes, kMemory)) << name;
    }
    EXPECT_TRUE(ReadMemoryJPEGPixelImage(JpegFile{.frame = 0xC2, .refinements = 14 * 30}.Make(), kMemory));
}

TEST(ZAMPixelImageTest, APictureIsWholeOrNull) {
    for (const FileBytes& file : AllKinds()) {
        SCOPED_TRACE(testing::Message() << "begins with " << static_cast<int>(file[0]) << ", " << file.size()
                                        << " bytes");
        const std::string whole = TextOf(Read(file));
        ASSERT_NE(whole, "null");
        // Run lengths may lack the two bytes at their end; each copy has its own block, so that reading on is noticed.
        const std::size_t least = file[0] == 'B' && file[30] == 1 ? file.size() - 2 : file.size();
        for (std::size_t size = 0; size < file.size(); ++size) {
            const FileBytes part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
            EXPECT_EQ(TextOf(Read(part)), size < least ? "null" : whole) << size;
        }
        FileBytes longer = file;
        longer.insert(longer.end(), {0, 1, 2});
        EXPECT_EQ(TextOf(Read(longer)), whole);
    }
}

TEST(ZAMPixelImageTest, BearsDamage) {
    std::mt19937 random(20240703);
    const std::vector<FileBytes> files = AllKinds();
    int read = 0;
    for (int i = 0; i < 20'000; ++i) {
        FileBytes file = files[random() % files.size()];
        for (std::size_t damages = 1 + random() % 4; damages > 0; --damages) {
            file[random() % file.size()] = static_cast<unsigned char>(random() % 3 == 0 ? 0xFF : random());
        }
        const ZAMAllocationBudget budget; // a header may ask for much
        const auto image = Read(file);
        read += image ? 1 : 0;
        if (image && !image->GetJpeg().empty()) {
            const auto again = ReadMemoryJPEGPixelImage(image->GetJpeg(), kMemory);
            ASSERT_TRUE(again);
            EXPECT_TRUE(std::ranges::equal(again->GetPixels(), image->GetPixels()));
        }
    }
    EXPECT_TRUE(read > 1000 && read < 19'000) << read;
}

// A file of some bytes that claims to be huge is refused before anything is spent; one that could be that large costs
// its pixels.
TEST(ZAMPixelImageTest, PicturesCostTheirPixels) {
    const auto jpegWith = [](std::uint32_t width, std::uint32_t height, std::size_t codedBytes, int scans) {
        FileBytes file = JpegFile{.frame = 0xC2, .refinements = scans - 1}.Make();
        const FileBytes marker{0xFF, 0xC2};
        const auto frame = std::search(file.begin(), file.end(), marker.begin(), marker.end());
        const FileBytes sides{static_cast<unsigned char>(height >> 8U), static_cast<unsigned char>(height),
                              static_cast<unsigned char>(width >> 8U), static_cast<unsigned char>(width)};
        std::copy(sides.begin(), sides.end(), frame + 5);
        file.insert(file.end() - 2, codedBytes, 0xF0); // no code begins like this
        return file;
    };
    const FileBytes huge = jpegWith(16384, 8192, 200'000, 1);
    const FileBytes small = AllKinds().front();
    PngFile wide{.width = 100'000, .depth = 1, .sample = [](auto...) { return 0; }};
    FileBytes lyingPng = wide.Make();
    const FileBytes lyingHeader = PngFile::Chunk("IHDR", FromHex("000186A0 00000800 01 00 00 00 00"));
    std::copy(lyingHeader.begin(), lyingHeader.end(), lyingPng.begin() + 8);
    const FileBytes palette = FromHex("00000000");
    const std::pair<const char*, FileBytes> refused[] = {
        {"more than the most pixels", jpegWith(16384, 8193, 200'000, 1)},
        {"too few bytes for so many blocks", jpegWith(16384, 8192, 100'000, 1)},
        {"too many scans of so many pixels", jpegWith(16384, 8192, 200'000, 20)},
        {"a zlib stream that is too short", lyingPng},
        {"rows that are not there", BmpFile{.width = 30'000, .height = 4000, .data = FileBytes(1000)}.Make()},
        {"sides whose product overflows",
         BmpFile{.width = INT32_MAX, .height = -INT32_MAX, .data = FileBytes(1000)}.Make()},
        {"runs that are too few",
         BmpFile{
             .width = 30'000, .height = 4000, .bits = 8, .compression = 1, .between = palette, .data = FromHex("0001")}
             .Make()}};
    const ZAMAllocationBudget budget;
    for (const auto& [name, file] : refused) {
        EXPECT_FALSE(Read(file)) << name;
        EXPECT_FALSE(Read(file)) << name;
        EXPECT_FALSE(Read(file)) << name;
    }
    EXPECT_TRUE(Read(small)); // of nine pixels
    EXPECT_TRUE(ZAMAllocationBudget::SpendPixels(ZAMLimits::kPicturePixelsOfAll - ZAMLimits::kPicturePixels - 9));
    EXPECT_FALSE(Read(huge));
    EXPECT_FALSE(Read(small));
    std::thread([&small] { EXPECT_TRUE(Read(small)); }).join();
}

TEST(ZAMPixelImageTest, ReadsFilesByWhatTheyHold) {
    const std::filesystem::path folder = testing::TempDir() + "zam-pictures-" + std::to_string(getpid());
    std::filesystem::create_directories(folder / "below");
    const auto write = [&](const char* name, const FileBytes& bytes) {
        std::ofstream(folder / name)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    };
    const auto read = [&](const char* name) {
        return TextOf(ZAMPixelImage::CreateFromFile((folder / name).string(), ZAMReadOnlyState::File, 0));
    };
    const BmpFile bmp{.data = FromHex("010203")};
    write("a.svg", bmp.Make());
    write("b.bmp", JpegFile{.values = {0x22}}.Make());
    write("c", PngFile{.sample = [](auto...) { return 0x33; }}.Make());
    write("d.png", {'G', 'I', 'F'});
    write("e.png", {});
    ASSERT_EQ(mkfifo((folder / "f.png").c_str(), 0600), 0);
    EXPECT_EQ(read("a.svg"), "ff030201");
    EXPECT_EQ(read("b.bmp").substr(0, 17), "ff222222,ff222222");
    EXPECT_EQ(read("c"), "ff333333");
    for (const char* name : {"d.png", "e.png", "f.png", "nowhere.png", "below", ""}) {
        EXPECT_EQ(read(name), "null") << name;
    }
    const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::OneFolder((folder / "below").string());
    EXPECT_EQ(read("a.svg"), "null");
    write("below/g", bmp.Make());
    EXPECT_EQ(read("below/g"), "ff030201");
    std::filesystem::remove_all(folder);
}

// The tests below need a process of their own: what is loaded is settled once.

TEST(ZAMPixelImageAlone, DISABLED_LoadsNothingBeforeThePngOrJpeg) {
    const auto nothingMapped = [] { return !IsMapped("libturbojpeg") && !IsMapped("ZAMPrintImages"); };
    EXPECT_TRUE(ReadMemBMPPixelImage(BmpFile{.data = FromHex("010203")}.Make(), kMemory));
    EXPECT_FALSE(Read(FromHex("89504E47")));
    EXPECT_FALSE(Read(FromHex("FFD80000")));
    EXPECT_TRUE(nothingMapped());
    std::thread others[4];
    for (std::thread& other : others) {
        other = std::thread([] { EXPECT_TRUE(ReadMemoryJPEGPixelImage(JpegFile().Make(), kMemory)); });
    }
    for (std::thread& other : others) {
        other.join();
    }
    EXPECT_TRUE(IsMapped("libturbojpeg") && IsMapped("ZAMPrintImages") && !IsMapped("ZAMPrintFonts"));
}

TEST(ZAMPixelImageAlone, DISABLED_MakesDoWithoutTheModule) {
    for (const FileBytes& file : AllKinds()) {
        EXPECT_EQ(TextOf(Read(file)) != "null", file[0] == 'B');
    }
}

TEST(ZAMPixelImageTest, OpensItsModuleWithTheFirstPngOrJpeg) {
    EXPECT_TRUE(PassesAlone("ZAMPixelImageAlone.DISABLED_LoadsNothingBeforeThePngOrJpeg"));
    const std::string elsewhere = testing::TempDir() + "zam-no-images-" + std::to_string(getpid());
    std::filesystem::create_directories(elsewhere);
    std::filesystem::copy_file("/proc/self/exe", elsewhere + "/test");
    EXPECT_TRUE(PassesAlone("ZAMPixelImageAlone.DISABLED_MakesDoWithoutTheModule", elsewhere + "/test"));
    std::filesystem::remove_all(elsewhere);
}
