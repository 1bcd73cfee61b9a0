// SPDX-License-Identifier: MIT
#include "framework/base/ZAMLimits.h"
#include "tests/tools/ToolTest.h"

#include <functional>

// What the tool says just beyond a limit, and that it prints just below.
class LimitsTest : public ToolTest {
protected:
    struct Row {
        std::string_view what;
        std::function<std::string(std::size_t)> make; ///< the document of a size
        std::size_t limit;                            ///< the largest one that is printed
        std::string message;                          ///< of the next one, after the document's name
        bool isLifted;                                ///< by --unlimited
    };

    static std::string Drawing(const std::string& content) {
        return R"(<svg width="9" height="9">)" + content + "</svg>";
    }
    static std::string Repeat(const std::string& text, std::size_t count) {
        std::string repeated;
        for (std::size_t i = 0; i < count; ++i) {
            repeated += text;
        }
        return repeated;
    }
    static std::string Attributes(std::size_t count) {
        std::string attributes;
        for (std::size_t i = 0; i < count; ++i) {
            attributes += " a" + std::to_string(i) + "=''";
        }
        return attributes;
    }
};

TEST_F(LimitsTest, JustBelowIsPrintedAndJustAboveIsAClearError) {
    const Row rows[] = {
        {"nesting", [](std::size_t depth) { return Drawing(Repeat("<g>", depth - 1) + Repeat("</g>", depth - 1)); },
         ZAMLimits::kElementDepth, "elements are nested more than 256 deep", false},
        {"attributes", [](std::size_t count) { return Drawing("<g" + Attributes(count) + "/>"); },
         ZAMLimits::kAttributesOfElement, "an element has more than 4096 attributes", false},
        {"attributes of the document type",
         [](std::size_t count) {
             return "<!DOCTYPE svg [<!ATTLIST rect a CDATA '" + std::string(1023 - 32, 'x') + "'>]>" +
                    Drawing(Repeat("<rect/>", count));
         },
         ZAMLimits::kDefaultedBytes / 1024, "the document type adds too many attributes", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const RunResult below = Run({"-f", "json", "-o", "out"}, row.make(row.limit));
        EXPECT_EQ(below.status, 0) << below.err;
        std::filesystem::remove("out");
        const RunResult above = Run({"-f", "json", "-o", "out"}, row.make(row.limit + 1));
        EXPECT_EQ(above.status, 1);
        EXPECT_TRUE(above.err.starts_with("zamprint: standard input:")) << above.err;
        EXPECT_TRUE(above.err.ends_with(": " + row.message + "\n")) << above.err;
        EXPECT_TRUE(List().empty());
        EXPECT_EQ(Run({"-f", "json", "-u"}, row.make(row.limit + 1)).status, row.isLifted ? 0 : 1);
    }
}

// A document may reuse so many elements, and one more for every ten of its bytes.
TEST_F(LimitsTest, ReusedElements) {
    const auto make = [](std::size_t uses, std::size_t bytes) {
        std::string document = R"(<svg width="9" height="9"><g id="a">)" + Repeat("<rect/>", 998) + "</g>";
        document += Repeat(R"(<use xlink:href="#a"/>)", uses) + "</svg>";
        return document + "<!--" + std::string(bytes - document.size() - 7, ' ') + "-->";
    };
    // 1,000 each: the group, its content and the use's own group.
    const std::size_t bytes = 50'000;
    const std::size_t most = (ZAMLimits::kReusedElements + bytes / ZAMLimits::kBytesForEachReused) / 1000;
    EXPECT_EQ(Run({"-o", "out"}, make(most, bytes)).status, 0);
    std::filesystem::remove("out");
    const RunResult above = Run({"-o", "out"}, make(most + 1, bytes));
    EXPECT_EQ(above.err, "zamprint: standard input: reuses too many elements; --max-elements N allows more\n");
    EXPECT_TRUE(List().empty());
    EXPECT_EQ(Run({"-o", "out"}, make(most + 1, bytes + 1000 * ZAMLimits::kBytesForEachReused)).status, 0);
    EXPECT_EQ(Run({"-o", "out", "-u"}, make(most + 1, bytes)).status, 0);
}

TEST_F(LimitsTest, RatioOfACompressedInput) {
    const auto compress = [&](std::size_t blanks, const char* options) {
        return Shell("{ echo '<svg width=\"9\" height=\"9\"><!--'; head -c " + std::to_string(blanks) +
                     " /dev/zero | tr '\\0' ' '; echo '--></svg>'; } | gzip -9 | $Z -f json -o out " + options);
    };
    const std::size_t free = ZAMLimits::kInflateFreeBytes;
    EXPECT_EQ(compress(free - 100, "").status, 0);
    std::filesystem::remove("out");
    const RunResult above = compress(free + 100, "");
    EXPECT_EQ(above.status, 1);
    EXPECT_EQ(above.err, "zamprint: standard input: holds more than 200 times its size when it is decompressed; "
                         "--unlimited reads it\n");
    EXPECT_TRUE(List().empty());
    EXPECT_EQ(compress(free + 100, "-u").status, 0);
}

// The sides of pages in the units of their formats.
TEST_F(LimitsTest, SizesOfPages) {
    const auto print = [&](const char* format, const std::string& width, const std::string& height) {
        return Run({"-f", format},
                   "<svg width=\"" + width + "\" height=\"" + height + "\"><rect width='9' height='9'/></svg>");
    };
    EXPECT_EQ(print("png", "32767", "1").status, 0);
    EXPECT_EQ(print("png", "32768", "1").status, 1);
    EXPECT_EQ(print("png", "16384", "8192").status, 0);
    EXPECT_EQ(print("png", "16384", "8193").status, 1);
    EXPECT_EQ(print("pdf", "200in", "1in").err, "");
    EXPECT_TRUE(Contains(print("pdf", "201in", "1in").err, "was reduced to"));
    EXPECT_EQ(print("ps", "200in", "1in").err, "");
    EXPECT_TRUE(Contains(print("ps", "201in", "1in").err, "was reduced to"));
}
