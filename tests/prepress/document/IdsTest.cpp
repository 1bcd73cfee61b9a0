// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressIds.h"
#include "tests/prepress/Documents.h"

#include <gtest/gtest.h>

namespace {

TEST(PrepressIds, References) {
    ZAMPrepressTree tree(ParseDocument("<svg><g id='a'/><rect id='a'/><g><circle id='B b'/></g><g id=''/></svg>"));
    const ZAMPrepressIds ids(tree);
    struct Row {
        const char* text;
        const char* link; // the name of what it refers to
        const char* url;
    };
    constexpr Row kRows[] = {
        {"#a", "g", ""},
        {" #a\n", "g", ""},
        {"#A", "", ""},
        {"#B b", "circle", ""},
        {"#", "", ""},
        {"", "", ""},
        {"a", "", ""},
        {"other.svg#a", "", ""},
        {"url(#a)", "", "g"},
        {" url( '#a' ) red", "", "g"},
        {"url(\"#a\")", "", "g"},
        {"url('#a)", "", ""},
        {"url(#a", "", ""},
        {"url(other.svg#a)", "", ""},
        {"none", "", ""},
    };
    const auto nameOf = [](const ZAMPrepressElement* element) {
        return element == nullptr ? std::string_view() : element->name;
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(nameOf(ids.FindLink(row.text)), row.link) << row.text;
        EXPECT_EQ(nameOf(ids.FindUrl(row.text)), row.url) << row.text;
    }
}

TEST(PrepressIds, NewOnesAreLikeNoOther) {
    ZAMPrepressTree tree(ParseDocument("<svg><g id='clip-1'/><g id='clip-3'/></svg>"));
    ZAMPrepressIds ids(tree);
    EXPECT_EQ(ids.NewId("clip-"), "clip-2");
    EXPECT_EQ(ids.NewId("clip-"), "clip-4");
    EXPECT_EQ(ids.Find("clip-4"), nullptr);
}

} // namespace
