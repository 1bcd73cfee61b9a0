// SPDX-License-Identifier: MIT
#include "framework/base/ZAMNumberReading.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>

namespace {

constexpr double kUntouched = -77.25;

bool IsSameDouble(double left, double right) {
    return (std::isnan(left) && std::isnan(right)) ||
           std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

// Both readers against the standard scan, which this process runs in the "C" locale.
void ExpectAsTheScan(const std::string& text) {
    double scanned = kUntouched;
    double read = kUntouched;
    const int scanResult = std::sscanf(text.c_str(), "%le", &scanned);
    const int readResult = ZAMReadDouble(text, read);
    EXPECT_EQ(readResult, scanResult) << '"' << text << '"';
    if (scanResult == 1) {
        EXPECT_TRUE(IsSameDouble(read, scanned)) << '"' << text << "\": " << read << " instead of " << scanned;
    } else {
        EXPECT_EQ(read, kUntouched) << '"' << text << '"';
    }

    unsigned int scannedUnsigned = 77;
    unsigned int readUnsigned = 77;
    EXPECT_EQ(ZAMReadUnsigned(text, readUnsigned), std::sscanf(text.c_str(), "%u", &scannedUnsigned))
        << '"' << text << '"';
    EXPECT_EQ(readUnsigned, scannedUnsigned) << '"' << text << '"';

    double plain = kUntouched;
    if (ZAMReadPlainDouble(text, plain)) {
        EXPECT_TRUE(IsSameDouble(plain, scanned)) << '"' << text << '"';
    } else {
        EXPECT_EQ(plain, kUntouched) << '"' << text << '"';
    }
}

std::string MakeText(std::mt19937& random, std::string_view alphabet, std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) {
        c = alphabet[random() % alphabet.size()];
    }
    return text;
}

} // namespace

TEST(NumberReadingTest, RowsReadAsTheScanReadsThem) {
    // One text between two bars; the first is empty.
    std::istringstream rows(
        "| |  |\t|\t5|\f5|\v\r\n5|\xC2\xA0+5|5|+5|-5|--5|+-5|+ 5|- 5|-|+|.|-.|.5|+.5|-.5|5.|..5|.5.5|5mm|"
        "1em|1,5|1'000|1_0|007|-0|-0.0|1e|1E|1e+|1e-|1e+-5|1e5|1E-5|5.e1|.e1|e5|1e 5|0e|1e5.5|inf|INF|infi|"
        "infin|infinit|infinity|Infinityx|-inf|i|in|nan|NaN|-nan|na|nan(1)|nan(|\xC4\xB1nf|0x|0X|0x.|0x.p1|"
        "0xp5|0xg|0x10|0X1P3|-0x1.8p-1|0x1p|0x1p+|0x1.p2|0x.8|00x1|1p3|0b1|1e400|-1e400|1e-400|-1e-400|"
        "0x1p5000|-0x1p-5000|0e99999999999999999999|0x0p99999999999|2.2250738585072011e-308|4.9e-324|"
        "2.5e-324|2.4e-324|1.7976931348623158e308|1.7976931348623159e308|0x1p-1074|0x1p-1075|0x1.8p-1075|"
        "0x1.0000000000001p-1075|0x1.fffffffffffff7p1023|0x1.fffffffffffff8p1023|9007199254740993|"
        "0.1000000000000000055511151231257827021181583404541015625|1e9223372036854775807|"
        "10e9223372036854775807|0.01e-9223372036854775807|0x1p9223372036854775807|"
        "0x.01p-9223372036854775808|1e99999999999999999999|1e-99999999999999999999|"
        "0x1p-99999999999999999999|-1|4294967295|4294967296|-4294967297|18446744073709551615|"
        "18446744073709551616|-18446744073709551616|99999999999999999999|99999999999999999999999999999|12.5");
    for (std::string row; std::getline(rows, row, '|');) {
        ExpectAsTheScan(row);
    }
    // Without an exponent, from the count of digits alone.
    ExpectAsTheScan("1" + std::string(400, '0'));
    ExpectAsTheScan("0." + std::string(400, '0') + "1");
    ExpectAsTheScan("0." + std::string(400, '0') + "1e390");
    ExpectAsTheScan("1" + std::string(400, '0') + "e-390");
}

TEST(NumberReadingTest, RandomTextsReadAsTheScanReadsThem) {
    std::mt19937 random(20240611);
    for (int i = 0; i < 200'000 && !testing::Test::HasFailure(); ++i) {
        ExpectAsTheScan(MakeText(random, "0123456789.eE+-xXpPinfatyINF ()a\t0011..", 12));
        ExpectAsTheScan(MakeText(random, "0123456789.e-", 30));
        ExpectAsTheScan("0x" + MakeText(random, "0189afF.p-", 24));
    }
}

TEST(NumberReadingTest, APlainNumberIsOneNumberAndNothingElse) {
    const struct {
        const char* text;
        bool plain;
    } rows[] = {{"12", true},    {"-.5", true},  {"1e3", true},    {"1.5E-3", true}, {"", false},    {"-", false},
                {"+5", false},   {" 5", false},  {"5 ", false},    {"1e", false},    {"5mm", false}, {"inf", false},
                {"-nan", false}, {"0x1", false}, {"1e400", false}, {"--1", false},   {".", false}};
    for (const auto& row : rows) {
        double value = kUntouched;
        EXPECT_EQ(ZAMReadPlainDouble(row.text, value), row.plain) << row.text;
    }
}

TEST(NumberReadingTest, ANumberWithoutExponentIsTakenAndTheRestIsLeft) {
    const struct {
        const char* text;
        const char* rest;
    } rows[] = {{"12", ""},      {"-.5 7", " 7"}, {"5.", ""},     {"1.5e3", "e3"}, {"1-2", "-2"},   {"0.1.2", ".2"},
                {"007,1", ",1"}, {"-0", ""},      {"", nullptr},  {"-", nullptr},  {".", nullptr},  {"+1", nullptr},
                {" 1", nullptr}, {"e5", nullptr}, {"12mm", "mm"}, {"0x1", "x1"},   {"inf", nullptr}};
    for (const auto& row : rows) {
        std::string_view text = row.text;
        double value = kUntouched;
        ASSERT_EQ(ZAMTakePlainDouble(text, value), row.rest != nullptr) << row.text;
        EXPECT_EQ(text, row.rest == nullptr ? row.text : row.rest) << row.text;
        const std::string taken(row.text, text.data());
        EXPECT_TRUE(row.rest == nullptr ? value == kUntouched
                                        : IsSameDouble(value, std::strtod(taken.c_str(), nullptr)))
            << row.text;
    }
    // Too large without an exponent.
    const std::string huge = "1" + std::string(400, '0');
    std::string_view text = huge;
    double value = kUntouched;
    EXPECT_FALSE(ZAMTakePlainDouble(text, value));
    EXPECT_EQ(value, kUntouched);
}

// About the lengths at which the quick way of reading hands over to the library, and at values between two doubles.
TEST(NumberReadingTest, RandomCoordinatesAreRoundedRightly) {
    std::mt19937_64 random(53); // NOLINT: every run tries the same numbers
    for (int i = 0; i < 200'000 && !testing::Test::HasFailure(); ++i) {
        std::string number = std::to_string(random() >> random() % 64);
        number.insert(random() % (number.size() + 1), ".");
        number.insert(0, std::string(random() % 4, '0'));
        ExpectAsTheScan((random() % 2 == 0 ? "-" : "") + number);
    }
    for (const char* text : {"9007199254740992", "9007199254740993", "900719925474099.3", "9007199254740993.0",
                             "0.0000000000000000001", "0.00000000000000000001", "9999999999999999999"}) {
        ExpectAsTheScan(text);
    }
}

TEST(NumberReadingTest, TheTextNeedsNoTerminator) {
    const std::string_view text = "12345";
    double number = 0.0;
    unsigned int whole = 0;
    EXPECT_EQ(ZAMReadDouble(text.substr(0, 2), number), 1);
    EXPECT_EQ(number, 12.0);
    EXPECT_EQ(ZAMReadUnsigned(text.substr(1, 3), whole), 1);
    EXPECT_EQ(whole, 234U);
}
