// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPixels.h"

#include <gtest/gtest.h>

namespace {

TEST(Pixels, FitWithinACount) {
    struct Row {
        ZAMPrepressPixels size;
        std::size_t count;
        ZAMPrepressPixels expected;
    };
    const Row rows[] = {
        {{10, 20}, 200, {10, 20}}, {{100, 200}, 200, {10, 20}}, {{4096, 1}, 100, {100, 1}}, {{1, 4096}, 100, {1, 100}},
        {{4096, 2}, 64, {64, 1}},  {{3, 4000}, 6, {1, 6}},      {{7, 7}, 1, {1, 1}},        {{1000, 3}, 500, {408, 1}},
    };
    for (const Row& row : rows) {
        const ZAMPrepressPixels size = row.size.Within(row.count);
        EXPECT_EQ(size.width, row.expected.width) << row.size.width << " x " << row.size.height;
        EXPECT_EQ(size.height, row.expected.height) << row.size.width << " x " << row.size.height;
        EXPECT_LE(size.GetCount(), row.count);
    }
}

} // namespace
