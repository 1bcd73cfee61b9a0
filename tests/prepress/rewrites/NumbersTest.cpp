// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressNumbers.h"
#include "tests/prepress/Documents.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* text;
    const char* expected; ///< the same text where the element is to stay as it is
};

void Check(const std::string& attribute, const std::string& otherAttributes, std::initializer_list<Row> rows) {
    const ZAMLightXmlName name(attribute);
    for (const Row& row : rows) {
        std::string document("<path ");
        document.append(attribute).append("=\"").append(row.text).append("\" ").append(otherAttributes).append("/>");
        const auto root = ParseDocument(document);
        const bool stays = root.GetAttribute(name) == row.expected;
        EXPECT_EQ(ZAMPrepressNumbers::Concerns(root), !stays) << row.text;
        ZAMPrepressTree tree(root);
        ZAMPrepressNumbers::Rewrite(tree);
        EXPECT_EQ(tree.GetRoot().Get(attribute), row.expected) << row.text;
        EXPECT_EQ(tree.GetRoot().Has(attribute), *row.expected != '\0') << row.text;
    }
}

TEST(Numbers, Paths) {
    Check("d", "",
          {
              {"M10 20L30,40", "M10 20L30,40"},
              {" M 1e-5 , 2  l 3 4 Z ", " M 1e-5 , 2  l 3 4 Z "},
              {"M10-20 30-40z", "M10-20 30-40z"}, // a minus starts a number
              {"m1 2a5 5 0 0 1 5-6 5 5 0 0 1 2 3", "m1 2a5 5 0 0 1 5-6 5 5 0 0 1 2 3"},
              {"M10.5.5-3+4", "M10.5 .5 -3 4"},
              {"M1E2,1E-2 1e+2 3", "M1e2 1e-2 1e+2 3"},
              {"M1&#9;2&#10;3 4", "M1 2 3 4"},
              {"m1 2a5 5 0 015-6,5,5,0,112.5.5", "m1 2a5 5 0 0 1 5 -6 5 5 0 1 1 2.5 .5"},
              {"M1 1L2 2 3", "M1 1L2 2"},
              {"M1 1L2 2 ,L3 3", "M1 1L2 2"},
              {"M1 1L2 2 10mm 3", "M1 1L2 2"},
              {"M1 1L2eee 2", "M1 1"},
              {"none", ""},
              {"L1 1", ""},
          });
}

TEST(Numbers, PathsThatNeedALineToNowhere) {
    Check("d", "fill=\"#ff0000\"",
          {
              {"M0 0C1 2 3 4 5 6", "M0 0C1 2 3 4 5 6h0"},
              {"M0 0a5 5 0 0 1 10 0", "M0 0a5 5 0 0 1 10 0h0"},
              {"M0 0q1 2 3 4 foo", "M0 0q1 2 3 4h0"},
              {"M0 0C1 2 3 4 5 6z", "M0 0C1 2 3 4 5 6z"}, // three vertices
              {"M0 0q1 2 3 4 1 2 3 4", "M0 0q1 2 3 4 1 2 3 4"},
              {"M0 0L5 6", "M0 0L5 6"}, // no area
              {"M0 0zM1 1L2 2Z", "M0 0h0zM1 1L2 2Z"},
          });
    Check("d", "fill=\"none\"", {{"M0 0C1 2 3 4 5 6", "M0 0C1 2 3 4 5 6"}, {"m1 2 Z", "m1 2h0Z"}});
}

TEST(Numbers, Points) {
    Check("points", "",
          {
              {"0,0 10,-5 .5,1e-3", "0,0 10,-5 .5,1e-3"},
              {"0,0 10-5", "0 0 10 -5"},
              {"0&#10;0 1 1", "0 0 1 1"},
              {"1.5.5,+3 4", "1.5 .5 3 4"},
              {"1,2 3,4 x 5,6", "1 2 3 4"},
              {"1,2 3,4,,5,6", "1 2 3 4"},
          });
}

TEST(Numbers, Transforms) {
    Check("transform", "",
          {
              {"translate(10,20)scale(2)", "translate(10,20)scale(2)"},
              {" rotate( 30 , 1 2 ), skewX( 5 ) ", " rotate( 30 , 1 2 ), skewX( 5 ) "},
              {"translate(10-20)", "translate(10 -20)"},
              {"translate (10&#10;20)&#10;scale(+2)", "translate(10 20) scale(2)"},
              {"matrix(1,0,0,1,.5.5)", "matrix(1 0 0 1 .5 .5)"},
              {"rotate(30 10)", ""},
              {"scale(2) foo(3)", ""},
          });
}

TEST(Numbers, ViewBoxes) {
    Check("viewBox", "",
          {
              {"0 0 100 50", "0 0 100 50"},
              {" -1e2  0 100 50 ", " -1e2  0 100 50 "},
              {"0,0,100,50", "0 0 100 50"},
              {"0-5 100&#9;50", "0 -5 100 50"},
              {"0 0 100 -50", ""},
              {"0 0 100", ""},
          });
}

} // namespace
