// SPDX-License-Identifier: MIT
#include "tests/prepress/Documents.h"

#include <chrono>
#include <gtest/gtest.h>

namespace {

// The ids of the elements that have a fill, in document order.
void ListFilled(const ZAMLightXmlElement& element, std::string& ids) {
    if (!element.GetAttribute("fill").empty()) {
        ids.append(ids.empty() ? "" : " ").append(element.GetAttribute("id"));
    }
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        ListFilled(element.GetNextChild(position), ids);
    }
}

// The ids of the elements that the selector finds in a document, in its order.
std::string Find(const char* selector, std::string_view body) {
    std::string document = "<svg id='s'><style>";
    document.append(selector).append("{fill:red}</style>").append(body).append("</svg>");
    std::string ids;
    ListFilled(RewriteUpTo("sheets", ParseDocument(document)), ids);
    return ids;
}

TEST(PrepressSelectors, FindTheirElements) {
    // The style element is the root's first child.
    constexpr std::string_view kBody = "<g id='a' class='x y'>text<rect id='b' class='y'/>text<path id='c' d='M0 0'/>"
                                       "<g id='d' class='X'><rect id='e' class='\tz  x\n'/></g></g>"
                                       "<rect id='f' lang='en-GB' title='One two' data-k='ABC'/>"
                                       "<a id='h' xlink:href='#a'><path id='i' class='ü 1b'/></a>";
    const char* const rows[][2] = {
        {"rect", "b e f"},
        {"*", "s a b c d e f h i"},
        {"svg|rect, *|path", "b c e f i"},
        {"Rect, .Y, #A", ""},
        {".x", "a e"},
        {".x.y", "a"},
        {"g.y#a", "a"},
        {"#a#b", ""},
        {".\xC3\xBC", "i"},
        {".\\31 b", "i"},
        {"g rect", "b e"},
        {"svg rect", "b e f"},
        {"g > rect", "b e"},
        {"svg>rect", "f"},
        {"g g rect", "e"},
        {".x>.x", ""},
        {".x .x", "e"},
        {"#a > g > .z", "e"},
        {"rect+path", "c"},
        {"rect + g", ""},
        {"rect~g", "d"},
        {"g ~ rect ~ a path", "i"},
        {"g + rect + a > *", "i"},
        {":root", "s"},
        {":root > :first-child", ""},
        {"g > :first-child", "b e"},
        {":last-child", "s d e h i"},
        {":only-child", "s e i"},
        {"svg > :nth-child(2n+1)", "f"},
        {"svg > :nth-child( even )", "a h"},
        {"svg > :nth-child(-n+2)", "a"},
        {"svg > :nth-last-child(1)", "h"},
        {":nth-child(2n + x), rect", ""},
        {"rect:not(.y)", "e f"},
        {"rect:not(.y):not([lang])", "e"},
        {"rect:not(g rect)", ""},
        {":link", "h"},
        {"rect:hover", ""},
        {"rect:hover, path::before, .z", "e"},
        {"rect:foo, .z", ""},
        {"[lang]", "f"},
        {"[lang=en]", ""},
        {"[lang|=en]", "f"},
        {"[lang|='en-GB']", "f"},
        {"[lang|=e]", ""},
        {"[title~=two]", "f"},
        {"[title~='One two']", ""},
        {"[title^=One][title$='two'][title*='e t']", "f"},
        {"[title*='']", ""},
        {"[ data-k = 'abc' ]", ""},
        {"[data-k=abc i]", "f"},
        {"[data-k*=b i]", "f"},
        {"[class~=z]", "e"},
        {"[lang=3], rect", ""},
        {"g >", ""},
        {"> g", ""},
        {"g,, rect", ""},
        {"g rect}", ""},
        {".3, rect", ""},
        {"#3, rect", ""},
        {". x, rect", ""},
        {"g/**/rect", ""},
        {"g /**/ rect /**/", "b e"},
    };
    for (const auto& [selector, expected] : rows) {
        EXPECT_EQ(Find(selector, kBody), expected) << selector;
    }
}

TEST(PrepressSelectors, FindTypesAndLanguages) {
    constexpr std::string_view kBody = "<g id='a' xml:lang='de'><rect id='b'/><path id='c'> </path>"
                                       "<rect id='d' lang='en-US'/><path id='e'><!-- --></path>"
                                       "<rect id='f' lang='fr' xml:lang='EN'/></g><text id='g'>x</text>";
    const char* const rows[][2] = {
        {"rect:first-of-type", "b"},
        {"rect:LAST-of-type", "f"},
        {"rect:nth-of-type(2)", "d"},
        {"rect:nth-last-of-type(n+2)", "b d"},
        {"g > :nth-of-type(2)", "d e"},
        {":only-of-type", "s a g"},
        {"path:not(:first-of-type)", "e"},
        {"rect:not(:first-of-type, [lang='fr'])", "d"},
        {"rect:not(:first-of-type, ), rect", ""},
        {"rect:empty", "b d f"},
        {"path:empty", "e"},
        {"text:empty", ""},
        {":lang(de)", "a b c e"},
        {":lang(en)", "d f"},
        {":lang('en-us')", "d"},
        {":lang(e)", ""},
        {"path:lang(fr, de)", "c e"},
        {"rect:lang(de):lang(en)", ""},
        {":lang(3), rect", ""},
        {":lang(), rect", ""},
    };
    for (const auto& [selector, expected] : rows) {
        EXPECT_EQ(Find(selector, kBody), expected) << selector;
    }
}

// The fill that a rectangle of class "x" and id "r" in a group of class "g" gets.
std::string GetFill(std::string_view sheet, std::string_view attributes = "") {
    std::string document = "<svg><style><![CDATA[";
    document.append(sheet).append("]]></style><g class='g'><rect id='r' class='x' ").append(attributes);
    const ZAMLightXmlElement root = RewriteUpTo("sheets", ParseDocument(document.append("/></g></svg>")));
    ZAMLightXmlPosition position = root.GetFirstChildPosition();
    const ZAMLightXmlElement group = root.GetNextChild(position);
    position = group.GetFirstChildPosition();
    return std::string(group.GetNextChild(position).GetAttribute("fill"));
}

TEST(PrepressCascade, TheStrongestDeclarationWins) {
    const char* const rows[][3] = {
        {"rect{fill:red} rect{fill:blue}", "", "blue"},
        {".x{fill:red} rect{fill:blue}", "", "red"},
        {"#r{fill:red} .g .x{fill:blue}", "", "red"},
        {".g rect{fill:red} .x{fill:blue}", "", "red"},
        {"rect.x{fill:red} .x{fill:blue}", "", "red"},
        {"rect:not(#q){fill:red} .g .x{fill:blue}", "", "red"},
        {"rect:not(p, #q){fill:red} .g .x{fill:blue}", "", "red"},
        {"rect{fill:red!important} #r{fill:blue}", "style='fill:green'", "red"},
        {"rect{fill:red!important} rect{fill:blue!important}", "style='fill:green!important'", "green"},
        {"rect{fill:red!important;fill:blue}", "", "red"},
        {"rect{fill:red;fill:foo}", "", "red"},
        {"rect{fill:red} rect{fill:foo!important}", "", "red"},
        {"#r{fill:red}", "style='fill:green;fill:lime;fill:foo'", "lime"},
        {"rect{fill:red}", "fill='blue'", "red"},
        {"rect{stroke:red}", "fill='blue'", "blue"},
        {"rect{fill:inherit}", "fill='blue'", "inherit"},
        {"@media print{rect{fill:red}} @media screen{rect{fill:blue}}", "", "red"},
        {"@media print{@media all{rect{fill:red}}", "", "red"},
        {"@import 'a.css'; @charset \"x\"; rect{fill:red}", "", "red"},
        {"@font-face{src:url(a)} @unknown x{rect{fill:blue}} rect{fill:red}", "", "red"},
        {"<!-- rect{fill:red} -->", "", "red"},
        {"path{} } rect{fill:blue} rect{fill:red}", "", "red"},
        {"@media{rect{fill:red}", "", "red"},
        {"rect{fill:red", "", "red"},
        {"g{fill:blue;} rect{fill:red;;}", "", "red"},
        {":root{--c:red}rect{fill:var(--c)}", "", "red"},
        {":root{--c:red}.g{--c:lime}rect{fill:var(--c)}", "", "lime"},
        {":root{--c:var(--d);--d:red}", "fill='var(--c)'", "red"},
        {"rect{--c:blue}rect.x{--c:red}rect{--c:lime}", "style='fill:var( --c )'", "red"},
        {"rect{fill:var(--c, rgb(1,2,3))}", "", "rgb(1,2,3)"},
        {"rect{--c:1;fill:rgb(var(--c),var(--c),var(--d,3))}", "", "rgb(1,1,3)"},
        {"rect{fill:var(--c)}", "fill='blue'", ""},
        {":root{--c:var(--c)}rect{fill:var(--c)}", "", ""},
        {":root{--c:;--d:var(--c)var(--c)red}rect{fill:var(--d)}", "", "red"},
    };
    for (const auto& [sheet, attributes, fill] : rows) {
        EXPECT_EQ(GetFill(sheet, attributes), fill) << sheet << " " << attributes;
    }
}

// Documents that would take hours if each element met each selector.
TEST(PrepressSelectors, ManyTakeTheirTimeButOnce) {
    constexpr int kRules = 10'000;
    struct Case {
        const char* before;
        const char* after;
        int elements = 20'000;
    };
    constexpr Case kCases[] = {
        {".c", "", 100'000}, {"g .a g .c", ""},    {".c", " path"},
        {".c", "~path"},     {"[class^='c", "']"}, {"*:not(.c", ")"},
    };
    for (const auto& [before, after, elements] : kCases) {
        std::string document = "<svg><style>";
        for (int i = 0; i < kRules; ++i) {
            document.append(before).append(std::to_string(i)).append(after).append("{fill:red}");
        }
        document.append("</style><g class='a'><g>");
        for (int i = 0; i < elements; ++i) {
            document.append("<path class='c").append(std::to_string(i)).append("'/>");
        }
        document.append("</g></g></svg>");
        const ZAMLightXmlElement root = ParseDocument(document);
        const auto start = std::chrono::steady_clock::now();
        (void)RewriteUpTo("sheets", root);
        const auto elapsed = std::chrono::steady_clock::now() - start;
        EXPECT_LT(std::chrono::duration<double>(elapsed).count(), 20.0) << before << after;
    }
}

} // namespace
