// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressSheets.h"
#include "prepress/rewrites/ZAMPrepressStyle.h"
#include "tests/prepress/Documents.h"

#include <gtest/gtest.h>

namespace {

// What the interpreter itself reads as it is meant leaves a document as it is.
TEST(PrepressStyle, PlainAttributesNeedNoRewrite) {
    const std::pair<const char*, bool> rows[] = {
        {"", false},
        {"fill='red' stroke='#0Fa' stroke-width='2' stroke-linecap='round' d='M1 2' id='a'", false},
        {"fill='none' stroke='#00ff00' stroke-linejoin='bevel' x='2mm' width='10px' y='50%'", false},
        {"font-size='12' font-weight='bold' text-anchor='end'", false},
        {"fill='url(#a)'", true},
        {"fill='rebeccapurple'", true},
        {"fill='currentColor'", true},
        {"fill='inherit'", true},
        {"fill='#ff00'", true},
        {"fill='rgb(1,2,3)'", true},
        {"stroke-width='1em'", true},
        {"stroke-width='-1'", true},
        {"stroke-dasharray='1 2'", true},
        {"opacity='.5'", true},
        {"fill-opacity='.5'", true},
        {"fill-rule='evenodd'", true},
        {"display='none'", true},
        {"visibility='visible'", true},
        {"color='red'", true},
        {"marker='url(#a)'", true},
        {"font-weight='bolder'", true},
        {"font-size='larger'", true},
        {"dy='1em'", true},
        {"stroke-width='2px' font-size='9.5pt' y='-.5e2in' dy='3%' x=' 4'", false},
        {"stroke-width='5%'", true},
        {"width='3Q'", true},
        {"x='1 2mm'", true},
        {"x='2ex'", true},
    };
    for (const auto& [attributes, isConcerned] : rows) {
        const ZAMLightXmlElement element = ParseDocument(std::string("<rect ") + attributes + "/>");
        EXPECT_EQ(ZAMPrepressStyle::Concerns(element), isConcerned) << attributes;
    }
    EXPECT_TRUE(ZAMPrepressSheets::Concerns(ParseDocument("<g style='fill:red'/>")));
    EXPECT_TRUE(ZAMPrepressSheets::Concerns(ParseDocument("<style/>")));
    EXPECT_FALSE(ZAMPrepressSheets::Concerns(ParseDocument("<g class='a'/>")));
}

} // namespace
