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
#include <iomanip>
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

// The rows separated by blanks, "null" when there is no picture.
std::string TextOf(const ZAMRef<ZAMPixelImage>& image) {
    std::ostringstream text;
    text << std::hex << std::setfill('0');
    for (std::size_t i = 0; image && i < image->GetPixels().size(); ++i) {
        text << (i == 0                                                 ? ""
                 : i % static_cast<std::size_t>(image->GetWidth()) == 0 ? " "
                                                                        : ",")
             << std::setw(8) << image->GetPixels()[i];
    }
    return image ? text.str() : "null";
}

std::uint32_t PixelOf(double red, double green, double blue, double alpha) {
    const auto part = [&](double value) { return static_cast<std::uint32_t>(std::lround(value * alpha / 255.0)); };
    return static_cast<std::uint32_t>(std::lround(alpha)) << 24U | part(red) << 16U | part(green) << 8U | part(blue);
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

struct PngRow {
    std::uint32_t colourType;
    std::uint32_t depth;
    bool hasTransparency;
};

std::uint32_t SampleOf(std::uint32_t x, std::uint32_t y, std::uint32_t channel, std::uint32_t depth) {
    return (x * 7919 + y * 104729 + channel * 31337 + x * y * 4099) >> 3U & ((1U << depth) - 1U);
}

// Two bytes for each channel of the first pixel, or the alpha of the first two colours.
FileBytes TransparencyOf(const PngRow& row) {
    if (row.colourType == 3) {
        return {0, 100};
    }
    FileBytes key;
    for (std::uint32_t channel = 0; channel < (row.colourType == 0 ? 1U : 3U); ++channel) {
        const std::uint32_t sample = SampleOf(0, 0, channel, row.depth);
        key.insert(key.end(), {static_cast<unsigned char>(sample >> 8U), static_cast<unsigned char>(sample)});
    }
    return key;
}

FileBytes PaletteOf(std::uint32_t depth) {
    FileBytes palette;
    for (std::uint32_t i = 0; i < 1U << depth; ++i) {
        palette.insert(palette.end(), {static_cast<unsigned char>(i * 5), static_cast<unsigned char>(255 - i), 77});
    }
    return palette;
}

std::uint32_t ExpectedPixel(const PngRow& row, std::uint32_t x, std::uint32_t y) {
    const auto sample = [&](std::uint32_t channel) { return SampleOf(x, y, channel, row.depth); };
    const auto value = [&](std::uint32_t channel) {
        return std::round(sample(channel) * 255.0 / ((1U << row.depth) - 1U));
    };
    if (row.colourType == 3) {
        const double alpha = !row.hasTransparency || sample(0) > 1 ? 255 : sample(0) == 0 ? 0 : 100;
        return PixelOf(sample(0) * 5 % 256, 255 - sample(0), 77, alpha);
    }
    const bool isGrey = row.colourType == 0 || row.colourType == 4;
    bool isKey = row.hasTransparency;
    for (std::uint32_t channel = 0; channel < (isGrey ? 1U : 3U); ++channel) {
        isKey = isKey && sample(channel) == SampleOf(0, 0, channel, row.depth);
    }
    const double alpha = isKey ? 0 : row.colourType == 4 ? value(1) : row.colourType == 6 ? value(3) : 255;
    return PixelOf(value(0), value(isGrey ? 0 : 1), value(isGrey ? 0 : 2), alpha);
}

void ExpectPng(const PngRow& row, std::uint32_t width, std::uint32_t height, bool isInterlaced) {
    PngFile png{.width = width,
                .height = height,
                .depth = row.depth,
                .colourType = row.colourType,
                .isInterlaced = isInterlaced};
    png.sample = [&](auto x, auto y, auto channel) { return SampleOf(x, y, channel, row.depth); };
    // A gamma that would change the colours, and a profile that cannot be inflated.
    png.chunks = PngFile::Chunk("gAMA", FromHex("00000001"));
    const FileBytes more[] = {PngFile::Chunk("iCCP", FromHex("41000000000000")),
                              row.colourType == 3 ? PngFile::Chunk("PLTE", PaletteOf(row.depth)) : FileBytes(),
                              row.hasTransparency ? PngFile::Chunk("tRNS", TransparencyOf(row)) : FileBytes()};
    for (const FileBytes& chunk : more) {
        png.chunks.insert(png.chunks.end(), chunk.begin(), chunk.end());
    }
    const auto image = ReadMemoryPNGPixelImage(png.Make(), kMemory);
    ASSERT_TRUE(image);
    ASSERT_EQ(std::pair(image->GetWidth(), image->GetHeight()),
              std::pair(static_cast<int>(width), static_cast<int>(height)));
    EXPECT_TRUE(image->GetJpeg().empty());
    bool isOpaque = true;
    for (std::uint32_t i = 0; i < width * height; ++i) {
        const std::uint32_t expected = ExpectedPixel(row, i % width, i / width);
        EXPECT_EQ(image->GetPixels()[i], expected) << i;
        isOpaque = isOpaque && expected >> 24U == 255;
    }
    EXPECT_EQ(image->IsOpaque(), isOpaque);
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

TEST(ZAMPixelImageTest, ReadsPngOfEveryKind) {
    const PngRow rows[] = {{0, 1, false}, {0, 2, false}, {0, 4, false}, {0, 8, false},  {0, 16, false}, {0, 1, true},
                           {0, 4, true},  {0, 8, true},  {0, 16, true}, {2, 8, false},  {2, 16, false}, {2, 8, true},
                           {2, 16, true}, {3, 1, false}, {3, 2, false}, {3, 4, false},  {3, 8, false},  {3, 1, true},
                           {3, 4, true},  {3, 8, true},  {4, 8, false}, {4, 16, false}, {6, 8, false},  {6, 16, false}};
    for (const PngRow& row : rows) {
        for (const bool isInterlaced : {false, true}) {
            SCOPED_TRACE(testing::Message() << "type " << row.colourType << " depth " << row.depth << " tRNS "
                                            << row.hasTransparency << " interlaced " << isInterlaced);
            ExpectPng(row, 1, 1, isInterlaced);
            ExpectPng(row, 3, 10, isInterlaced);
            ExpectPng(row, 19, 5, isInterlaced);
        }
    }
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

TEST(ZAMPixelImageTest, ReadsBmpOfEveryKind) {
    // The column "more" is what a long header has behind its first 40 bytes, else what stands between header and data.
    const char* const kColours = "0000FF00 00FF0000 FF000000 FFFFFF00"; // red, green, blue, white
    const struct {
        const char* name;
        std::int32_t width;
        std::int32_t height;
        std::uint32_t bits;
        std::uint32_t compression;
        std::uint32_t headerSize;
        const char* more;
        const char* data;
        const char* pixels;
    } rows[] = {
        {"plain", 1, 2, 24, 0, 40, "", "010203FF 040506", "ff060504 ff030201"},
        {"top-down", 1, -2, 24, 0, 40, "", "010203FF 040506", "ff030201 ff060504"},
        {"no alpha", 1, 1, 32, 0, 40, "", "01020304", "ff030201"},
        {"5 bits each", 2, 1, 16, 0, 40, "", "1F7C 2104", "ffff00ff,ff080808"},
        {"5, 6, 5", 2, 1, 16, 3, 40, "00F80000 E0070000 1F000000", "FFFF 2000", "ffffffff,ff000400"},
        {"alpha of 1 bit", 2, 1, 16, 3, 56, "007C0000 E0030000 1F000000 00800000", "1F80 1F00", "ff0000ff,00000000"},
        {"no alpha yet", 1, 1, 32, 3, 52, "FF000000 00FF0000 0000FF00", "01020300", "ff010203"},
        {"10 bits, version 5", 1, 1, 32, 3, 124, "0000F03F 00FC0F00 FF030000 000000C0", "FF03F0FF", "ffff00ff"},
        {"alpha, version 4", 1, 1, 32, 3, 108, "0000FF00 00FF0000 FF000000 000000FF", "FF804033", "330d1a33"},
        {"masks do not count", 1, 1, 32, 0, 108, "01000000 02000000 04000000 08000000", "01020300", "ff030201"},
        {"alpha bit fields", 1, 1, 32, 6, 40, "FF000000 00FF0000 0000FF00 000000FF", "FFFF0080", "80808000"},
        {"a field without bits", 1, 1, 32, 3, 52, "FFFFFFFF 00000000 01000000", "FFFFFFFF", "ffff00ff"},
        {"a torn field", 1, 1, 32, 3, 52, "FF000000 000F0F00 01000000", "FFFFFFFF", "null"},
        {"bit fields of 24 bits", 1, 1, 24, 3, 52, "01000000 02000000 04000000", "00000000", "null"},
        {"8 bits", 4, 1, 8, 0, 40, kColours, "03020100", "ffffffff,ff0000ff,ff00ff00,ffff0000"},
        {"beyond the palette", 2, 1, 8, 0, 40, kColours, "04FF0000", "ff000000,ff000000"},
        {"no palette", 2, 1, 1, 0, 40, "", "80000000", "ff000000,ff000000"},
        {"4 bits", 3, 1, 4, 0, 40, kColours, "123F0000", "ff00ff00,ff0000ff,ffffffff"},
        {"1 bit", 3, 1, 1, 0, 40, kColours, "5F", "ffff0000,ff00ff00,ffff0000"},
        {"1 bit in two bytes", 1, 2, 1, 0, 40, kColours, "80000000 00", "ffff0000 ff00ff00"},
        {"OS/2 1", 1, 1, 8, 0, 12, "000000 010203", "01", "ff030201"},
        {"OS/2 2, shortest", 1, 1, 8, 0, 16, kColours, "01", "ff00ff00"},
        {"OS/2 2", 1, 1, 24, 0, 64, "", "010203", "ff030201"},
        {"Huffman codes", 1, 1, 1, 3, 64, "", "00000000", "null"},
        {"JPEG inside", 1, 1, 24, 4, 40, "", "00000000", "null"},
        {"RLE8", 3, 2, 8, 1, 40, kColours, "0201 0102 0000 0003 000102AA 0001",
         "ffff0000,ff00ff00,ff0000ff ff00ff00,ff00ff00,ff0000ff"},
        {"RLE8, a short line", 2, 2, 8, 1, 40, kColours, "0101 0000 0503 0001", "ffffffff,ffffffff ff00ff00,00000000"},
        {"RLE8, two bytes on", 2, 1, 8, 1, 40, kColours, "0004 03020100 0001", "ffffffff,ff0000ff"},
        {"RLE8 that moves", 2, 3, 8, 1, 40, kColours, "0101 00020002 0103 0001",
         "00000000,ffffffff 00000000,00000000 ff00ff00,00000000"},
        {"RLE8 that moves away", 1, 2, 8, 1, 40, kColours, "0002FFFF", "00000000 00000000"},
        {"RLE8 without an end", 2, 1, 8, 1, 40, kColours, "0203", "ffffffff,ffffffff"},
        {"RLE4", 3, 2, 4, 2, 40, kColours, "0312 0000 0003 1230 0001",
         "ff00ff00,ff0000ff,ffffffff ff00ff00,ff0000ff,ff00ff00"},
        {"RLE4, top-down", 1, -2, 4, 2, 40, kColours, "0110 0000 0120", "ff00ff00 ff0000ff"},
        {"RLE8 of 4 bits", 1, 1, 4, 1, 40, kColours, "0100 0001", "null"},
        {"no width", 0, 1, 24, 0, 40, "", "01020300", "null"},
        {"no height", 1, 0, 24, 0, 40, "", "01020300", "null"},
        {"a negative width", -1, 1, 24, 0, 40, "", "01020300", "null"},
        {"the lowest height", 1, INT32_MIN, 24, 0, 40, "", "01020300", "null"},
        {"2 bits", 1, 1, 2, 0, 40, kColours, "00000000", "null"},
        {"a header too long", 1, 1, 24, 0, 125, "", "01020300", "null"}};
    for (const auto& row : rows) {
        const bool isLong = row.headerSize > 40;
        const BmpFile file{.width = row.width,
                           .height = row.height,
                           .bits = row.bits,
                           .compression = row.compression,
                           .headerSize = row.headerSize,
                           .laterFields = FromHex(isLong ? row.more : ""),
                           .between = FromHex(isLong ? "" : row.more),
                           .data = FromHex(row.data)};
        EXPECT_EQ(TextOf(ReadMemBMPPixelImage(file.Make(), kMemory)), row.pixels) << row.name;
    }
}

TEST(ZAMPixelImageTest, DoesNotBelieveWhatABmpSaysOfItsParts) {
    const struct {
        std::uint32_t colourCount;
        std::int32_t offsetError;
        const char* pixels;
    } rows[] = {{0, 0, "ff00ff00"},          {1, 0, "ff000000"}, {2, 0, "ff00ff00"}, {0xFFFFFFFF, 0, "ff00ff00"},
                {0, -4, "ffff0000"},         {0, -9, "null"},    {0, 1, "null"},     {0, 2, "null"},
                {0, INT32_MAX - 100, "null"}};
    for (const auto& row : rows) {
        const BmpFile file{.bits = 8,
                           .colourCount = row.colourCount,
                           .between = FromHex("0000FF00 00FF0000"),
                           .data = FromHex("01"),
                           .offsetError = row.offsetError};
        EXPECT_EQ(TextOf(ReadMemBMPPixelImage(file.Make(), kMemory)), row.pixels)
            << row.colourCount << ' ' << row.offsetError;
    }
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

// Checksums cover all of a PNG file, those of chunks that are passed over included.
TEST(ZAMPixelImageTest, EveryWrongBitOfAPngIsNoticed) {
    PngFile png{.width = 2, .height = 2, .sample = [](auto x, auto y, auto) { return x + y; }};
    png.chunks = PngFile::Chunk("tEXt", FromHex("410042"));
    FileBytes file = png.Make();
    ASSERT_TRUE(ReadMemoryPNGPixelImage(file, kMemory));
    for (std::size_t bit = 0; bit < file.size() * 8; ++bit) {
        file[bit / 8] ^= static_cast<unsigned char>(1U << bit % 8);
        EXPECT_FALSE(ReadMemoryPNGPixelImage(file, kMemory)) << bit;
        file[bit / 8] ^= static_cast<unsigned char>(1U << bit % 8);
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
    EXPECT_TRUE(ZAMAllocationBudget::SpendPixels(ZAMAllocationBudget::kPixels - ZAMPixelImage::kMostPixels - 9));
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
