// SPDX-License-Identifier: MIT
#include "framework/base/ZAMAllocationBudget.h"
#include "prepress/ZAMPrepress.h"
#include "tests/prepress/Documents.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace {

// The transforms of the copies of markers, one a line.
std::string MarkerTransforms(const std::string& document) {
    const std::string xml = RewriteUpTo("markers", document);
    std::string transforms;
    constexpr std::string_view kStart = "<g transform=\"";
    for (std::size_t at = xml.find(kStart); at != std::string::npos; at = xml.find(kStart, at)) {
        at += kStart.size();
        transforms += transforms.empty() ? "" : ", ";
        transforms += xml.substr(at, xml.find('"', at) - at);
    }
    return transforms;
}

TEST(Markers, Placement) {
    const struct {
        const char* marker; // attributes
        const char* shape;
        const char* expected;
    } rows[] = {
        {"", "<line x1='1' y1='2' x2='5' y2='2' marker-start='url(#m)'/>", "translate(1 2)"},
        {"", "<line x2='5' stroke-width='2' marker-end='url(#m)'/>", "matrix(2 0 0 2 5 0)"},
        {"markerUnits='userSpaceOnUse'", "<line x2='5' stroke-width='2' marker-end='url(#m)'/>", "translate(5 0)"},
        {"", "<line x2='5' stroke-width='0' marker-end='url(#m)'/>", ""},
        {"refX='1' refY='2'", "<line stroke-width='2' marker-end='url(#m)'/>", "matrix(2 0 0 2 -2 -4)"},
        {"viewBox='0 0 6 6' refX='3' refY='0'", "<line marker-end='url(#m)'/>", "matrix(0.5 0 0 0.5 -1.5 0)"},
        {"viewBox='2 2 6 6' refX='5' refY='5'", "<line marker-end='url(#m)'/>", "matrix(0.5 0 0 0.5 -2.5 -2.5)"},
        {"viewBox='0 0 6 3' refX='center' refY='bottom'", "<line marker-end='url(#m)'/>",
         "matrix(0.5 0 0 0.5 -1.5 -1.5)"},
        {"viewBox='0 0 1 1' markerWidth='2' markerHeight='4' preserveAspectRatio='none'",
         "<line marker-end='url(#m)'/>", "matrix(2 0 0 4 0 0)"},
        {"viewBox='0 0 0 1'", "<line marker-end='url(#m)'/>", ""},
        {"markerWidth='0'", "<line marker-end='url(#m)'/>", ""},
        {"markerHeight='-1'", "<line marker-end='url(#m)'/>", ""},
        {"orient='auto'", "<polyline points='0 0 0 5 5 5' marker-start='url(#m)'/>", "matrix(0 1 -1 0 0 0)"},
        {"orient='auto-start-reverse'", "<line y2='5' marker-start='url(#m)' marker-end='url(#m)'/>",
         "matrix(0 -1 1 0 0 0), matrix(0 1 -1 0 0 5)"},
        {"orient='-270'", "<line marker-end='url(#m)'/>", "matrix(0 1 -1 0 0 0)"},
        {"orient='0.5turn'", "<line marker-end='url(#m)'/>", "matrix(-1 0 0 -1 0 0)"},
        {"orient='100grad'", "<line marker-end='url(#m)'/>", "matrix(0 1 -1 0 0 0)"},
        {"", "<path d='M0 0H1H2H3' marker-mid='url(#m)'/>", "translate(1 0), translate(2 0)"},
        {"", "<path d='M0 0H1M2 0H3' marker-start='url(#m)' marker-end='url(#m)'/>", "translate(0 0), translate(3 0)"},
        {"", "<polygon points='1 1 2 1 2 2' marker-end='url(#m)'/>", "translate(1 1)"}, // it ends where it began
        {"", "<rect width='1' height='1' marker-start='url(#m)'/>", ""},
        {"", "<line marker-end='url(#other)'/>", ""},
        {"", "<path d='' marker-end='url(#m)'/>", ""},
    };
    for (const auto& [marker, shape, expected] : rows) {
        const std::string document = "<svg><marker id='m' " + std::string(marker) +
                                     "><rect width='1' height='1'/></marker>" + std::string(shape) + "</svg>";
        EXPECT_EQ(MarkerTransforms(document), expected) << document;
    }
}

std::size_t CountOf(const std::string& text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

// Markers whose shapes have markers are drawn as long as they do not come back to themselves, to a bounded depth.
TEST(Markers, OnMarkers) {
    const std::string own = "<svg><marker id='m'><line x2='1' marker-end='url(#m)'/></marker>"
                            "<line x2='5' marker-end='url(#m)'/></svg>";
    EXPECT_EQ(CountOf(RewriteUpTo("markers", own), "<line"), 2U);

    std::string chain = "<svg>";
    std::string doubling = "<svg>";
    for (int i = 0; i < 500; ++i) {
        const std::string start = "<marker id='m" + std::to_string(i) + "'><line x2='1' ";
        const std::string next = "='url(#m" + std::to_string(i + 1) + ")' ";
        chain.append(start).append("marker-end").append(next).append("/></marker>");
        doubling.append(start).append("marker-start").append(next);
        doubling.append("marker-end").append(next).append("/></marker>");
    }
    const std::string end = "<marker id='m500'><line/></marker><line marker-end='url(#m0)'/></svg>";
    const auto before = std::chrono::steady_clock::now();
    EXPECT_LT(CountOf(RewriteUpTo("markers", chain + end), "<line"), 10'000U);
    EXPECT_LT(CountOf(RewriteUpTo("markers", doubling + end), "<line"), 100'000U);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(5));
}

// A great marker on a long path ends with what the tree lets it copy.
TEST(Markers, ManyCopies) {
    std::string document = "<svg><marker id='m'>";
    for (int i = 0; i < 1000; ++i) {
        document += "<rect width='1' height='1'/>";
    }
    document += "</marker><path marker-mid='url(#m)' d='M0 0";
    for (int i = 0; i < 100'000; ++i) {
        document += "h1";
    }
    document += "'/></svg>";
    const ZAMAllocationBudget budget;
    ZAMPrepressTree tree(ParseDocument(document));
    for (const ZAMPrepressRewrite& rewrite : ZAMPrepressGetRewrites()) {
        if (rewrite.name == "markers") {
            rewrite.rewrite(tree);
        }
    }
    EXPECT_LT(tree.GetSize(), 1'200'000U);
}

} // namespace
