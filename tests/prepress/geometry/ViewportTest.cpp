// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressViewport.h"

#include <gtest/gtest.h>

namespace {

// A content of 10 by 20 from 1, 2 in a viewport of 100 by 100 from 5, 6.
TEST(PrepressViewport, AspectRatios) {
    const ZAMMathBox2D content{1.0, 2.0, 11.0, 22.0};
    const ZAMMathBox2D viewport{5.0, 6.0, 105.0, 106.0};
    struct Row {
        const char* text;
        ZAMMathBox2D shown; // where the content comes to lie
    };
    const ZAMMathBox2D initial{30.0, 6.0, 80.0, 106.0};
    const Row rows[] = {
        {"", initial},
        {"xMidYMid", initial},
        {"xMidYMid meet", initial},
        {"defer xMidYMid", initial},
        {"  xMidYMid \n meet ", initial},
        {"xmidymid slice", initial},
        {"nonsense slice", initial},
        {"xMinYMax", {5.0, 6.0, 55.0, 106.0}},
        {"xMaxYMin meet", {55.0, 6.0, 105.0, 106.0}},
        {"xMidYMin slice", {5.0, 6.0, 105.0, 206.0}},
        {"xMinYMid slice", {5.0, -44.0, 105.0, 156.0}},
        {"defer xMaxYMax slice", {5.0, -94.0, 105.0, 106.0}},
        {"none", viewport},
        {"none slice", viewport},
    };
    for (const Row& row : rows) {
        const ZAMMathAffine2D map = ZAMPrepressAspect::Parse(row.text).Map(content, viewport);
        const ZAMMathPoint2D least = map.Apply(ZAMMathPoint2D{content.xMin, content.yMin});
        const ZAMMathPoint2D most = map.Apply(ZAMMathPoint2D{content.xMax, content.yMax});
        EXPECT_EQ((ZAMMathBox2D{least.x, least.y, most.x, most.y}), row.shown) << row.text;
        EXPECT_EQ(ZAMPrepressUnmap(map, row.shown), content) << row.text;
    }
}

} // namespace
