// SPDX-License-Identifier: MIT
// What the goldens do not show of definitions: which elements are the same object, how it looks without the flip, and
// that small documents do not become huge models.
#include "framework/base/ZAMAllocationBudget.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "tests/support/SvgDecoding.h"

#include <ctime>
#include <gtest/gtest.h>
#include <string>

namespace {

ZAMRef<ZAMPrtModel> Decode(const std::string& body, bool flipY = true) {
    const ZAMLightXmlElement root = ParseDocument("<svg width='200' height='100'>" + body + "</svg>");
    auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVG2Interpreter decoder(&root);
    decoder._FlipYDefault = flipY;
    ZAMPrintSVGModelDriver driver(model.Get());
    EXPECT_EQ(decoder.Decode(&driver), 1);
    return model;
}

std::size_t CountAll(const ZAMPrtGraphicPrimitiveElt& element) {
    std::size_t count = 1;
    for (const auto& child : element.GetChildren()) {
        count += CountAll(*child);
    }
    return count;
}

std::string Repeat(int count, const std::string& text) {
    std::string repeated;
    for (int i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

// Elements d0, d1 … in which each uses the one before so many times.
std::string Tower(const std::string& element, int height, int uses) {
    std::string text;
    std::string content = "<rect/>";
    for (int i = 0; i < height; ++i) {
        const std::string id = std::to_string(i);
        text.append("<").append(element).append(" id='d").append(id).append("'>").append(content);
        text.append("</").append(element).append(">");
        content = Repeat(uses, "<use xlink:href='#d" + id + "'/>");
    }
    return text;
}

std::string InDefs(const std::string& content) {
    return "<defs>" + content + "</defs>";
}

// Each document ends with this group, which is missing when the budget is spent.
const std::string kEnd = "<g id='end'/>";

} // namespace

TEST(ReuseTest, OnlyTheStateOfTheDefinitionShares) {
    const struct {
        std::string_view attributes; // of a second use, behind one in the state of the definition
        bool shares;
    } rows[] = {
        {"", true},
        {"fill='Red'", true},
        {"color='blue' marker='url(#r)' stroke-opacity='1' x='5' transform='scale(2)'", true},
        {"stroke-dasharray='none' stroke-linecap='butt' font-size='16'", true},
        {"fill='blue'", false},
        {"fill='none'", false},  // the draw style alone
        {"stroke='none'", true}, // nothing to turn off
        {"stroke='#zz'", false}, // the draw style alone
        {"stroke-width='2'", false},
        {"stroke-dasharray='1'", false},
        {"fill-opacity='.9'", false},
        {"style='fill-rule:evenodd'", false},
        {"fill='url(#p)'", false},
        {"letter-spacing='1'", false},
        {"text-anchor='end'", false},
    };
    for (const auto& row : rows) {
        const auto model =
            Decode("<pattern id='p'/><g fill='red'><defs><rect id='r'/></defs><use xlink:href='#r'/><use " +
                   std::string(row.attributes) + " xlink:href='#R'/></g>");
        const ZAMPrtChildSpan uses = model->GetImages()[0]->GetChildren()[0]->GetChildren();
        ASSERT_EQ(uses.size(), 2U);
        const ZAMPrtGraphicPrimitiveElt* const used = uses[0]->GetChildren()[0].Get();
        EXPECT_EQ(uses[1]->GetChildren()[0].Get() == used, row.shares) << row.attributes;
        EXPECT_EQ(used->GetReferenceCount(), row.shares ? 2U : 1U); // the definition's went with its group
    }
}

// The markers of a path share as a use does.
TEST(ReuseTest, MarkersShareTheirContent) {
    const auto model = Decode("<marker id='m'/><path d='M0 0L1 1 2 2 3 3' marker='url(#m)'/>"
                              "<path fill='red' d='M0 0L1 1 2 2 3 3' marker='url(#m)'/>");
    const auto marker = [&model](std::size_t path, std::size_t instance) {
        return model->GetImages()[0]->GetChildren()[path]->GetChildren()[1 + instance]->GetChildren()[0].Get();
    };
    for (const std::size_t instance : {1U, 2U, 3U}) {
        EXPECT_EQ(marker(0, instance), marker(0, 0));
    }
    EXPECT_EQ(marker(1, 1), marker(1, 2)); // one copy for all in the middle
    EXPECT_NE(marker(1, 0), marker(1, 1));
    EXPECT_NE(marker(1, 0), marker(0, 0));
}

// Without the flip y is still held against the height where a use or a pattern might stay in its place, and paths and
// polylines flip all the same.
TEST(ReuseTest, WithoutTheFlip) {
    const struct {
        std::string body;
        std::string_view part;
    } rows[] = {
        {"<defs><rect id='r' width='1' height='1'/></defs><use id='u' xlink:href='#r' x='3' y='4'/>",
         R"("id": "u", "transform": [1, 0, 0, 1, 3, 4])"},
        {"<defs><rect id='r' width='1' height='1'/></defs><use id='u' xlink:href='#r' y='100'/>", R"("id": "u", "ch)"},
        {"<defs><rect id='r' width='4' height='5'/></defs><use id='u' xlink:href='#r' width='8' height='20'/>",
         R"("id": "u", "transform": [2, 0, 0, 4, 0, 0])"},
        {"<symbol id='s' viewBox='1 2 3 4'/><use xlink:href='#s'/>", R"("id": "s", "origin": [1, 2], "size": [3, 4])"},
        {"<image id='i' x='1' y='2' width='3' height='4'/>", R"("id": "i", "origin": [1, 2], "size": [3, 4])"},
        {"<pattern id='p' x='1' y='2' width='20' height='30'><rect width='10' height='10'/></pattern>"
         "<use xlink:href='#p'/>",
         R"("id": "p", "transform": [2, 0, 0, 3, -2, -6], "origin": [1, 2], "size": [20, 30])"},
        {"<pattern id='p' x='1' y='2' width='3' height='4'><image x='5' y='6' width='7' height='8'/></pattern>"
         "<rect fill='url(#p)'/>",
         R"("size": [7, 8], "step": [3, 4], "refPoint": [6, 8])"},
        {"<marker id='m' refX='1' refY='2' viewBox='3 4 5 6'/><line x1='7' y1='8' marker-start='url(#m)'/>",
         R"("transform": [1, 0, 0, 1, 7, 8], "children": [
      {"class": "ZAMPrtSymbolElt", "id": "m", "transform": [1, 0, 0, 1, -1, -2], "origin": [3, 4], "size": [5, 6])"},
        {"<marker id='m'/><polyline points='7 8' marker-end='url(#m)'/>", R"("transform": [1, 0, 0, 1, 7, -8])"},
        {"<marker id='m'/><path d='M7 8' marker-end='url(#m)'/>", R"("transform": [1, 0, 0, 1, 7, -8])"},
    };
    for (const auto& row : rows) {
        const std::string json = ToJson(*Decode(row.body, false));
        EXPECT_NE(json.find(row.part), std::string::npos) << row.body << "\n" << json;
    }
}

// The budget is what a small document may reuse; a model is at most that and what the document spells out.
TEST(ReuseTest, HostileDocumentsEndQuickly) {
    const std::string manyDefs = Repeat(2000, "<defs><g id='d'/></defs>");
    const struct {
        const char* what;
        std::string body;
        bool isSpent;
        std::size_t elements; // in the model; 0 where it only must not be more than the budget
    } rows[] = {
        {"one that uses itself", "<defs><g id='a'><use xlink:href='#a'/></g></defs><use xlink:href='#a'/>", false, 7},
        {"two that use each other",
         "<defs><g id='a'><use xlink:href='#b'/></g><g id='b'><use xlink:href='#a'/></g></defs><use xlink:href='#b'/>",
         false, 7},
        {"one that uses itself fifty times",
         "<defs><g id='a'>" + Repeat(50, "<use xlink:href='#a'/>") + "</g></defs><use xlink:href='#a'/>", true, 0},
        {"doubling while copied", InDefs(Tower("g", 50, 2)) + "<use xlink:href='#d49'/>", true, 0},
        {"doubling, then shared", InDefs(Tower("g", 14, 2)) + Repeat(100, "<use xlink:href='#d13'/>"), true, 0},
        {"doubling in symbols", Tower("symbol", 50, 2) + "<use xlink:href='#d49'/>", true, 0},
        {"a pattern filled with itself",
         "<pattern id='p' width='1' height='1'><rect fill='url(#p)'/><image/><rect fill='url(#P)'/></pattern>"
         "<rect fill='url(#p)'/>",
         false, 3},
        {"a marker on its own content",
         "<g marker='url(#m)'><marker id='m'><polyline points='0 0 1 1 2 2'/></marker><line/></g>", false, 0},
        {"markers on many vertices",
         "<marker id='m'><path d='" + Repeat(2000, "M0 0") + "'/></marker><path marker='url(#m)' d='" +
             Repeat(2000, "L0 0") + "'/>",
         true, 0},
        {"250 levels", InDefs(Tower("g", 250, 1)) + "<use xlink:href='#d249'/>", false, 0},
        {"many open definitions",
         Repeat(80, "<defs><g id='d'>") + Repeat(5000, "<use xlink:href='#x'/>") + Repeat(80, "</g></defs>"), false, 2},
        {"many that nobody looks for", "<g>" + Repeat(100'000, "<defs/>") + "</g>", false, 3},
        {"many of one id", manyDefs + Repeat(2000, "<use xlink:href='#d'/>"), false, 4002},
        {"many without an id",
         "<g>" + Repeat(5000, "<defs><g/></defs><use xlink:href='#'/>") + "</g>" + Repeat(5000, "<rect/>"), false, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        constexpr std::size_t kElements = 50'000;
        const ZAMAllocationBudget budget(kElements);
        const std::clock_t start = std::clock();
        const auto model = Decode(row.body + kEnd);
        const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        EXPECT_LT(seconds, 2.0); // some milliseconds, if nobody watches
        EXPECT_EQ(budget.IsSpent(), row.isSpent);
        const ZAMPrtImageElt& image = *model->GetImages()[0];
        const bool isComplete = !image.GetChildren().empty() && image.GetChildren().back()->GetID().Compare("end") == 2;
        EXPECT_NE(isComplete, row.isSpent);
        const std::size_t elements = CountAll(image);
        const std::size_t read = row.body.size() / std::string_view("<g/>").size();
        EXPECT_LE(elements, kElements + read);
        if (row.elements > 0) {
            EXPECT_EQ(elements, row.elements);
        }
    }
}
