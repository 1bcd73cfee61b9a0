// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressTransform.h"

#include <gtest/gtest.h>

namespace {

TEST(Transform, Matrices) {
    const std::pair<const char*, ZAMMathAffine2D> rows[] = {
        {"", {}},
        {" ", {}},
        {"matrix(1 2 3 4 5 6)", {1, 2, 3, 4, 5, 6}},
        {"translate(5)", {1, 0, 0, 1, 5, 0}},
        {"translate(5-6)", {1, 0, 0, 1, 5, -6}},
        {"scale(2)", {2, 0, 0, 2, 0, 0}},
        {"scale( 2 , 3 )", {2, 0, 0, 3, 0, 0}},
        {"rotate(90)", {0, 1, -1, 0, 0, 0}},
        {"rotate(90 10,20)", {0, 1, -1, 0, 30, 10}},
        {"skewX(45)", {1, 0, 1, 1, 0, 0}},
        {"skewY(45)", {1, 1, 0, 1, 0, 0}},
        {"translate(1 2)scale(3)", {3, 0, 0, 3, 1, 2}}, // the last is done first
        {" scale (3) , translate\n(1 2) ", {3, 0, 0, 3, 3, 6}},
    };
    for (const auto& [text, expected] : rows) {
        const auto matrix = ZAMPrepressReadTransform(text);
        ASSERT_TRUE(matrix) << text;
        for (const auto member : {&ZAMMathAffine2D::a, &ZAMMathAffine2D::b, &ZAMMathAffine2D::c, &ZAMMathAffine2D::d,
                                  &ZAMMathAffine2D::e, &ZAMMathAffine2D::f}) {
            EXPECT_NEAR((*matrix).*member, expected.*member, 1e-12) << text;
        }
    }
}

TEST(Transform, Errors) {
    for (const char* const text :
         {"none", "scale", "scale()", "scale(1", "scale(1 2 3)", "rotate(1 2)", "matrix(1 2 3 4 5)", "skewX(1 2)",
          "matrix(1 2 3 4 5 6 7)", "Scale(2)", "scale(2,)", "scale(,2)", "scale(2px)", "translate(1) 5",
          "translate(1)foo(2)", "scale(1e999)", "scale(2);rotate(2)"}) {
        EXPECT_FALSE(ZAMPrepressReadTransform(text)) << text;
    }
}

} // namespace
