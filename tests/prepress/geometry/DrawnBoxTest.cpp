// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressDrawnBox.h"
#include "tests/prepress/Documents.h"

#include <gtest/gtest.h>

namespace {

TEST(DrawnBox, OfContents) {
    const struct {
        const char* content;
        std::optional<ZAMMathBox2D> box;
    } rows[] = {
        {"<rect x='1' y='2' width='3' height='4'/>", ZAMMathBox2D{1, 2, 4, 6}},
        {"<rect width='3' height='4' stroke='#000000' stroke-width='2' stroke-linejoin='bevel'/>",
         ZAMMathBox2D{-1.4142135623730951, -1.4142135623730951, 4.414213562373095, 5.414213562373095}},
        {"<path d='M0 0H4V4' stroke='#000000' stroke-width='2'/>", ZAMMathBox2D{-4, -4, 8, 8}}, // as far as mitres may
        {"<path d='M0 0H4V4' stroke='none' stroke-width='2'/>", ZAMMathBox2D{0, 0, 4, 4}},
        {"<g transform='translate(10 0)'><circle r='2' transform='scale(2)'/></g>", ZAMMathBox2D{6, -4, 14, 4}},
        {"<rect width='1' height='1'/><a><rect x='5' width='1' height='1'/></a>", ZAMMathBox2D{0, 0, 6, 1}},
        {"<defs><rect width='9' height='9'/></defs><rect width='1' height='1'/>", ZAMMathBox2D{0, 0, 1, 1}},
        {"<g/>", ZAMMathBox2D{}},
        {"<g><text>a</text></g>", std::nullopt},
        {"<image width='1' height='1'/>", std::nullopt},
        {"<use xlink:href='#a'/>", std::nullopt},
    };
    for (const auto& [content, expected] : rows) {
        ZAMPrepressTree tree(ParseDocument("<svg>" + std::string(content) + "</svg>"));
        EXPECT_EQ(ZAMPrepressDrawnBoxes().OfContent(tree.GetRoot()), expected) << content;
    }
}

} // namespace
