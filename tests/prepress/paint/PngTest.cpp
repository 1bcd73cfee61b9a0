// SPDX-License-Identifier: MIT
#include "tests/prepress/paint/Png.h"

#include "prepress/paint/ZAMPrepressBase64.h"
#include "prepress/paint/ZAMPrepressPng.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using Colour = std::function<std::uint32_t(std::uint32_t column, std::uint32_t row)>;

ZAMPrepressPicture Paint(std::uint32_t width, std::uint32_t height, const Colour& colour) {
    ZAMPrepressPicture picture{width, height, {}};
    for (std::uint32_t row = 0; row < height; ++row) {
        for (std::uint32_t column = 0; column < width; ++column) {
            picture.pixels.push_back(colour(column, row));
        }
    }
    return picture;
}

TEST(Png, FilesHoldThePixels) {
    struct Row {
        const char* name;
        ZAMPrepressPicture picture;
        char colourType; // as the header has it
    };
    const Row rows[] = {
        {"one pixel", Paint(1, 1, [](auto, auto) { return 0xFF123456; }), 3},
        {"transparent pixel", Paint(1, 1, [](auto, auto) { return 0x00000000; }), 3},
        {"256 colours", Paint(16, 16, [](auto x, auto y) { return 0xFF000000 | x << 4U | y << 12U; }), 3},
        {"257 colours", Paint(257, 1, [](auto x, auto) { return 0xFF000000 + x; }), 2},
        {"alphas of a palette", Paint(255, 2, [](auto x, auto) { return x << 24U | 0x00ABCDEF; }), 3},
        {"slope", Paint(300, 40, [](auto x, auto y) { return 0xFF000000 | x % 256U << 16U | (x + 3U * y) % 256U; }), 2},
        {"noise", Paint(61, 67, [](auto x, auto y) { return (x * 2654435761U) ^ (y * 40503U * 65537U); }), 6},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string file = ZAMPrepressWritePng(row.picture);
        const auto decoded = DecodePng(file);
        ASSERT_TRUE(decoded);
        EXPECT_EQ(file[25], row.colourType);
        EXPECT_EQ(decoded->width, row.picture.width);
        EXPECT_EQ(decoded->height, row.picture.height);
        EXPECT_EQ(decoded->pixels, row.picture.pixels);
    }
}

// The examples of RFC 4648, 10, and bytes with the highest bit set.
TEST(Base64, EncodesGroupsOfThree) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {"\xFF\xFE\xFB", "//77"},
    };
    for (const auto& [bytes, expected] : rows) {
        std::string text = ">";
        ZAMPrepressAddBase64(bytes, text);
        EXPECT_EQ(text, ">" + std::string(expected));
    }
}

} // namespace
