// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/base64/ConvertFromBase64Buffer.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace {

// What comes of a text: the result, and the bytes in hexadecimal.
std::string Decoded(std::string_view text) {
    std::vector<unsigned char> bytes(text.size() + 1, 0xEE); // one more, to see that it stays
    unsigned int length = 77;
    const int result =
        ConvertFromBase64Buffer(text.data(), static_cast<unsigned int>(text.size()), bytes.data(), length);
    EXPECT_LE(length, text.size()) << text;
    EXPECT_EQ(bytes.at(text.size()), 0xEE) << text;
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string hex = std::to_string(result) + ":";
    for (unsigned int i = 0; i < length; ++i) {
        hex += kDigits.at(bytes.at(i) >> 4U);
        hex += kDigits.at(bytes.at(i) & 15U);
    }
    return hex;
}

} // namespace

TEST(ConvertFromBase64BufferTest, GroupsAndPadding) {
    const struct {
        std::string_view text;
        std::string_view decoded;
    } rows[] = {
        {"TWFu", "1:4d616e"},
        {"AAAA////", "1:000000ffffff"},
        {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/",
         "1:00108310518720928b30d38f41149351559761969b71d79f8218a39259a7a29aabb2dbafc31cb3d35db7e39ebbf3dfbf"},
        // Fewer than four are not read, whatever they are.
        {"T", "1:"},
        {"!!!", "1:"},
        {"TWFuT", "1:4d616e"},
        {"TWFu!?*", "1:4d616e"},
        // One byte more than others read, and only "=" alone lets the text go on.
        {"TWE=", "1:4d6100"},
        {"TWF=", "1:4d6140"},
        {"TWE=TWFu", "1:4d61004d616e"},
        {"TQ==", "1:4d00"},
        {"Tf==", "1:4df0"},
        {"TW=u", "1:4d60"},
        {"TQ==TWFu", "1:4d00"},
        {"TQ==!!!!", "1:4d00"},
        {"T===", "1:4c"},
        {"/=AA", "1:fc"},
        {"T===TWFu", "1:4c"},
        {"====TWFu", "1:"},
        {"=AAA", "1:"},
        {"TWFu====", "1:4d616e"},
        // A bad character spoils its group, also one that is padded, and ends all.
        {"TWFu!AAA", "-1:4d616e"},
        {"A!AA", "-1:"},
        {"AA!A", "-1:"},
        {"AAA!", "-1:"},
        {"TQ=!", "-1:"},
        {"=!==", "-1:"},
        {"TWE=T-E=", "-1:4d6100"},
        {"TW E", "-1:"},
        {"TWF\n", "-1:"},
        {std::string_view("TW\0u", 4), "-1:"},
        {"TW\xC3\xA9", "-1:"},
        {"TW_u", "-1:"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Decoded(row.text), row.decoded) << row.text;
    }
}

TEST(ConvertFromBase64BufferTest, WithoutTextOrRoomNothingIsTouched) {
    unsigned char byte = 7;
    unsigned int length = 77;
    EXPECT_EQ(ConvertFromBase64Buffer(nullptr, 4, &byte, length), 0);
    EXPECT_EQ(ConvertFromBase64Buffer("AAAA", 0, &byte, length), 0);
    EXPECT_EQ(ConvertFromBase64Buffer("AAAA", 4, nullptr, length), 0);
    EXPECT_EQ(length, 77U);
    EXPECT_EQ(byte, 7);
}
