// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMPixelImageReaders.h"
#include "tests/framework/visualisation/PictureFiles.h"

#include <gtest/gtest.h>

namespace {

constexpr auto kMemory = ZAMReadOnlyState::Memory;

} // namespace

TEST(BmpReaderTest, ReadsBmpOfEveryKind) {
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

TEST(BmpReaderTest, DoesNotBelieveWhatABmpSaysOfItsParts) {
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
