// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressLength.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();

TEST(Length, Units) {
    const std::pair<const char*, double> rows[] = {
        {"5", 5.0},          {" -.5e1 ", -5.0}, {"+5.", 5.0},           {"5px", 5.0},
        {"72pt", 90.0},      {"6pc", 90.0},     {"1in", 90.0},          {"2.54cm", 90.0},
        {"25.4mm", 90.0},    {"101.6Q", 90.0},  {"10MM", 900.0 / 25.4}, {"25%", 50.0},
        {"2em", 20.0},       {"2ex", 10.0},     {"1e1em", 100.0},       {"2rem", 32.0},
        {"", kNone},         {"px", kNone},     {"5 px", kNone},        {"5p", kNone},
        {"5,5", kNone},      {"1e999", kNone},  {"0x10", kNone},        {"nan", kNone},
        {"infinity", kNone}, {"5;", kNone},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_DOUBLE_EQ(ZAMPrepressReadLength(text, {200.0, 10.0}).value_or(kNone), expected) << text;
    }
}

TEST(Length, Numbers) {
    const std::pair<const char*, double> rows[] = {
        {"5", 5.0}, {"\t5\n", 5.0}, {"5px", kNone}, {"5 5", kNone}, {"", kNone}, {"-", kNone}, {".", kNone},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_DOUBLE_EQ(ZAMPrepressReadNumber(text).value_or(kNone), expected) << text;
    }
}

TEST(Length, Writing) {
    const std::pair<double, const char*> rows[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3.0, "0.3333333333"},
        {-200000.0 / 3.0, "-66666.66667"},
        {0.99999999999, "1"},
        {9999999999.9, "10000000000"},
        {100000.0, "100000"},
        {123456789012345.0, "123456789000000"},
        {1e-4, "0.0001"},
        {1e-7, "1e-07"},
        {1.0 / 3e7, "3.333333333e-08"},
        {1e20, "1e+20"},
        {-1.7e308, "-1.7e+308"},
        {5e-324, "5e-324"},
        {kNone, "0"},
    };
    for (const auto& [number, expected] : rows) {
        EXPECT_EQ(ZAMPrepressNumberText(number), expected);
    }
}

TEST(Length, ViewBoxes) {
    using Box = std::array<double, 4>;
    EXPECT_EQ(ZAMPrepressReadViewBox(" 1,2 3\n4 "), (Box{1.0, 2.0, 3.0, 4.0}));
    EXPECT_EQ(ZAMPrepressReadViewBox("-1-2 .5.5"), (Box{-1.0, -2.0, 0.5, 0.5}));
    EXPECT_EQ(ZAMPrepressReadViewBox("0 0 0 0"), Box{});
    for (const char* const text : {"", "1 2 3", "1 2 3 4 5", "1 2 -3 4", "1 2 3 4px", "1,,2 3 4", "0 0 1e999 1"}) {
        EXPECT_FALSE(ZAMPrepressReadViewBox(text)) << text;
    }
}

TEST(Length, RootViewport) {
    const auto viewport = [](std::pmr::vector<ZAMPrepressElement::Attribute> attributes) {
        ZAMPrepressElement root;
        root.attributes = std::move(attributes);
        return ZAMPrepressViewportSize::OfRoot(root);
    };
    EXPECT_DOUBLE_EQ(viewport({{"width", "1in"}, {"height", "5"}}).width, 90.0);
    EXPECT_DOUBLE_EQ(viewport({{"width", "1in"}, {"height", "5"}, {"viewBox", "1 1 30 40"}}).height, 40.0);
    EXPECT_DOUBLE_EQ(viewport({{"viewBox", "1 1 30 40"}}).GetDiagonal(), 50.0 / std::sqrt(2.0));
    EXPECT_DOUBLE_EQ(viewport({{"width", "100%"}}).width, 0.0);
}

} // namespace
