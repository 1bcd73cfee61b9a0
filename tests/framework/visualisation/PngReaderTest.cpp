// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMPixelImageReaders.h"
#include "tests/framework/visualisation/PictureFiles.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr auto kMemory = ZAMReadOnlyState::Memory;

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

TEST(PngReaderTest, ReadsPngOfEveryKind) {
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

// Checksums cover all of a PNG file, those of chunks that are passed over included.
TEST(PngReaderTest, EveryWrongBitOfAPngIsNoticed) {
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
