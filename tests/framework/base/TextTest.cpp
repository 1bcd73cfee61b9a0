// SPDX-License-Identifier: MIT
#include "framework/base/ZAMTextCompare.h"
#include "framework/base/ZAMUnicodeString.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utf8proc.h>

namespace {

std::string Encode(utf8proc_int32_t codePoint) {
    utf8proc_uint8_t bytes[4];
    const auto length = utf8proc_encode_char(codePoint, bytes);
    return {bytes, bytes + length};
}

// The code point's folding by the library's own folding data; -1 when it is not one code point.
utf8proc_int32_t FoldingOf(utf8proc_int32_t codePoint) {
    utf8proc_int32_t folded[8];
    int boundClass = 0;
    return utf8proc_decompose_char(codePoint, folded, 8, UTF8PROC_CASEFOLD, &boundClass) == 1 ? folded[0] : -1;
}

} // namespace

TEST(TextCompareTest, Rows) {
    const struct {
        const char* left;
        const char* right;
        int result;
    } rows[] = {
        {"", "", 2},
        {"", "a", 0},
        {"fill", "fill", 2},
        {"fill", "FILL", 1},
        {"fill", "fills", 0},
        {"f\xC3\xA9", "f\xC3\xA9", 2},
        {"f\xC3\xA9", "F\xC3\x89", 1},
        {"f\xC3\xA9x", "f\xC3\xA9y", 0},
        {"[", "{", 0},
        {"i", "\xC4\xB1", 0}, // Turkish dotless i
        {"I", "\xC4\xB1", 0},
        {"i", "\xC4\xB0", 0}, // Turkish dotted I
        {"\xC4\xB0", "\xC4\xB0", 2},
        {"s", "\xC5\xBF", 1}, // long s
        {"S", "\xC5\xBF", 1},
        {"kilo", "\xE2\x84\xAAILO", 1},    // Kelvin sign
        {"\xE2\x84\xABx", "\xC3\xA5X", 1}, // Angstrom sign
        {"\xCF\x82", "\xCE\xA3", 1},       // final sigma
        {"\xE1\xBA\x9E", "\xC3\x9F", 1},   // capital sharp s
        {"ss", "\xC3\x9F", 0},             // no full folding
        {"\xFF", "\xFF", 2},               // not UTF-8: bytes stand for themselves
        {"\xFF", "\xFE", 0},
        {"a\xC3", "A\xC3", 1},
        {"a\xC3", "a\xC3\xA9", 0},
        {"\x80", "\xC2\x80", 0},
        {"\xED\xA0\x80", "\xED\xA0\x80", 2},
        {"\xED\xA0\x80z", "\xED\xA0\x80Z", 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ZAMCompareText(row.left, row.right), row.result) << row.left << " and " << row.right;
        EXPECT_EQ(ZAMCompareText(row.right, row.left), row.result) << row.right << " and " << row.left;
        EXPECT_EQ(ZAMTextMatches(row.left, row.right), row.result > 0);
        EXPECT_EQ(ZAMFoldText(row.left) == ZAMFoldText(row.right), row.result > 0) << row.left << " and " << row.right;
    }
}

TEST(TextCompareTest, EveryCodePointFoldsAsUnicodeSays) {
    int compared = 0;
    for (utf8proc_int32_t codePoint = 1; codePoint < 0x110000; ++codePoint) {
        const utf8proc_int32_t folded = FoldingOf(codePoint);
        if ((codePoint >= 0xD800 && codePoint < 0xE000) || folded < 0) {
            continue;
        }
        const std::string text = Encode(codePoint);
        for (const auto other : {folded, utf8proc_toupper(codePoint), utf8proc_tolower(codePoint), codePoint}) {
            if (const utf8proc_int32_t otherFolded = FoldingOf(other); otherFolded >= 0) {
                const int expected = other == codePoint ? 2 : (otherFolded == folded ? 1 : 0);
                ASSERT_EQ(ZAMCompareText(text, Encode(other)), expected) << std::hex << codePoint << " and " << other;
                compared += other != codePoint ? 1 : 0;
            }
        }
    }
    EXPECT_GT(compared, 2000);
}

TEST(TextCompareTest, AnyBytesCompare) {
    std::mt19937 random(5);
    for (int i = 0; i < 100'000; ++i) {
        std::string left(random() % 6, 'a');
        std::ranges::generate(left, [&] { return "aA\xC3\xA9\x89\xE2\x84\xAA\xFF\xF0"[random() % 10]; });
        std::string right = left;
        ASSERT_EQ(ZAMCompareText(left, right), 2);
        right += "\xE2";
        ASSERT_EQ(ZAMCompareText(left, right), 0);
    }
}

TEST(UnicodeStringTest, Edits) {
    const struct {
        const char* text;
        const char* pattern;
        const char* replacement;
        const char* result;
    } rows[] = {
        {"a,b,c", ",", " ", "a b c"}, {"aaaa", "aa", "a", "aa"}, {"aaa", "aa", "b", "ba"},
        {"x", "x", "xx", "xx"},       {"abc", "", "-", "abc"},   {"abc", "B", "-", "abc"},
        {"abc", "abcd", "", "abc"},   {"abc", "abc", "", ""},    {"", "a", "b", ""},
    };
    for (const auto& row : rows) {
        ZAMUnicodeString all(row.text);
        all.ReplaceAll(row.pattern, row.replacement);
        EXPECT_EQ(all.View(), row.result);
        ZAMUnicodeString each(row.text);
        each.ReplaceSubString(row.pattern, row.replacement);
        EXPECT_EQ(each, all);
    }

    ZAMUnicodeString text("0123456789");
    text.Remove(8, 100);
    text.Remove(20, 1);
    text.Remove(0, 2);
    text.Remove(1, 0);
    EXPECT_EQ(text.View(), "234567");
    EXPECT_EQ(text.SearchSubString("45"), 2);
    EXPECT_EQ(text.SearchSubString("45", 3), -1);
    EXPECT_EQ(text.SearchSubString("2", 100), -1);
    text = text.View().substr(2); // a part of itself
    EXPECT_STREQ(text.CastToCharPtr(), "4567");

    EXPECT_EQ(ZAMUnicodeString("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80").GetLengthInChar(), 4);
    EXPECT_TRUE(ZAMUnicodeString(static_cast<const char*>(nullptr)).IsEmpty());
}

TEST(UnicodeStringTest, NumbersAreReadByFormat) {
    double number = 7.0;
    unsigned int whole = 7;
    EXPECT_EQ(ZAMUnicodeString(" -1e2x").ConvertToNum(&number, "%le"), 1);
    EXPECT_EQ(number, -100.0);
    EXPECT_EQ(ZAMUnicodeString("-1").ConvertToNum(&whole, "%u"), 1);
    EXPECT_EQ(whole, 4294967295U);
    EXPECT_EQ(ZAMUnicodeString("").ConvertToNum(&number, "%le"), -1);
    EXPECT_EQ(ZAMUnicodeString("x").ConvertToNum(&whole, "%u"), 0);
    EXPECT_EQ(ZAMUnicodeString("5").ConvertToNum(&number, "%lf"), 0);
    EXPECT_EQ(ZAMUnicodeString("5").ConvertToNum(&whole, "%d"), 0);
    EXPECT_EQ(number, -100.0);
    EXPECT_EQ(whole, 4294967295U);
}
