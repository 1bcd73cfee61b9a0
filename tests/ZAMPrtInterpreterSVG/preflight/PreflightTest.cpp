// SPDX-License-Identifier: MIT
#include "tests/support/FontFolders.h"
#include "tests/ZAMPrtInterpreterSVG/preflight/Findings.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGFault.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

// Inside an svg element: what is found as it stands, and when it is prepared.
struct Row {
    std::string content;
    std::string asItStands;
    std::string prepared;
};

std::string Drawing(const std::string& content) {
    return "<svg xmlns:xlink='x' xmlns:svg='s' xmlns:e='e'>" + content + "</svg>";
}

template <std::size_t count> void ExpectFindings(const Row (&rows)[count]) {
    for (const Row& row : rows) {
        EXPECT_EQ(FindingsOf(Drawing(row.content), kAsItStands), row.asItStands) << row.content;
        EXPECT_EQ(FindingsOf(Drawing(row.content), kPrepared), row.prepared) << row.content;
    }
}

} // namespace

TEST(Preflight, Elements) {
    ExpectFindings({
        {"<g><rect width='1'/><title>t</title><desc/><metadata><b/></metadata><script/></g>", "", ""},
        {"<e:view><rect/></e:view><view/><e:g/>", "", ""},
        {"<blob><blob/></blob>", "unknown-element blob", "unknown-element blob"},
        {"\n<foreignObject/>\n<blob/>", "2 unknown-element foreignObject; 3 unknown-element blob",
         "2 unknown-element foreignObject; 3 unknown-element blob"},
        {"<svg:g><blob/></svg:g>", "prefixed-name svg:g", "unknown-element blob"},
        {"<rect><rect/><title/></rect>", "misplaced-element rect", "misplaced-element rect"},
        {"<defs><pattern><marker/></pattern></defs>", "misplaced-element marker", ""},
        {"<tspan/>", "text-span tspan", "misplaced-element tspan"},
        {"<text>a<tspan>b<tspan/></tspan><a><tspan/></a></text>", "text-span tspan; text-span a", ""},
        {"<text><rect/></text>", "misplaced-element rect", "misplaced-element rect"},
        {"<switch><blob/></switch>", "switch switch", "unknown-element blob"},
        {"<switch><blob requiredExtensions='e'/><g/></switch>", "switch switch", ""},
        {"<style>rect{fill:red}</style>", "style-sheet style", ""},
        {"<linearGradient><stop/><rect/></linearGradient>", "", "misplaced-element rect"},
        {"<mask id='m'><blob/></mask><filter/><clipPath/>", "", ""},
        {"<rect><animate/></rect><set/>", "animation animate; animation set", "animation animate; animation set"},
        {"<font><glyph/></font>", "web-font font", "web-font font"},
    });
}

TEST(Preflight, Attributes) {
    ExpectFindings({
        {"<rect id='a' class='b' lang='c' data-d='e' aria-f='g' onclick='h' e:i='j' xml:space='k' tabindex='1'/>", "",
         ""},
        {"<rect strange='1' cx='2'/>", "unknown-attribute strange; unknown-attribute cx",
         "unknown-attribute strange; unknown-attribute cx"},
        {"<rect rx='2' ry='0'/><rect rx='0.0'/>", "rounded-corners rx", ""},
        {"<svg preserveAspectRatio='xMidYMid'/><svg preserveAspectRatio='none'/>",
         "unknown-attribute preserveAspectRatio", ""},
        {"<g systemLanguage='en' requiredFeatures=''/>", "condition systemLanguage", ""},
        {"<marker orient='auto' markerUnits='strokeWidth'/>", "unknown-attribute orient; unknown-attribute markerUnits",
         ""},
        {"<rect x='1em' y='2px' width='3ex' height='5%'/>", "unknown-unit x; unknown-unit width", ""},
        {"<rect x='wide'/><text x='1 2'/>", "unknown-value x; unknown-value x", ""},
        {"<use href='#a'/><a href='b'/><image href=''/>", "plain-link href; plain-link href", "missing-reference a"},
        {"<path d='M0 0L-1-2 3,4H5z m1e-5-6'/><path d='M.5 .5a1 1 0 0 1 5 5'/>", "", ""},
        {"<path d='M.5.5'/>", "crowded-numbers d", ""},
        {"<path d='M1+2'/>", "crowded-numbers d", ""},
        {"<path d='M0 0a1 1 0 01 5 5'/>", "crowded-numbers d", ""},
        {"<path d='M1E-5 2'/>", "crowded-numbers d", ""},
        {"<polygon points='1,2 3,-4'/><polygon points='1-2'/>", "crowded-numbers points", ""},
        {"<g transform='translate(1 -2)rotate(3)'/><g transform='translate(1-2)'/>", "crowded-numbers transform", ""},
        {"<polyline points='1,2'/>", "filled-line", ""},
        {"<g fill='none'><polyline points='1,2'/><polyline style='fill:red'/></g>", "filled-line", ""},
        {"<polyline fill='red' style='fill:none'/>", "", ""},
    });
}

TEST(Preflight, Properties) {
    ExpectFindings({
        {"<rect fill='red' stroke='#123' style='opacity: .5; ; -inkscape-x:1; --own:2; FILL : blue !important'/>", "",
         ""},
        {"<rect style='blob:1;stop-color:red;pointer-events:none'/>", "unknown-property blob", "unknown-property blob"},
        {"<rect fill-rule='evenodd'/><rect fill-rule='nonzero'/><rect style='fill-rule:evenodd'/>",
         "property-form fill-rule", ""},
        {"<g style='display:none'/><g style='display:inline'/><g display='none'/>", "property-form display", ""},
        {"<rect stroke-dashoffset='0.0'/><rect style='stroke-dashoffset:9'/>", "unknown-property stroke-dashoffset",
         ""},
        {"<g stroke-miterlimit='1'><path stroke='red'/><path/><path stroke='red' stroke-linejoin='round'/></g>",
         "miter-limit stroke-miterlimit", "miter-limit stroke-miterlimit"},
        {"<g stroke='red'><path style='stroke-miterlimit:4.0'/><path style='stroke-miterlimit:9;stroke:none'/></g>", "",
         ""},
        {"<rect style='/* fill:x; */stroke:none/**/;x:url(a;b:c)'/>", "unknown-property x", ""},
        {"<g filter='url(#a)'/><g style='filter:none;mask:url(#b)'/>", "filter filter; mask mask",
         "filter filter; mask mask"},
        {"<g style='mix-blend-mode:multiply'/><g style='mix-blend-mode:normal'/>", "blend-mode mix-blend-mode",
         "blend-mode mix-blend-mode"},
        {"<rect fill='rgba(1,2,3,.5)' stroke='rgb(1,2,3)' color='hsl(1,2%,3%)'/>",
         "unknown-value fill; unknown-value "
         "color",
         ""},
        {"<g opacity='50%' fill-opacity='0.5' style='stroke-opacity:1'/>", "unknown-value opacity", ""},
        {"<g font-size='150%' stroke-width='2em' letter-spacing='normal' font-weight='bolder'/>",
         "unknown-value font-size; unknown-unit stroke-width; unknown-value font-weight", ""},
        {"<g stroke-dasharray='1, 2px 3'/><g stroke-dasharray='1mm'/><g stroke-dasharray='none'/>",
         "unknown-unit stroke-dasharray", ""},
        {"<image opacity='.5'/><image opacity='1.0'/>", "image-opacity", ""},
        {"<g opacity='.5'><rect/><title/></g><g opacity='1'><rect/><rect/></g><g opacity='0'><rect/><rect/></g>", "",
         ""},
        {"<g style='opacity:.5'><rect/><g/></g>", "group-opacity opacity", "group-opacity opacity"},
    });
}

TEST(Preflight, StyleSheets) {
    const struct {
        std::string sheet;
        std::string findings;
    } rows[] = {
        {"rect, g > a[b='}'] { fill: red; opacity: .5 }", ""},
        {"@import url(a.css); g{mask:url(#m)}", "style-import url(a.css); mask mask"},
        {"@media print { g { filter: url(#f) } rect{blob:1} } g{mask:url(#m)}",
         "filter filter; unknown-property blob; mask mask"},
        {"@font-face { font-family: F; src: url(f.woff) } @keyframes k { from { blob: 1 } }", "web-font @font-face"},
        {"/* g { blob: 1 } */ g { /* } */ blob: 1; }", "unknown-property blob"},
        {"} g { fill: red", ""},
        {"g{fill:url(#none)} @import 'b.css'", "missing-reference none; style-import 'b.css'"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FindingsOf(Drawing("<style><![CDATA[" + row.sheet + "]]></style>"), kPrepared), row.findings)
            << row.sheet;
    }
}

TEST(Preflight, References) {
    ExpectFindings({
        {"<defs><rect id='a'/></defs><use xlink:href='#A'/>", "", "missing-reference A"}, // letter case counts in SVG
        {"<use xlink:href='#a'/><defs><rect id='a'/></defs>", "late-definition a", ""},
        {"<g id='a'/><use xlink:href='#a'/>", "hidden-definition a", ""},
        {"<g><symbol id='a'/><use xlink:href='#a'/></g><use xlink:href='#a'/>", "ended-definition a", ""},
        {"<g><defs><g id='a'/></defs><defs/><use xlink:href='#a'/></g>", "", ""},
        {"<use xlink:href='b.svg#a'/><use xlink:href=''/>", "external-reference b.svg#a", "external-reference b.svg#a"},
        {"<a xlink:href='#b'/><g id='b'/><a xlink:href='#c'/><a xlink:href='d.html#c'/>", "missing-reference c",
         "missing-reference c"},
        {"<linearGradient id='a'/><rect fill='url(#a)'/><rect stroke='url(#a)'/><text style='stroke:url(#a)'/>",
         "fill-gradient a; stroke-paint a; stroke-paint a", "stroke-paint a"},
        {"<rect fill='url(#a)'/><rect stroke='url(#a)'/>", "missing-reference a; stroke-paint a",
         "missing-reference a; missing-reference a"},
        {"<rect fill='url(#a) red'/><rect fill='url( \"#a\" )'/>", "unknown-value fill; unknown-value fill",
         "missing-reference a"},
        {"<pattern id='a'><image/></pattern><rect fill='url(#a)'/>", "", ""},
        {"<pattern id='a'><g><image/></g></pattern><rect fill='url(#a)'/>", "vector-pattern a", ""},
        {"<rect fill='url(#a)'/><pattern id='a'><image/></pattern>", "late-definition a", ""},
        {"<g id='a'/><rect fill='url(#a)'/>", "wrong-reference a", "wrong-reference a"},
        {"<path marker-end='url(#a)'/><marker id='a'/><path marker-end='url(#a)'/>", "late-definition a", ""},
        {"<g id='a'/><path style='marker:url(#a)'/>", "property-form marker", "wrong-reference a"},
        {"<linearGradient xlink:href='#b'/><text><textPath href='#c'/></text>", "text-span textPath",
         "missing-reference b; missing-reference c"},
        {"<g clip-path='url(#a)'/>", "clip-path a", "missing-reference a"},
        {"<g id='a'/><g clip-path='url(#a)'/>", "clip-path a", "wrong-reference a"},
        {"<g clip-path='inset(1)'/>", "unknown-property clip-path", "unknown-property clip-path"},
    });
}

TEST(Preflight, ClippingPathsThatAreNoRectangles) {
    const struct {
        std::string path;
        bool isRectangle;
    } rows[] = {
        {"<rect/>", true},
        {"", true},
        {"<rect transform='translate(1 2) matrix(2 0 0 2 0 1)'/>", true},
        {"<rect transform='matrix(2 1 0 2 0 1)'/>", false},
        {"<rect transform='rotate(45)'/>", false},
        {"<rect rx='1'/>", false},
        {"<rect/><rect/>", false},
        {"<circle/>", false},
        {"<title/><g><path d='M1 1h5v5H1z'/></g>", true},
        {"<path d='m0,0 5,0 0,5-5,0z'/>", true},
        {"<path d='M0 0H5V5H0V0z'/>", true},
        {"<path d='M0 0H5V5H1z'/>", false},
        {"<path d='M0 0H5V5H0z M9 9'/>", false},
        {"<path d='M0 0C1 1 1 1 1 1z'/>", false},
        {"<path d='M0 0H5H2H0z'/>", false},
        {"<polygon points='0 0 5 0 5 5 0 5'/>", true},
        {"<polygon points='0 0 5 1 5 5 0 5'/>", false},
        {"<use xlink:href='#r'/>", true},
        {"<use href='#c'/>", false},
        {"<use xlink:href='#u'/>", false},
    };
    for (const auto& row : rows) {
        const std::string document = "<rect id='r'/><circle id='c'/><use id='u' xlink:href='#u'/><clipPath id='k'>" +
                                     row.path + "</clipPath><g clip-path='url(#k)'/>";
        EXPECT_EQ(FindingsOf(Drawing(document), kPrepared), row.isRectangle ? "" : "clip-path k") << row.path;
    }
}

TEST(Preflight, Fonts) {
    const std::string families = "<g font-family='Nowhere, DejaVu Sans'/><g font-family=\"'Liberation Sans'\"/>"
                                 "<g font-family='serif'/><g style='font-family:Nobody,None'/>"
                                 "<g font-family='Arial'/><g font-family='Nowhere, DejaVu Sans'/>";
    for (const PreflightMode mode : {kAsItStands, kPrepared}) {
        EXPECT_EQ(FindingsOf(Drawing(families), mode), "") << "without a text no font is asked for";
        EXPECT_EQ(FindingsOf(Drawing(families + "<text/>"), mode),
                  "font-replaced Nowhere; font-replaced Nobody,None; font-replaced Arial");
    }
    EXPECT_EQ(FindingsOf(Drawing("<text style='font:italic 700 12px/1.5 Nowhere, serif'/>"), kPrepared),
              "font-replaced Nowhere");
    ZAMPrintSVGPreflight preflight(kPrepared);
    ASSERT_EQ(preflight.Check(ParseDocument(Drawing("<text font-family='Arial'/>"))), 1);
    EXPECT_EQ(preflight.GetFindings().at(0).instead, "'Liberation Sans' is taken");
}

TEST(Preflight, TellsWhereAndWhat) {
    ZAMPrintSVGPreflight preflight(kAsItStands);
    ASSERT_EQ(preflight.Check(ParseDocument("<svg>\n <g>\n  <rect strange=''/></g></svg>")), 1);
    ASSERT_EQ(preflight.GetFindings().size(), 1U);
    const ZAMPrintSVGPreflight::Finding& finding = preflight.GetFindings().front();
    EXPECT_EQ(finding.line, 3U);
    EXPECT_EQ(finding.column, 3U);
    EXPECT_EQ(finding.element, "rect");
    EXPECT_EQ(finding.what, "nothing reads the attribute 'strange' of 'rect'");
    EXPECT_EQ(preflight.Check(ParseDocument("<svg/>")), 1);
    EXPECT_TRUE(preflight.GetFindings().empty()) << "each check begins anew";
    EXPECT_EQ(preflight.Check(ParseDocument("<html><p/></html>")), 0);
    EXPECT_EQ(FindingsOf("<html><svg><blob/></svg><blob/><svg><blob/></svg></html>", kPrepared),
              "unknown-element blob; unknown-element blob");
}

TEST(Preflight, KeepsSoManyOfAKindAndShortensTexts) {
    const std::size_t most = ZAMPrintSVGPreflight::kMostOfAKind;
    std::string content = "<g mask='url(#m)'/>";
    for (std::size_t i = 0; i < most + 5; ++i) {
        content += "<blob/>";
    }
    std::string name = "y";
    for (int i = 0; i < 100; ++i) {
        name += "ä";
    }
    content += "<g " + name + "='1'/>";
    ZAMPrintSVGPreflight preflight(kPrepared);
    ASSERT_EQ(preflight.Check(ParseDocument(Drawing(content))), 1);
    EXPECT_EQ(preflight.GetFindings().size(), most + 2);
    EXPECT_EQ(preflight.GetUnlistedCount(), 5U);
    EXPECT_EQ(preflight.GetFindings().back().subject, name.substr(0, 99) + "...") << "cut between characters";
}

// Deep, open and malformed texts: an answer in time and no more.
TEST(Preflight, BearsAnyText) {
    const std::string many(200000, '{');
    for (const std::string& css : {"@media" + many, "g" + many, std::string(200000, '('), "g{a:" + many,
                                   std::string(200000, '}'), std::string("\"g{"), std::string("/*")}) {
        EXPECT_NE(FindingsOf(Drawing("<style><![CDATA[" + css + "]]></style>"), kPrepared), "not checked");
        EXPECT_NE(FindingsOf(Drawing("<rect fill='url(#' d='" + std::string(css.size(), 'a') + "' transform='-'/>"),
                             kAsItStands),
                  "not checked");
    }
    EXPECT_EQ(FindingsOf(Drawing("<use id='a' xlink:href='#a'/><pattern id='p' xlink:href='#p'/>"), kPrepared), "");
}

TEST(Preflight, CodesAreWords) {
    std::set<std::string_view> words;
    for (const ZAMPrintSVGFaultRow& row : ZAMPrintSVGGetFaults()) {
        EXPECT_TRUE(std::ranges::all_of(row.code, [](char c) { return (c >= 'a' && c <= 'z') || c == '-'; }))
            << row.code;
        words.insert(row.code);
    }
    EXPECT_GT(words.size(), 35U);
}
