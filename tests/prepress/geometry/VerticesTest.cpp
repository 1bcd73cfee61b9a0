// SPDX-License-Identifier: MIT
#include "framework/mathematics/ZAMMathConstants.h"
#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/geometry/ZAMPrepressVertices.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

// "x y degrees" for each vertex, degrees rounded.
std::string Vertices(const char* data) {
    std::string text;
    for (const auto& [point, direction] : ZAMPrepressGetVertices(ZAMPrepressPath::Parse(data))) {
        EXPECT_NEAR(std::hypot(direction.x, direction.y), 1.0, 1e-12) << data;
        const double degrees = std::round(std::atan2(direction.y, direction.x) / ZAMDegreeToRadian);
        text += text.empty() ? "" : ", ";
        text += ZAMPrepressNumberText(point.x) + ' ' + ZAMPrepressNumberText(point.y) + ' ' +
                ZAMPrepressNumberText(degrees);
    }
    return text;
}

TEST(Vertices, OfPaths) {
    const char* const rows[][2] = {
        {"", ""},
        {"M1 2", "1 2 0"},
        {"M0 0H5", "0 0 0, 5 0 0"},
        {"M0 0H5V5", "0 0 0, 5 0 45, 5 5 90"},
        {"M0 0H5H0", "0 0 0, 5 0 90, 0 0 180"},                         // back where it came from
        {"M0 0H5V5H0Z", "0 0 -45, 5 0 45, 5 5 135, 0 5 -135, 0 0 -45"}, // both ends of a closed path look alike
        {"M0 0H5M0 5V9", "0 0 0, 5 0 0, 0 5 90, 0 9 90"},               // subpaths do not see each other
        {"M0 0H5V5ZH9", "0 0 -68, 5 0 45, 5 5 158, 0 0 -68, 9 0 0"},    // gone on from a closed one
        {"M0 0C0 5 5 9 9 9", "0 0 90, 9 9 0"},
        {"M0 0C0 0 0 5 5 5", "0 0 90, 5 5 0"},  // a control on the start
        {"M0 0C0 5 5 5 5 5", "0 0 90, 5 5 0"},  // a control on the end
        {"M0 0C0 0 5 5 5 5", "0 0 45, 5 5 45"}, // both
        {"M0 0C0 0 0 0 0 0H5", "0 0 0, 0 0 0, 5 0 0"},
        {"M0 0Q5 0 5 5", "0 0 0, 5 5 90"},
        {"M0 0A5 5 0 1 1 0 10", "0 0 0, 0 10 180"},      // of its parts only the ends count
        {"M0 0V5v0H5", "0 0 90, 0 5 90, 0 5 45, 5 5 0"}, // no length: as what came before
        {"M0 0h0V5", "0 0 90, 0 0 90, 0 5 90"},          // or what comes after
        {"M0 0h0", "0 0 0, 0 0 0"},
        {"M0 0L1e200 1e200L0 0", "0 0 45, 1e+200 1e+200 135, 0 0 -135"},
        {"M0 0L1e999 0L5 5", "0 0 0, inf 0 0, 5 5 0"},
    };
    for (const auto& [data, expected] : rows) {
        if (std::string_view(expected).find("inf") == std::string_view::npos) {
            EXPECT_EQ(Vertices(data), expected) << data;
        } else {
            EXPECT_EQ(ZAMPrepressGetVertices(ZAMPrepressPath::Parse(data)).size(), 3U) << data;
        }
    }
}

} // namespace
