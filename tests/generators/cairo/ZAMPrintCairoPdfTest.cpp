// SPDX-License-Identifier: MIT
#include "tests/generators/cairo/Drawing.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using Format = ZAMPrintCairoGenerator::Format;

/// A place to write to that takes so many bytes and no more.
class FullDisk : public std::streambuf {
public:
    explicit FullDisk(std::streamsize room) : _Room(room) {}

protected:
    std::streamsize xsputn(const char* /*bytes*/, std::streamsize count) override {
        const std::streamsize taken = std::min(count, _Room);
        _Room -= taken;
        return taken;
    }
    int_type overflow(int_type c) override { return _Room-- > 0 ? c : traits_type::eof(); }
    int sync() override { return _Room > 0 ? 0 : -1; }

private:
    std::streamsize _Room;
};

} // namespace

TEST(ZAMPrintCairoPdf, HasPagesOfAnySizeWithTheirLinks) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(Format::Pdf, out);
    ASSERT_EQ(generator.BeginDocument({}), 1);
    const double widths[] = {14400.0 * (1.0 + 1e-12), 100.0, 1e-30, 300.0};
    for (int page = 0; page < 4; ++page) {
        ASSERT_EQ(generator.BeginPage(widths[page], 200.0), 1);
        if (page == 1) {
            // All but this page are empty, and here nothing shows.
            generator.PushClip({0.0, 0.0, 1.0, 1.0}, {});
            generator.DrawPath(MakeRectangle(500.0, 500.0, 1.0, 1.0), {}, &kRed, nullptr);
        }
        if (page != 3) {
            generator.AddLink({-10.0, 20.0, 50.0, 60.0}, "http://example.com/" + std::to_string(page));
            generator.AddLink({-10.0, 20.0, -5.0, 60.0}, "http://example.com/beside");
        }
        ASSERT_EQ(generator.EndPage(), 1);
    }
    ASSERT_EQ(generator.EndDocument(), 1);
    ExpectSound(out.str());
    const std::string text = Uncompress(out.str());
    EXPECT_EQ(Count(text, "/Type /Page\n"), 4);
    EXPECT_EQ(Count(text, "/Subtype /Link"), 3);
    EXPECT_NE(text.find("/Rect [\n    0\n    140\n    50\n    180\n  ]"), std::string::npos) << "20 to 60 from the top";
    EXPECT_EQ(text.find("beside"), std::string::npos);
}

TEST(ZAMPrintCairoPdf, KeepsWhatLiesInTheLastPartOfAPoint) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(Format::Pdf, out);
    ZAMPrintParameters parameters;
    parameters.background = ZAMPrintColour{255, 255, 0, 255};
    ASSERT_EQ(generator.BeginDocument(parameters), 1);
    const double sides[] = {100.5, 100.5, 200.25, 200.25, 300.0};
    for (const double side : sides) {
        ASSERT_EQ(generator.BeginPage(side, side), 1);
        generator.DrawPath(MakeRectangle(side - 0.2, side - 0.2, 0.1, 0.1), {}, &kRed, nullptr);
        ASSERT_EQ(generator.EndPage(), 1);
    }
    ASSERT_EQ(generator.EndDocument(), 1);
    ExpectSound(out.str());
    EXPECT_EQ(Count(Uncompress(out.str()), "1 0 0 rg"), 5);
    const std::string sizes = Ask("pdfinfo", "-l 5 {}", out.str());
    EXPECT_EQ(Count(sizes, "100.5 x 100.5"), 2) << sizes;
    EXPECT_EQ(Count(sizes, "201 x 201"), 2) << sizes;
    EXPECT_EQ(Count(sizes, "300 x 300"), 1) << sizes;
}

TEST(ZAMPrintCairoPdf, LinksLeadToPlacesOnOtherPages) {
    const std::string strange = "c(\\'\"\xC3\xA4)\xFF\n";
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(Format::Pdf, out);
    ASSERT_EQ(generator.BeginDocument({}), 1);
    const double heights[] = {200.0, 400.0, 300.5};
    for (const double height : heights) {
        ASSERT_EQ(generator.BeginPage(100.0, height), 1);
        if (height == heights[0]) { // to a later page, to this one and to none
            generator.AddInternalLink({0.0, 0.0, 10.0, 10.0}, strange);
            generator.AddInternalLink({0.0, 20.0, 10.0, 30.0}, "here");
            generator.AddInternalLink({0.0, 40.0, 10.0, 50.0}, "never");
            generator.AddInternalLink({-9.0, 40.0, -5.0, 50.0}, "beside");
            generator.AddDestination("here", {5.0, 6.0});
            generator.AddDestination("here", {50.0, 60.0});
        } else if (height == heights[1]) {
            generator.AddDestination("high", {-7.0, -8.0});
            generator.AddDestination("low", {7.0, 1e9});
            generator.AddDestination("nowhere", {kNaN, 0.0});
        } else { // to earlier pages
            generator.AddDestination(strange, {11.0, 12.0});
            generator.AddInternalLink({0.0, 0.0, 10.0, 10.0}, "high");
            generator.AddInternalLink({0.0, 20.0, 10.0, 30.0}, "low");
            generator.AddLink({0.0, 40.0, 10.0, 50.0}, "http://a/");
        }
        ASSERT_EQ(generator.EndPage(), 1);
    }
    ASSERT_EQ(generator.EndDocument(), 1) << generator.GetError();
    ExpectSound(out.str());
    EXPECT_EQ(Count(Uncompress(out.str()), "/Subtype /Link"), 6);
    const std::string places = Ask("pdfinfo", "-dests {}", out.str());
    const struct {
        std::string place; ///< page, and the point from the lower left corner
        std::string name;
    } rows[] = {{"1 [ XYZ    5  194 null      ]", "1"},
                {"2 [ XYZ    0  400 null      ]", "3"},
                {"2 [ XYZ    7    0 null      ]", "4"},
                {"3 [ XYZ   11  289 null      ]", "0"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Count(places, "   " + row.place + " \"" + row.name + "\"\n"), 1) << places;
    }
    EXPECT_EQ(Count(places, "XYZ"), 4) << places;
}

TEST(ZAMPrintCairoPdf, LinksStayOnAPageThatAMarkCovers) {
    const std::string pdf = DrawPdf([](auto& g) {
        g.AddLink({0.0, 0.0, 9.0, 9.0}, "before");
        g.DrawPath(MakeRectangle(-5.0, -5.0, 110.0, 110.0), {}, &kRed, nullptr);
        g.AddLink({0.0, 0.0, 9.0, 9.0}, "behind");
    });
    ExpectSound(pdf);
    EXPECT_EQ(Count(Uncompress(pdf), "/Subtype /Link"), 2);
}

TEST(ZAMPrintCairoPdf, WritesAddressesAsUris) {
    const struct {
        std::string address;
        std::string uri; ///< empty: no link
    } rows[] = {
        {"http://a.b/c?d=e&f=%20#g[h]", "http://a.b/c?d=e&f=%20#g[h]"},
        {" mailto:a@b \n", "mailto:a@b"},
        {"it's", "it's"},
        {"' rect=[0 0 1 1] uri='x", "'%20rect=[0%200%201%201]%20uri='x"},
        {"(a)b)\\c\\'", "%28a%29b%29%5Cc%5C'"},
        {"\xC3\xA4/\xE2\x82\xAC<>\"\x01\x7F", "%C3%A4/%E2%82%AC%3C%3E%22%01%7F"},
        {std::string(100000, 'a'), std::string(100000, 'a')},
        {"", ""},
        {" \t", ""},
        {"a\xFF", ""},
        {std::string("a\0b", 3), ""},
    };
    for (const auto& row : rows) {
        const std::string pdf = DrawPdf([&](auto& g) { g.AddLink({0.0, 0.0, 9.0, 9.0}, row.address); });
        ExpectSound(pdf);
        const std::string text = Uncompress(pdf);
        EXPECT_EQ(Count(text, "/URI ("), row.uri.empty() ? 0 : 1) << row.address;
        EXPECT_TRUE(row.uri.empty() || Count(text, "/URI (" + row.uri + ")") == 1) << row.address;
    }
}

TEST(ZAMPrintCairoPdf, SaysWhatItIs) {
    const struct {
        std::string title;
        std::time_t time;
        std::string shownTitle; ///< empty: none
        std::string shownDate;
    } rows[] = {
        {"A (plain\\) title", 981173106, "A (plain\\) title", "20010203040506Z"},
        {"Gr\xC3\xBC\xF0\x9F\x98\x80", 0, "Gr\xC3\xBC\xF0\x9F\x98\x80", "19700101000000Z"},
        // Broken, overlong, a surrogate, no character, NUL.
        {"a\xFF\xC3(\xC0\xAF\xED\xA0\x80\xEF\xBF\xBE\xE2\x82" + std::string("\0b", 2), -62135596800, "a(b",
         "00010101000000Z"},
        {"\xFF", 253402300799, "", "99991231235959Z"},
    };
    for (const auto& row : rows) {
        ZAMPrintParameters parameters;
        parameters.metadata = {row.title, "Ann", "A subject", row.time};
        const std::string pdf = DrawPdf([](auto&) {}, parameters);
        const std::string info = Ask("pdfinfo", "-rawdates {}", pdf);
        EXPECT_EQ(Count(info, "Title:           " + row.shownTitle + "\n"), row.shownTitle.empty() ? 0 : 1) << info;
        EXPECT_EQ(Count(info, "Author:          Ann\n"), 1) << info;
        EXPECT_EQ(Count(info, "Subject:         A subject\n"), 1) << info;
        EXPECT_EQ(Count(info, "Creator:         ZAM print\n"), 1) << info;
        EXPECT_EQ(Count(info, "CreationDate:    D:" + row.shownDate), 1) << info;
        EXPECT_EQ(Count(info, "ModDate:         D:" + row.shownDate), 1) << info;
        EXPECT_EQ(DrawPdf([](auto&) {}, parameters), pdf);
    }
    ZAMPrintParameters parameters;
    parameters.metadata.creationTime = std::numeric_limits<std::time_t>::max();
    ExpectSound(DrawPdf([](auto&) {}, parameters));
}

TEST(ZAMPrintCairoPdf, KeepsFillStrokeAndDashesAsTheyAre) {
    ZAMPrintPen pen = MakePen(2.0);
    const float dashes[] = {3.0F, 1.0F};
    pen.dashes = dashes;
    const auto draw = [&](auto& g) { g.DrawPath(MakeRectangle(10.0, 10.0, 50.0, 50.0), {}, &kRed, &pen); };
    const std::string text = Uncompress(DrawPdf(draw));
    EXPECT_NE(text.find("\nB\n"), std::string::npos) << "one operator fills and strokes";
    EXPECT_NE(text.find("[3 1] 0 d"), std::string::npos);

    // Readers walk dash by dash as well: what shows may have a million, whatever the path's length.
    for (const double width : {10.0, 1e6}) {
        pen.width = width;
        const std::string far = Uncompress(DrawPdf([&](auto& g) {
            g.DrawPath(MakePath("M -1e9 50 L 1e9 50"), {0.5, 0.0, 0.0, 0.5, 0.0, 0.0}, nullptr, &pen);
        }));
        EXPECT_EQ(Count(far, "[ 1.5 0.5] "), width == 10.0 ? 1 : 0) << far;
        EXPECT_EQ(Count(far, " S\n"), 1);
    }
}

TEST(ZAMPrintCairoPdf, FailuresAreSaidAndStay) {
    const auto draw = [](ZAMPrintCairoGenerator& g) {
        ZAMPrintPath path;
        path.MoveTo({0.0, 0.0});
        for (int i = 0; i < 2000; ++i) {
            path.LineTo({i * 7919 % 100 + i * 1e-3, i * 104729 % 100 + i * 1e-3});
        }
        g.DrawPath(path, {}, &kRed, nullptr);
    };
    for (const Format format : {Format::Pdf, Format::Png}) {
        ZAMPrintParameters parameters;
        parameters.metadata.creationTime = 0;
        const auto size = static_cast<std::streamsize>(Draw(format, draw, parameters).size());
        ASSERT_GT(size, 1000);
        for (const std::streamsize room : {std::streamsize{0}, std::streamsize{10}, size / 2, size - 1, size + 1}) {
            for (const bool throws : {false, true}) {
                FullDisk disk(room);
                std::ostream out(&disk);
                out.exceptions(throws ? std::ios::badbit | std::ios::failbit : std::ios::goodbit);
                ZAMPrintCairoGenerator generator(format, out);
                parameters.resolution = 72.0;
                EXPECT_EQ(generator.BeginDocument(parameters), 1);
                EXPECT_EQ(generator.BeginPage(100.0, 100.0), 1);
                draw(generator);
                const int page = generator.EndPage();
                const int document = generator.EndDocument();
                EXPECT_EQ(document, room > size ? 1 : -1) << room;
                EXPECT_LE(document, page);
                EXPECT_EQ(generator.GetError(), room > size ? "" : "cannot write the output");
                EXPECT_EQ(generator.BeginPage(1.0, 1.0), -1);
            }
        }
    }
}

TEST(ZAMPrintCairoPdf, CallsOutOfOrderAreHarmless) {
    for (const Format format : {Format::Pdf, Format::Png}) {
        std::ostringstream out;
        ZAMPrintCairoGenerator generator(format, out);
        const auto mark = [&] {
            generator.PopClip();
            generator.PushClip({0.0, 0.0, 1.0, 1.0}, {});
            generator.AddLink({0.0, 0.0, 1.0, 1.0}, "a");
            generator.AddInternalLink({0.0, 0.0, 1.0, 1.0}, "b");
            generator.AddDestination("b", {0.0, 0.0});
            generator.DrawImage(MakeImage(1, 1, [](int, int) { return 0xFF000000U; }), {});
            generator.DrawImage({}, {});
            generator.DrawPath(MakeRectangle(0.0, 0.0, 1.0, 1.0), {}, &kRed, nullptr);
        };
        mark();
        EXPECT_EQ(generator.EndDocument(), -1);
        EXPECT_EQ(generator.BeginPage(10.0, 10.0), -1);
        EXPECT_EQ(generator.BeginDocument({}), 1);
        EXPECT_EQ(generator.BeginDocument({}), -1);
        EXPECT_EQ(generator.EndPage(), -1);
        mark();
        EXPECT_EQ(generator.BeginPage(10.0, 10.0), 1);
        EXPECT_EQ(generator.BeginPage(10.0, 10.0), -1);
        EXPECT_EQ(generator.EndDocument(), -1);
        mark();
        EXPECT_EQ(generator.EndPage(), 1);
        mark();
        EXPECT_EQ(generator.EndDocument(), 1);
        EXPECT_EQ(generator.EndDocument(), -1);
        EXPECT_EQ(generator.GetError(), "");
        EXPECT_FALSE(out.str().empty());
    }
    std::ostringstream out;
    {
        ZAMPrintCairoGenerator generator(Format::Pdf, out);
        generator.BeginDocument({});
        EXPECT_EQ(generator.EndDocument(), -1);
        EXPECT_EQ(generator.GetError(), "there is no page to print");
        ZAMPrintCairoGenerator givenUp(Format::Pdf, out);
        givenUp.BeginDocument({});
        givenUp.BeginPage(10.0, 10.0);
        EXPECT_EQ(givenUp.EndPage(), 1);
    }
    EXPECT_EQ(out.str().find("%%EOF"), std::string::npos) << "a PDF that was given up looks complete";
}

TEST(ZAMPrintCairoPdf, PagesHaveTheirLimit) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(Format::Pdf, out);
    EXPECT_EQ(generator.GetLargestPageSide(), 14400.0);
    generator.BeginDocument({});
    EXPECT_EQ(generator.BeginPage(14401.0, 2.5), -1);
    EXPECT_EQ(generator.GetError(), "a page of 14401 x 2.5 points is too large: PDF allows 14,400 points a side");
}
