// SPDX-License-Identifier: MIT
#include "tests/generators/cairo/Drawing.h"
#include "tests/generators/cairo/Picture.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using Format = ZAMPrintCairoGenerator::Format;

/// Pages of 100 x 50 points and 30 x 60.5, each filled, the second one translucently.
std::string DrawPages(Format format, const ZAMPrintMetadata& metadata) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(format, out);
    ZAMPrintParameters parameters;
    parameters.metadata = metadata;
    EXPECT_EQ(generator.BeginDocument(parameters), 1);
    const ZAMPrintFill translucent{{0, 0, 255, 128}, ZAMPrtFillRule::NonZero};
    EXPECT_EQ(generator.BeginPage(100.0, 50.0), 1);
    generator.DrawPath(MakeRectangle(10.0, 10.0, 20.0, 20.0), {}, &kRed, nullptr);
    generator.AddLink({0.0, 0.0, 10.0, 10.0}, "http://example.org");
    EXPECT_EQ(generator.EndPage(), 1);
    EXPECT_EQ(generator.BeginPage(30.0, 60.5), 1);
    generator.DrawPath(MakeRectangle(0.0, 0.0, 30.0, 30.0), {}, &translucent, nullptr);
    EXPECT_EQ(generator.EndPage(), 1);
    EXPECT_EQ(generator.EndDocument(), 1);
    EXPECT_EQ(generator.GetError(), "");
    return out.str();
}

} // namespace

TEST(ZAMPrintCairoPostScript, HasPagesThatAnotherReaderDraws) {
    ZAMPrintMetadata metadata;
    metadata.title = "Two\npages, g\xC3\xBCnstig";
    metadata.author = std::string(500, 'a');
    metadata.creationTime = 86400;
    const std::string ps = DrawPages(Format::Ps, metadata);
    EXPECT_EQ(ps, DrawPages(Format::Ps, metadata)) << "the time of day is not in it";
    for (const char* line : {"%!PS-Adobe-3.0\n", "\n%%CreationDate: 1970-01-02T00:00:00Z\n", "\n%%Pages: 2\n",
                             "\n%%Title: Two pages, g??nstig\n", "\n%%For: aaa", "%%EOF"}) {
        EXPECT_EQ(Count(ps, line), 1) << line;
    }
    EXPECT_EQ(Count(Ask("gs", "-q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=bbox {}", ps), "%%HiRes"), 2);
    const std::string png = Ask("gs", "-q -dSAFER -dBATCH -dNOPAUSE -dLastPage=1 -sDEVICE=png16m -r72 -o - {}", ps);
    const Picture picture(png);
    EXPECT_EQ(picture.width, 100);
    EXPECT_EQ(picture.height, 50);
    EXPECT_TRUE(picture.At(20, 20).IsNear(0xFF0000FF)) << picture.At(20, 20);
    EXPECT_TRUE(picture.At(40, 20).IsNear(0xFFFFFFFF)) << picture.At(40, 20);
}

TEST(ZAMPrintCairoPostScript, EncapsulatedIsThePageAndNoOther) {
    const std::string eps = DrawPages(Format::Eps, {});
    EXPECT_EQ(eps.rfind("%!PS-Adobe-3.0 EPSF-3.0\n", 0), 0U);
    EXPECT_EQ(Count(eps, "\n%%BoundingBox: 0 0 100 50\n"), 1) << "the page's, not that of its marks";
    EXPECT_EQ(Count(eps, "showpage"), 1);
}

TEST(ZAMPrintCairoSvg, IsADrawingOfThePagesSize) {
    ZAMPrintMetadata metadata;
    metadata.title = "a < b & c";
    metadata.subject = "\x01what it shows";
    const std::string svg = DrawPages(Format::Svg, metadata);
    EXPECT_EQ(Count(svg, "<title>a &lt; b &amp; c</title>\n<desc>what it shows</desc>\n"), 1);
    EXPECT_EQ(Count(svg, "width=\"100pt\" height=\"50pt\" viewBox=\"0 0 100 50\""), 1);
    EXPECT_EQ(Count(svg, "<svg"), 1);
    EXPECT_EQ(Count(svg, "fill:rgb(100%,0%,0%)"), 1);
    EXPECT_EQ(Count(svg, "0%,0%,100%"), 0) << "the second page";
}

TEST(ZAMPrintCairoVector, RefusesSizesThatItCannotHave) {
    struct Case {
        Format format;
        double side;
        int result;
    };
    const Case cases[] = {
        {Format::Ps, 14400.0, 1},   {Format::Ps, 14401.0, -1},   {Format::Ps, 1e-6, 1},  {Format::Eps, 1e30, -1},
        {Format::Svg, 100000.0, 1}, {Format::Svg, 100001.0, -1}, {Format::Svg, 1e-3, 1},
    };
    for (const Case& each : cases) {
        std::ostringstream out;
        ZAMPrintCairoGenerator generator(each.format, out);
        ASSERT_EQ(generator.BeginDocument({}), 1);
        EXPECT_EQ(generator.BeginPage(each.side, each.side), each.result) << each.side;
        EXPECT_EQ(generator.GetError().empty(), each.result == 1) << each.side;
        if (each.result == 1) {
            EXPECT_EQ(generator.EndPage(), 1);
            EXPECT_EQ(generator.EndDocument(), 1);
            EXPECT_EQ(generator.GetError(), "") << each.side;
        }
    }
}
