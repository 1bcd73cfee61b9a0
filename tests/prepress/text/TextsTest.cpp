// SPDX-License-Identifier: MIT
// Where the runs of texts come to stand. With Liberation Sans 2048 high a character's advance is its number of units in
// the font: "a" and "b" 1139, "i" 455, a blank 569; ascent 1854, descent 434.
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/rewrites/ZAMPrepressTexts.h"
#include "tests/prepress/Documents.h"
#include "tests/support/FontFolders.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace {

std::string Texts(const ZAMPrepressElement& element) {
    std::string text;
    if (element.Is("text") || element.Is("rect")) {
        text.append("[").append(element.children.empty() ? "-" : element.children.back()->text);
        const std::string_view attributes[] = {"transform", "x", "y", "width", "text-anchor", "writing-mode"};
        for (const std::string_view attribute : attributes) {
            if (element.Has(attribute) && (!element.Has("transform") || attribute != "y")) {
                text.append(" ").append(element.Get(attribute));
            }
        }
        return text + "]";
    }
    for (const ZAMPrepressElement* child : element.children) {
        text += Texts(*child);
    }
    return text;
}

std::string Texts(const std::string& content) {
    const std::string document = "<svg width='9999' height='9999' font-family='Liberation Sans' font-size='2048'>"
                                 "<defs><path id='p' d='M0 0H5000V9000'/><path id='none' d='M1 1'/>"
                                 "<text id='t'>a<tspan>b</tspan></text></defs>" +
                                 content + "</svg>";
    ZAMPrepressTree tree(RewriteUpTo("texts", ParseDocument(document)));
    std::string text;
    for (const ZAMPrepressElement* child : tree.GetRoot().children) {
        text += child->Is("defs") ? "" : Texts(*child);
    }
    return text;
}

void ExpectTexts(std::initializer_list<std::pair<const char*, const char*>> rows) {
    for (const auto& [content, expected] : rows) {
        EXPECT_EQ(Texts(content), expected) << content;
    }
}

TEST(Texts, Runs) {
    ExpectTexts({
        {"<text x='1' y='2'>ab</text>", "[ab 1 2]"},
        {"<text>ab</text>", "[ab 0 0]"},
        {"<text/>", ""},
        {"<text x='1' y='2'>a<tspan>b</tspan>a</text>", "[a 1 2][b 1140 2][a 2279 2]"},
        {"<text y='2'>a <tspan>b</tspan> a</text>",
         "[a 0 2][b 1708 2][a 3416 2]"}, // blanks at the ends have their room
        {"<text xml:space='preserve'>  a</text>", "[a 1138 0]"},
        {"<text><tspan font-size='1024'>a</tspan>b</text>", "[a 0 0][b 569.5 0]"},
        {"<text><tspan font-size='0'>a</tspan>b</text>", "[b 0 0]"},
        {"<text><tspan visibility='hidden'>a</tspan>b</text>", "[b 1139 0]"},
        {"<text letter-spacing='10'>aa<tspan>b</tspan></text>", "[aa 0 0][b 2298 0]"},
        {"<text word-spacing='10'>a b i</text>", "[a 0 0][b 1718 0][i 3436 0]"},
        {"<text textLength='2288'>ab</text>", "[ab 0 0]"},
        {"<text textLength='4556' lengthAdjust='spacingAndGlyphs' x='5'>ab</text>", "[ab matrix(2 0 0 1 5 0) 0]"},
        {"<text><tspan textLength='2378'>aa</tspan>b</text>", "[aa 0 0][b 2478 0]"},
        {"<text><tref xlink:href='#t'/>i</text>", "[ab 0 0][i 2278 0]"},
        {"<text><tref xlink:href='#nowhere'/>i</text>", "[i 0 0]"},
    });
}

TEST(Texts, Positions) {
    ExpectTexts({
        {"<text x='1 5' y='2'>abi</text>", "[a 1 2][bi 5 2]"},
        {"<text x='1,5,7' y='2 3'>ab</text>", "[a 1 2][b 5 3]"},
        {"<text x='1' y='2 3'>ab</text>", "[a 1 2][b 1140 3]"},
        {"<text dx='1 2' dy='0 5'>abi</text>", "[a 1 0][bi 1142 5]"},
        {"<text x='1'>a<tspan x='9' dy='5'>b</tspan>i</text>", "[a 1 0][b 9 5][i 1148 5]"},
        {"<text x='1 2 3'>a<tspan x='9'>bi</tspan></text>", "[a 1 0][b 9 0][i 3 0]"}, // the inner one counts first
        {"<text x='1 2'>\n a<tspan> </tspan>b</text>", "[a 1 0][b 571 0]"}, // white space that goes has no place
        {"<text x='1 2 3'>e\xCC\x81i</text>", "[e\xCC\x81 1 0][i 3 0]"},    // a mark stays with its letter
        {"<text rotate='90' x='1'>ab</text>", "[a matrix(0 1 -1 0 1 0) 0][b matrix(0 1 -1 0 1140 0) 0]"},
        {"<text rotate='0 90'>ab<tspan rotate='0'>i</tspan></text>", "[a 0 0][b matrix(0 1 -1 0 1139 0) 0][i 2278 0]"},
        {"<text x='1 z 5'>ab</text>", "[ab 1 0]"},
        {"<text x='50%' y='1in'>a</text>", "[a 4999.5 90]"},
    });
}

TEST(Texts, Anchors) {
    ExpectTexts({
        {"<text text-anchor='middle' x='5'>ab</text>", "[ab 5 0 middle]"},
        {"<text text-anchor='end' x='5' letter-spacing='10'>ab</text>", "[ab -5 0 end]"},
        {"<text text-anchor='middle'>a<tspan>b</tspan></text>", "[a -1139 0][b 0 0]"},
        {"<text text-anchor='end'>a<tspan>b</tspan></text>", "[a -2278 0][b -1139 0]"},
        {"<text text-anchor='end'>a<tspan x='9'>b</tspan></text>", "[a 0 0 end][b 9 0 end]"},
        {"<text text-anchor='end' x='9'><tspan text-anchor='start'>a</tspan></text>", "[a 9 0]"},
        {"<text text-anchor='end'>a<tspan dx='9'>b</tspan></text>", "[a -2287 0][b -1139 0]"},
        {"<text text-anchor='end' xml:space='preserve'>a </text>", "[a -1708 0]"},
        {"<text text-anchor='end' rotate='90'>a</text>", "[a matrix(0 1 -1 0 -1139 0) 0]"},
        // Wherever in the chunk its start, middle or end is.
        {"<text x='5'>a<tspan dx='-2000' dy='9'>b</tspan></text>", "[a 866 0][b 5 9]"},
        {"<text x='5' text-anchor='end'>a<tspan dx='-2000' dy='9'>b</tspan></text>", "[a -1134 0][b -1995 9]"},
        {"<text x='5' text-anchor='middle'>a<tspan dx='-2000' dy='9'>b</tspan></text>", "[a -134 0][b -995 9]"},
        {"<text direction='rtl' x='9'>a<tspan>b</tspan></text>", "[a 9 0 rl][b -1130 0 rl]"},
        {"<text direction='rtl' text-anchor='end'>a<tspan>b</tspan></text>", "[a 2278 0 rl][b 1139 0 rl]"},
        // Direction counts in a text where it is embedded.
        {"<text x='9'>a<tspan direction='rtl'>b</tspan>i</text>", "[a 9 0][b 1148 0][i 2287 0]"},
        {"<text x='9'>a<tspan direction='rtl' unicode-bidi='embed'>b</tspan>i</text>",
         "[a 9 0][b 2287 0 rl][i 2287 0]"},
        {"<text x='9' letter-spacing='10'><tspan direction='rtl' unicode-bidi='embed'>b</tspan></text>",
         "[b 19 0 end rl]"},
        {"<text x='9'><tspan direction='rtl' unicode-bidi='bidi-override'>ab</tspan></text>",
         "[\xE2\x80\xAE"
         "ab\xE2\x80\xAC 9 0 end rl]"},
        {"<text writing-mode='tb' y='5'>a<tspan>b</tspan></text>", "[a 0 5 tb][b 0 1144 tb]"},
    });
}

TEST(Texts, BaselinesAndLines) {
    ExpectTexts({
        {"<text>a<tspan baseline-shift='super'>b<tspan baseline-shift='-9'>i</tspan></tspan>a</text>",
         "[a 0 0][b 1139 -819.2][i 2278 -810.2][a 2733 0]"},
        {"<text>a<tspan baseline-shift='sub' font-size='1024'>b</tspan></text>", "[a 0 0][b 1139 409.6]"},
        {"<text dominant-baseline='central'>a</text>", "[a 0 710]"},
        {"<text dominant-baseline='text-before-edge'>a</text>", "[a 0 1854]"},
        {"<text>a<tspan alignment-baseline='text-after-edge'>b</tspan></text>", "[a 0 0][b 1139 -434]"},
        {"<text text-decoration='underline'>a<tspan>b</tspan></text>", "[- 0 153.6 2278][a 0 0][b 1139 0]"},
        {"<text text-decoration='underline' x='5' text-anchor='middle'>ab</text>",
         "[- -1134 153.6 2278][ab 5 0 middle]"},
        {"<text>a<tspan text-decoration='overline' dy='9'>b</tspan></text>", "[- 1139 -1845 1139][a 0 0][b 1139 9]"},
        {"<text text-decoration='underline'>a<tspan x='0' y='9'>b</tspan></text>",
         "[- 0 153.6 1139][- 0 162.6 1139][a 0 0][b 0 9]"},
        {"<text text-decoration='underline' x='5' letter-spacing='10'><tspan text-anchor='end'>ab</tspan></text>",
         "[- -2293 153.6 2298][ab -5 0 end]"},
        {"<text text-decoration='underline' direction='rtl'>a</text>", "[- -1139 153.6 1139][a 0 0 rl]"},
    });
}

TEST(Texts, OnPaths) {
    ExpectTexts({
        {"<text><textPath xlink:href='#p'>ai</textPath></text>", "[a 0 0][i 1139 0]"},
        {"<text><textPath xlink:href='#p' startOffset='5000'>ab</textPath></text>",
         "[a matrix(0 1 -1 0 5000 0) 0][b matrix(0 1 -1 0 5000 1139) 0]"},
        {"<text><textPath xlink:href='#p' startOffset='50%'>a</textPath></text>", "[a matrix(0 1 -1 0 5000 2000) 0]"},
        {"<text text-anchor='end'><textPath xlink:href='#p' startOffset='100%'>a</textPath></text>",
         "[a matrix(0 1 -1 0 5000 7861) 0]"},
        {"<text><textPath xlink:href='#p' startOffset='13500'>ab</textPath></text>", ""}, // beyond its end
        {"<text><textPath xlink:href='#p'>a<tspan dx='10' dy='-5'>b</tspan></textPath></text>", "[a 0 0][b 1149 -5]"},
        {"<text><textPath xlink:href='#none'>a</textPath>b</text>", "[b 0 0]"},
        {"<text><textPath xlink:href='#nowhere'>a<tspan>b</tspan></textPath></text>", ""},
        {"<text><textPath xlink:href='#p'>a</textPath>b</text>", "[a 0 0][b 5000 9000]"},
    });
}

TEST(Texts, PlainOnesAreLeftAlone) {
    const std::pair<const char*, bool> rows[] = {
        {"<text x='1' y='2' fill='red'>a b</text>", false},
        {"<text/>", false},
        {"<text>a  b</text>", true},
        {"<text> a</text>", true},
        {"<text>a\nb</text>", true},
        {"<text x='1 2'>ab</text>", true},
        {"<text x='1em'>ab</text>", true},
        {"<text dy='1'>ab</text>", true},
        {"<text rotate='9'>ab</text>", true},
        {"<text textLength='9'>ab</text>", true},
        {"<text><tspan>ab</tspan></text>", true},
        {"<g xml:space='preserve'/>", false},
    };
    for (const auto& [document, isConcerned] : rows) {
        EXPECT_EQ(ZAMPrepressTexts::Concerns(ParseDocument(document)), isConcerned) << document;
    }
}

// A long text is one run, a thousand bytes of which do not cost more than a few.
TEST(Texts, Cost) {
    std::string document = "<svg><text id='t'>";
    document.append(1'000'000, 'x').append("</text>");
    for (int i = 0; i < 10'000; ++i) {
        document += "<text x='5' y='6'>a<tspan dx='1'>b</tspan><tref xlink:href='#t'/></text>";
    }
    const ZAMLightXmlElement root = ParseDocument(document + "</svg>");
    const auto before = std::chrono::steady_clock::now();
    const auto texts = RewriteUpTo("texts", root);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(20));
    EXPECT_FALSE(texts.GetName().empty());
}

} // namespace
