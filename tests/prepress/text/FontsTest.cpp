// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMFont.h"
#include "prepress/text/ZAMPrepressFonts.h"
#include "tests/support/FontFolders.h"

#include <gtest/gtest.h>

namespace {

// With the fonts of the families Liberation and DejaVu.
TEST(PrepressFonts, Choice) {
    const struct {
        const char* family;
        const char* weight;
        const char* style;
        const char* expected; // family, weight, and whether it leans
    } rows[] = {
        {"Liberation Sans", "", "", "Liberation Sans, sans-serif|400"},
        {"'Liberation Sans', Arial", "700", "", "Liberation Sans, Arial, sans-serif|700"},
        {"sans-serif", "", "", "sans-serif|400"},
        {"Arial, SANS-SERIF, x", "", "", "Arial, SANS-SERIF|400"},
        {"", "", "", "serif|400"},
        {"Nowhere,Sans,monospace", "", "", "Nowhere, sans-serif|400"}, // a word for it on Linux
        {"Nowhere", "", "", "Nowhere, serif|400"},
        {"Bitstream Vera Sans", "", "", "Bitstream Vera Sans, DejaVu Sans, sans-serif|400"},
        {"Nowhere, Vera Sans Mono, Verdana", "", "",
         "Nowhere, Vera Sans Mono, Verdana, monospace|400"}, // what it is like
        {"liberation sans", "", "italic", "Liberation Sans Italic|400"},
        {"Liberation Sans", "700", "oblique", "Liberation Sans Bold Italic|400"},
        {"Nowhere, serif", "", "italic", "Liberation Serif Italic|400"},
        {"", "", "italic", "Liberation Serif Italic|400"},
        {"monospace", "900", "italic", "Liberation Mono Bold Italic|400"},
        {"Arial", "", "italic", "Liberation Sans Italic|400"}, // of the font that stands in for it
        {"Liberation Sans", "600", "", "Liberation Sans Bold|400"},
        {"Liberation Sans", "500", "", "Liberation Sans, sans-serif|400"},
        {"Liberation Sans", "100", "", "Liberation Sans, sans-serif|400"},
        {"DejaVu Sans", "200", "", "DejaVu Sans ExtraLight|400"},
        {"DejaVu Sans", "300", "oblique", "DejaVu Sans Oblique|400"},
        {"DejaVu Math TeX Gyre", "", "italic", "DejaVu Math TeX Gyre, serif|400 leans"},
        {"DejaVu Math TeX Gyre", "800", "italic", "DejaVu Math TeX Gyre, serif|700 leans"},
    };
    ZAMPrepressFonts fonts;
    for (const auto& [family, weight, style, expected] : rows) {
        ZAMPrepressElement element;
        element.attributes = {{"font-family", family}, {"font-weight", weight}, {"font-style", style}};
        const ZAMPrepressFont& font = fonts.Find(element);
        EXPECT_EQ(font.family + '|' + std::string(font.weight) + (font.leans ? " leans" : ""), expected) << family;
        EXPECT_EQ(&fonts.Find(element), &font) << "asked again";
    }
}

// What is written down is what the text was measured with.
TEST(PrepressFonts, NamesLeadToTheFace) {
    ZAMPrepressFonts fonts;
    for (const char* const family : {"Liberation Sans", "Liberation Serif", "DejaVu Sans", "DejaVu Serif"}) {
        for (const char* const weight : {"100", "400", "700", "900"}) {
            ZAMPrepressElement element;
            element.attributes = {{"font-family", family}, {"font-weight", weight}, {"font-style", "italic"}};
            const ZAMPrepressFont& font = fonts.Find(element);
            ASSERT_NE(fonts.GetStyle(font).font, nullptr);
            EXPECT_EQ(fonts.GetStyle(font).font->GetFace().fullName, font.family);
            EXPECT_NE(fonts.GetStyle(font).font->GetFace().slant, 0) << font.family;
            ZAMPrepressElement named;
            named.attributes = {{"font-family", font.family}};
            EXPECT_EQ(fonts.GetStyle(fonts.Find(named)).font, fonts.GetStyle(font).font) << font.family;
        }
    }
}

} // namespace
