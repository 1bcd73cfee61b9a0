// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressDashes.h"
#include "prepress/style/ZAMPrepressDeclarations.h"
#include "prepress/style/ZAMPrepressMedia.h"
#include "prepress/style/ZAMPrepressProperties.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* property;
    const char* value;
    const char* computed; ///< null when the value is in error
};

TEST(PrepressValues, AreComputed) {
    // The font's size is 20, the parent's weight 400, the viewport 300 by 400 (its percentages of the diagonal
    // 353.55…).
    constexpr ZAMPrepressValueBases kBases{20.0, 400, {300.0, 400.0}};
    constexpr Row kRows[] = {
        {"color", "RED", "#ff0000"},
        {"color", "#f0A", "#ff00aa"},
        {"color", "#12345678", "rgba(18,52,86,0.4705882353)"},
        {"color", "#f008", "rgba(255,0,0,0.5333333333)"},
        {"color", "#12", nullptr},
        {"color", "#12345", nullptr},
        {"color", "#ggg", nullptr},
        {"color", "rgb(300, -5, 127.6)", "#ff0080"},
        {"color", "rgb(100%,50%,0%)", "#ff8000"},
        {"color", "rgb(100%,50,0%)", nullptr},
        {"color", "rgb(1,2)", nullptr},
        {"color", "rgb(1,2,3,4,5)", nullptr},
        {"color", "rgb(1,2,x)", nullptr},
        {"color", "RGBA( 1 2 3 / 50% )", "rgba(1,2,3,0.5)"},
        {"color", "rgba(1,2,3,7)", "#010203"},
        {"color", "hsl(120,100%,25%)", "#008000"},
        {"color", "hsla(-0.5turn 100% 50% / .25)", "rgba(0,255,255,0.25)"},
        {"color", "hsl(600deg,50%,50%)", "#4040bf"},
        {"color", "hsl(1em,50%,50%)", nullptr},
        {"color", "rebeccapurple", "#663399"},
        {"color", "transparent", "rgba(0,0,0,0)"},
        {"color", "#CD853F icc-color(a, 1, 2)", "#cd853f"},
        {"color", "red blue", nullptr},
        {"color", "none", nullptr},
        {"fill", "url(#a) none", "url(#a) none"},
        {"fill", "url( 'x.svg#a' ) #00f", "url( 'x.svg#a' ) #00f"},
        {"fill", "context-stroke", "context-stroke"},
        {"fill", "url(#a) 3", nullptr},
        {"fill", "foo", nullptr},
        {"opacity", "50%", "0.5"},
        {"opacity", "-1", "0"},
        {"opacity", "1.0001", "1"},
        {"opacity", "0.5.", nullptr},
        {"stroke-width", "2px", "2"},
        {"stroke-width", "1pt", "1.25"},
        {"stroke-width", ".5EM", "10"},
        {"stroke-width", "2ex", "20"},
        {"stroke-width", "10%", "35.35533906"},
        {"stroke-width", "-1", nullptr},
        {"stroke-width", "1 2", nullptr},
        {"stroke-miterlimit", "0.5", nullptr},
        {"stroke-linejoin", "Arcs", "miter"},
        {"stroke-dasharray", "1, 2px\n3em", "1 2 60"},
        {"stroke-dasharray", "0,0", "none"},
        {"stroke-dasharray", "1,-1", nullptr},
        {"stroke-dasharray", "", nullptr},
        {"paint-order", "markers stroke", "stroke"},
        {"paint-order", "fill stroke", "normal"},
        {"paint-order", "foo", nullptr},
        {"clip-path", "url( \"#a\" )", "url(#a)"},
        {"clip-path", "url(other.svg#a)", "none"},
        {"clip-path", "inset(10px)", nullptr},
        {"font-size", "150%", "30"},
        {"font-size", "larger", "24"},
        {"font-size", "x-large", "24"},
        {"font-size", "-1", nullptr},
        {"font-weight", "bolder", "700"},
        {"font-weight", "lighter", "100"},
        {"font-weight", "349", "300"},
        {"font-weight", "1001", nullptr},
        {"font-family", "Times  New Roman , \"A'b\",serif", "'Times New Roman', \"A'b\", serif"},
        {"font-family", "a,,b", nullptr},
        {"font-family", "1a", nullptr},
        {"letter-spacing", "normal", "0"},
        {"letter-spacing", ".1em", "2"},
        {"text-decoration", "line-through red UNDERLINE", "underline line-through"},
        {"baseline-shift", "-50%", "-10"},
        {"baseline-shift", "SUPER", "super"},
        {"writing-mode", "vertical-rl", "tb-rl"},
        {"visibility", "collapse", "hidden"},
        {"display", "foo", nullptr},
    };
    for (const Row& row : kRows) {
        const ZAMPrepressPropertyRow* const property = ZAMPrepressFindProperty(row.property);
        ASSERT_NE(property, nullptr) << row.property;
        const auto computed = property->compute(row.value, kBases);
        EXPECT_EQ(computed.value_or("error"), row.computed == nullptr ? "error" : row.computed)
            << row.property << ": " << row.value;
    }
}

TEST(PrepressValues, InitialValuesAreComputedOnes) {
    for (const ZAMPrepressPropertyRow& row : ZAMPrepressGetProperties()) {
        const auto computed = row.compute(row.initial, {});
        EXPECT_EQ(computed.value_or(""), row.initial) << row.name;
    }
}

std::string Declare(std::string_view text) {
    std::list<std::string> texts;
    std::vector<ZAMPrepressDeclaration> declarations;
    ZAMPrepressReadDeclarations(text, texts, declarations);
    std::string dump;
    for (const ZAMPrepressDeclaration& each : declarations) {
        const bool isVariable = each.property == ZAMPrepressProperty::Custom;
        dump.append(dump.empty() ? "" : "; ").append(isVariable ? each.name : ZAMPrepressGetRow(each.property).name);
        dump.append(":").append(each.value).append(each.isImportant ? "!" : "");
    }
    return dump;
}

TEST(PrepressDeclarations, AreReadAndWhatIsInErrorIsSkipped) {
    const char* const rows[][2] = {
        {"fill:red", "fill:red"},
        {" FILL : red ;; stroke:blue; ", "fill:red; stroke:blue"},
        {"fill:red/* a;b */;/*c*/stroke:/**/none", "fill:red; stroke:none"},
        {"fill:red ! IMPORTANT;stroke:red!ie", "fill:red!"},
        {"f\\69ll:red", "fill:red"},
        {"fill red;stroke:blue", "stroke:blue"},
        {"fill:;stroke:blue", "stroke:blue"},
        {"fill:{a;b:c};stroke:blue", "stroke:blue"},
        {"fill:(;stroke:blue);opacity:1", "opacity:1"},
        {"fill:'a;b\n;stroke:blue", "stroke:blue"},
        {"7:a;*fill:red;stroke:blue", "stroke:blue"},
        {"{a;fill:red}b;(c;fill:red);stroke:blue", "stroke:blue"},
        {"@x{fill:red}stroke:blue;@y z;opacity:0", "stroke:blue; opacity:0"},
        {"fill:foo;cursor:hand;stroke:Inherit", "stroke:Inherit"},
        {"fill:url(a;b);stroke:red", "fill:url(a;b); stroke:red"},
        {"--A: x y ;fill:var(--A)", "--A:x y; fill:var(--A)"},
        {"marker:url(#a)", "marker-start:url(#a); marker-mid:url(#a); marker-end:url(#a)"},
        {"marker:foo;text-decoration-line:underline", "text-decoration:underline"},
        {"font:italic bold 12px/30px 'A', serif",
         "font-style:italic; font-variant:initial; font-weight:bold; font-stretch:initial; font-size:12px; "
         "font-family:'A', serif"},
        {"font:normal small-caps 900 condensed 2em a",
         "font-style:normal; font-variant:small-caps; font-weight:900; font-stretch:condensed; font-size:2em; "
         "font-family:a"},
        {"font:menu", "font-style:initial; font-variant:initial; font-weight:initial; font-stretch:initial; "
                      "font-size:initial; font-family:initial"},
        {"font:12px;font:serif;font:bold;font:12px/ serif x 3", ""},
    };
    for (const auto& [text, dump] : rows) {
        EXPECT_EQ(Declare(text), dump) << text;
    }
}

TEST(PrepressMedia, HoldForPaper) {
    const std::pair<const char*, bool> rows[] = {
        {"", true},
        {"all", true},
        {" PRINT ", true},
        {"screen", false},
        {"screen, print", true},
        {"not screen", true},
        {"not print", false},
        {"only print and (color)", true},
        {"(prefers-color-scheme: dark)", false},
        {"( prefers-color-scheme :light)", true},
        {"print and (min-width: 100px)", false},
        {"not all and (monochrome)", true},
        {"3, all", true},
        {"{", false},
    };
    for (const auto& [queries, holds] : rows) {
        EXPECT_EQ(ZAMPrepressMediaHolds(queries), holds) << queries;
    }
}

TEST(PrepressDashes, AnOffsetBecomesAnotherList) {
    struct Case {
        const char* dashes;
        double offset;
        bool hasButtEnds;
        const char* shifted;
    };
    constexpr Case kCases[] = {
        {"6 3", 2.0, true, "4 3 2 0"},      {"6 3", -1.0, true, "0 1 6 2"},
        {"6 3", 6.0, true, "0 3 6 0"},      {"6 3", 8.0, true, "0 1 6 2"},
        {"6 3", 8.0, false, "6 3"},         {"6 3", 20.0, false, "4 3 2 0"},
        {"5", 5.0, true, "0 5 5 0"},        {"1 2 3", 6.0, true, "0 1 2 3 1 2 3 0"},
        {"6 3 1 1", 9.0, false, "1 1 6 3"}, {"6 3", 18.0, true, "6 3"},
    };
    for (const Case& each : kCases) {
        EXPECT_EQ(ZAMPrepressShiftDashes(each.dashes, each.offset, 1.0, each.hasButtEnds), each.shifted)
            << each.dashes << " from " << each.offset;
    }
    EXPECT_EQ(ZAMPrepressShiftDashes("6 3", 2.0, 0.5, true), "2 1.5 1 0");
}

} // namespace
