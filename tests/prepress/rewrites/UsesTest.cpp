// SPDX-License-Identifier: MIT
#include "prepress/ZAMPrepress.h"
#include "tests/prepress/Documents.h"

#include <chrono>
#include <gtest/gtest.h>

namespace {

// Each level refers so many times to the one below.
std::string Levels(int levels, int references) {
    std::string document = "<svg width='9' height='9'><defs><g id='l0'><rect width='1' height='1'/></g>";
    for (int level = 1; level <= levels; ++level) {
        document += "<g id='l" + std::to_string(level) + "'>";
        for (int i = 0; i < references; ++i) {
            document += "<use xlink:href='#l" + std::to_string(level - 1) + "'/>";
        }
        document += "</g>";
    }
    return document + "</defs><use xlink:href='#l" + std::to_string(levels) + "'/></svg>";
}

struct Measure {
    std::size_t elements = 0;
    int depth = 0;
};

Measure MeasureOf(const ZAMLightXmlElement& element) {
    Measure measure{1, 0};
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        const Measure child = MeasureOf(element.GetNextChild(position));
        measure.elements += child.elements;
        measure.depth = std::max(measure.depth, child.depth);
    }
    ++measure.depth;
    return measure;
}

TEST(PrepressUses, DoublingEnds) {
    const auto start = std::chrono::steady_clock::now();
    const Measure measure = MeasureOf(RewriteUpTo("uses", ParseDocument(Levels(50, 2))));
    EXPECT_GT(measure.elements, 1000U);
    EXPECT_LT(measure.elements, 3'000'000U);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

// Each level is a group of the use and one of its copy.
TEST(PrepressUses, ChainsEndWhereDocumentsDo) {
    constexpr int kOwnLevels = 4; // the root, the first group, the last level and what it holds
    EXPECT_EQ(MeasureOf(RewriteUpTo("uses", ParseDocument(Levels(100, 1)))).depth, 2 * 100 + kOwnLevels);
    EXPECT_LE(MeasureOf(RewriteUpTo("uses", ParseDocument(Levels(10'000, 1)))).depth, ZAMLimits::kElementDepth + 1);
}

// What was copied before grows with each copy of it.
TEST(PrepressUses, CopiesOfCopiesEndWhereDocumentsDo) {
    std::string document = "<svg>";
    for (int i = 1; i < 200; ++i) {
        std::string nested = "<use xlink:href='#n" + std::to_string(i - 1) + "'/>";
        for (int depth = 0; depth < 20; ++depth) {
            nested.insert(0, "<g>").append("</g>");
        }
        document += "<g id='n" + std::to_string(i) + "'>" + nested + "</g>";
    }
    EXPECT_LE(MeasureOf(RewriteUpTo("uses", ParseDocument(document + "</svg>"))).depth, ZAMLimits::kElementDepth + 1);
}

} // namespace
