// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressRootFrame.h"

#include <gtest/gtest.h>
#include <string>

namespace {

std::string ToText(const ZAMPrepressRootFrame& frame) {
    std::string text;
    const auto add = [&text](const std::optional<double>& number) {
        text += (number ? ZAMPrepressNumberText(*number) : "-") + ' ';
    };
    add(frame.width);
    add(frame.height);
    if (frame.viewBox) {
        text += "| ";
        add(frame.viewBox->xMin);
        add(frame.viewBox->yMin);
        add(frame.viewBox->Width());
        add(frame.viewBox->Height());
    }
    return text + (frame.content == ZAMMathAffine2D() ? "" : "scaled ") + (frame.isAsWritten ? "as written" : "");
}

TEST(PrepressRootFrame, Attributes) {
    struct Row {
        ZAMPrepressRootFrame::Texts texts; // width, height, viewBox, preserveAspectRatio
        const char* frame;
    };
    constexpr Row kRows[] = {
        {{"", "", "", ""}, "- - as written"},
        {{"100%", "100%", "", ""}, "- - as written"},
        {{"20", "10px", "", "xMinYMin slice"}, "20 10 as written"},
        {{"1em", "2", "", ""}, "16 2 "},
        {{"20", "10", "1 2 40 20", ""}, "20 10 | 1 2 40 20 as written"},
        {{"20", "10", "1,2,40,20", ""}, "20 10 | 1 2 40 20 "},
        {{"", "", "1 2 40 20", ""}, "40 20 | 1 2 40 20 as written"},
        {{"100%", "100%", "1 2 40 20", "none"}, "40 20 | 1 2 40 20 as written"},
        {{"20", "", "1 2 40 20", ""}, "20 10 | 1 2 40 20 "},
        {{"50%", "10", "1 2 40 20", ""}, "20 10 | 1 2 40 20 "},
        {{"30", "10", "0 0 20 10", ""}, "30 10 | -5 0 30 10 "},
        {{"30", "10", "0 0 20 10", "xMaxYMin"}, "30 10 | -10 0 30 10 "},
        {{"40", "10", "0 0 20 10", "xMidYMax slice"}, "40 10 | 0 5 20 5 "},
        {{"40", "10", "5 5 20 10", "none"}, "40 10 | 0 0 40 10 scaled "},
        {{"20", "10", "0 0 0 10", ""}, "20 10 "},
        {{"20", "10", "0 0 10", ""}, "20 10 "},
        {{"-20", "10", "", ""}, "- 10 as written"},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(ToText(ZAMPrepressRootFrame::Of(row.texts)), row.frame)
            << row.texts.width << ", " << row.texts.height << ", " << row.texts.viewBox << ", " << row.texts.aspect;
    }
}

} // namespace
