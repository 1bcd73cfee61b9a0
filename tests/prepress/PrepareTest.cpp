// SPDX-License-Identifier: MIT
#include "prepress/ZAMPrepress.h"
#include "tests/prepress/Documents.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace {

// Each level uses the one below twice.
std::string Doubling(int levels) {
    std::string document = "<svg width='9' height='9'><defs><rect id='l0' width='1' height='1'/>";
    for (int level = 1; level <= levels; ++level) {
        const std::string use = "<use xlink:href='#l" + std::to_string(level - 1) + "'/>";
        document.append("<g id='l").append(std::to_string(level)).append("'>").append(use).append(use).append("</g>");
    }
    return document + "</defs><use xlink:href='#l" + std::to_string(levels) + "'/></svg>";
}

TEST(Prepare, TooMuchReuseLeavesEmptyPages) {
    const std::string pages = "<pages>" + Doubling(50) + "<svg width='8' height='9'><rect/></svg></pages>";
    for (const bool hasBudget : {true, false}) {
        std::optional<ZAMAllocationBudget> budget;
        if (hasBudget) {
            budget.emplace();
        }
        EXPECT_EQ(ToXml(ZAMPrepress::Prepare(ParseDocument(pages))),
                  "<pages>\n  <svg width=\"9\" height=\"9\"/>\n  <svg width=\"8\" height=\"9\"/>\n</pages>\n");
        EXPECT_EQ(ZAMAllocationBudget::IsCurrentSpent(), hasBudget);
    }
}

// 8 rectangles and as many groups as are between them and the root, or nothing at all.
TEST(Prepare, WhatIsReusedIsCharged) {
    for (const std::size_t elements : {100U, 10U}) {
        const ZAMAllocationBudget budget(elements);
        const std::string xml = ToXml(ZAMPrepress::Prepare(ParseDocument(Doubling(3))));
        std::size_t rectangles = 0;
        for (std::size_t at = 0; (at = xml.find("<rect", at)) != std::string::npos; ++at) {
            ++rectangles;
        }
        EXPECT_EQ(rectangles, elements == 100 ? 8U : 0U);
        EXPECT_EQ(budget.IsSpent(), elements == 10);
    }
}

} // namespace
