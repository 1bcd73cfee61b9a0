// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMFont.h"
#include "tests/support/FontFolders.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGFontFinder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

// What each name means is shown by whole documents; here is what it costs.
TEST(FontFinder, GoesThroughTheInstalledFontsOnce) {
    const auto secondsOf = [](ZAMPrintSVGFontFinder& finder, const std::string& families, bool known) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(finder.FindInList(families) != nullptr, known);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    ASSERT_GT(ZAMFont::sGetFontCount(), 10); // the list is read
    ZAMPrintSVGFontFinder finder;
    const double once = secondsOf(finder, "Nowhere", false);
    std::string families;
    for (int i = 0; i < 10000; ++i) {
        families += "Nowhere " + std::to_string(i) + ",";
    }
    EXPECT_LT(secondsOf(finder, families, false), 1000 * once); // 10000 searches would take 10000 times as long
    EXPECT_LT(secondsOf(finder, families + "Liberation Sans", true), 1000 * once);
}
