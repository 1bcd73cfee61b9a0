// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <nlohmann/json.hpp>

class HostileDocumentTest : public ToolTest {
protected:
    static std::string Nested(int count) {
        std::string text = "<svg width=\"10\" height=\"10\">";
        for (int i = 0; i < count; ++i) {
            text += "<g transform=\"translate(0)\">";
        }
        text += "<rect width=\"5\" height=\"5\" fill=\"red\"/>";
        for (int i = 0; i < count; ++i) {
            text += "</g>";
        }
        return text + "</svg>";
    }

    // A drawing of all shapes with `number` wherever a number stands.
    static std::string Everywhere(const std::string& number) {
        std::string text = R"svg(<svg width="100" height="100"><g transform="scale(N)"><circle cx="N" cy="5" r="N"/></g>
<rect x="N" y="N" width="N" height="9" style="fill:red;stroke:blue;stroke-width:N;stroke-dasharray:N,3"/>
<ellipse cx="3" cy="N" rx="4" ry="N" transform="rotate(N)"/><line x1="N" y1="0" x2="3" y2="N" stroke="red"/>
<polygon points="N,N 3,N 5,5" stroke="green"/><polyline points="0,0 N,3 4,N" stroke-width="N" stroke="#00f"/>
<path d="M 0 0 L N N C N 1 2 N 3 4 A N 4 N 1 0 N 9 Q N N 3 3 Z" fill="red" stroke="black" stroke-dasharray="N"/>
<svg x="N" y="1" width="N" height="N" viewBox="N N N N"><rect width="5" height="5" transform="matrix(N 0 0 N N N)"/>
</svg></svg>)svg";
        for (std::size_t at = text.find('N'); at != std::string::npos; at = text.find('N', at + number.size())) {
            text.replace(at, 1, number);
        }
        return text;
    }

    void ExpectOrderly(const std::string& document, bool printsPicture = true) const {
        SCOPED_TRACE(document.substr(0, 300));
        const RunResult pdf = Run({}, document);
        EXPECT_EQ(pdf.status, 0) << pdf.err;
        EXPECT_TRUE(Contains(CheckPdf(pdf.out), "Pages:"));
        const RunResult png = Run({"-f", "png"}, document);
        EXPECT_EQ(png.status, printsPicture ? 0 : 1) << png.err;
        EXPECT_EQ(Picture(png.out).width > 0, printsPicture);
        const RunResult json = Run({"-f", "json"}, document);
        EXPECT_EQ(json.status, 0) << json.err;
        EXPECT_TRUE(nlohmann::json::accept(json.out)) << json.out.substr(0, 1000);
        EXPECT_LT(pdf.seconds + png.seconds + json.seconds, 10.0);
    }

    // What stands before and after a text is printed whatever the text is.
    static std::string AroundText(const std::string& attributes, const std::string& content) {
        return R"(<svg width="100" height="100"><rect width="20" height="20" fill="red"/><text x="50" y="60" )" +
               attributes + ">" + content + R"(</text><rect x="80" y="80" width="20" height="20" fill="blue"/></svg>)";
    }

    void ExpectHarmlessText(const std::string& attributes, const std::string& content = "Text") const {
        const std::string document = AroundText(attributes, content);
        ExpectOrderly(document);
        const Picture picture(Run({"-f", "png"}, document).out);
        EXPECT_EQ(picture.At(1, 1), "ff0000ff") << document.substr(0, 300);
        EXPECT_EQ(picture.At(99, 99), "0000ffff") << document.substr(0, 300);
    }

    static std::string Repeated(const std::string& piece, int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += piece;
        }
        return text;
    }
};

TEST_F(HostileDocumentTest, NumbersOfAnyKindGiveAValidOutput) {
    for (const char* number : {"nan", "inf", "-inf", "1e300", "-1e300", "1e-300", "0", "-5", "1e7", "3e38", "x", ""}) {
        ExpectOrderly(Everywhere(number));
    }
}

TEST_F(HostileDocumentTest, PagesOfAnySizeGiveAValidOutput) {
    const struct {
        std::string attributes;
        bool printsPicture;
    } rows[] = {
        {"", true},
        {R"(width="nan" height="nan")", true},
        {R"(width="0" height="0")", true},
        {R"(width="-5" height="-5")", true},
        {R"(width="1e-300" height="1e-300")", true},
        {R"(width="100%" height="100%")", true},
        {R"(viewBox="0 0 0 0")", true},
        {R"(width="10" height="10" viewBox="nan nan nan nan")", true},
        {R"(width="10" height="10" viewBox="1e300 0 1e-300 1e300")", true},
        {R"(width="1e300" height="1")", false},
        {R"(width="1e300" height="1e300")", false},
        {R"(width="1e300" height="1e300" viewBox="0 0 10 10")", false},
    };
    for (const auto& row : rows) {
        ExpectOrderly(MakeDrawing(row.attributes), row.printsPicture);
        ExpectOrderly("<svg " + row.attributes + "/>", row.printsPicture);
    }
    // A picture that is far wider than high, asked for by its height.
    EXPECT_EQ(Run({"-f", "png", "-h", "10"}, MakeDrawing("width=\"1e300\" height=\"1\"")).status, 1);
    EXPECT_EQ(Run({"-f", "png", "-w", "10"}, MakeDrawing("width=\"1e300\" height=\"1\"")).status, 0);
}

TEST_F(HostileDocumentTest, StructuresGiveAValidOutputOrAClearError) {
    ExpectOrderly(Nested(250));
    const RunResult deep = Run({"-o", "deep.pdf"}, Nested(1000));
    EXPECT_EQ(deep.status, 1);
    EXPECT_TRUE(deep.err.starts_with("zamprint: standard input:1:")) << deep.err;
    EXPECT_TRUE(List().empty());
    ExpectOrderly(R"(<svg width="9" height="9"><path d=""/><path/><polygon points=""/><g/><svg/><unknown/></svg>)");
    for (const char* transform : {"scale(0)", "scale(0 1)", "matrix(1 1 1 1 0 0)", "matrix(0 0 0 0 5 5)", "skewX(90)",
                                  "rotate(1e300)", "translate(1e300 -1e300)", "scale(1e200) scale(1e200)"}) {
        ExpectOrderly("<svg width=\"9\" height=\"9\"><g transform=\"" + std::string(transform) +
                      "\"><rect width=\"5\" height=\"5\" stroke=\"red\" stroke-dasharray=\"1 2\"/></g></svg>");
    }
    std::string path = "<svg width=\"100\" height=\"100\"><path stroke=\"red\" stroke-dasharray=\"0.001\" d=\"M 0 0";
    for (int i = 0; i < 20000; ++i) {
        path += " L " + std::to_string(i * 7919 % 100) + " " + std::to_string(i * 104729 % 100);
    }
    ExpectOrderly(path + "\"/></svg>");
}

TEST_F(HostileDocumentTest, TextOfAnyKindLeavesTheRestOfThePage) {
    for (const char* property : {"font-size", "letter-spacing"}) {
        for (const char* value : {"0", "-1", "1e9", "-1e9", "1e300", "1e-300", "nan", "inf", "4000000000%"}) {
            const std::string attribute = property + std::string("=\"") + value + "\"";
            ExpectHarmlessText(attribute + " stroke=\"green\" fill=\"none\" text-anchor=\"middle\"");
        }
    }
    ExpectHarmlessText("dx=\"nan\" rotate=\"nan\" writing-mode=\"tb\" dy=\"1e300\"");
    ExpectHarmlessText("transform=\"scale(0)\" letter-spacing=\"1e9\" font-size=\"1e9\"");
    ExpectHarmlessText("font-family=\"Nowhere\"");
    std::string families = "font-family=\"";
    for (int i = 0; i < 10000; ++i) {
        families += "Nowhere " + std::to_string(i) + ",";
    }
    ExpectHarmlessText(families + "\"");
    ExpectHarmlessText("", "");
    for (const char* piece : {"a", "word ", "\u0301", "\u202e", "\u05d0 a ", "\u200d", "&#x7f;&#x85;", "\ufffd"}) {
        ExpectHarmlessText("", Repeated(piece, 1000));
    }
    ExpectHarmlessText("font-size=\"1\"", Repeated("A megabyte. ", 90000));
}

TEST_F(HostileDocumentTest, WhatIsNoXmlTextIsAnErrorWithItsPlace) {
    for (const char* content : {"&#1;", "&#0;", "\x01", "&#xFFFE;", "\xff", "\xed\xa0\x80"}) {
        const RunResult run = Run({"-o", "out.pdf"}, AroundText("", content));
        EXPECT_EQ(run.status, 1) << content;
        EXPECT_TRUE(run.err.starts_with("zamprint: standard input:1:")) << run.err;
        EXPECT_TRUE(List().empty()) << content;
    }
}

TEST_F(HostileDocumentTest, ManyTextsOfFamiliesThatAreNowherePrint) {
    const std::string one = R"(<text y="9" font-family="Nowhere, 'No Where', Nohow">a</text>)";
    const std::string root = R"(<svg width="100" height="100">)";
    ExpectOrderly(root + Repeated(one, 10000) + "</svg>");
}

// The program itself is linked with what reads font files, but not with what lays out text.
TEST_F(HostileDocumentTest, OnlyVisibleTextOpensTheFonts) {
    const auto opensFonts = [this](const std::string& content, const char* format) {
        const std::string document = "<svg width=\"9\" height=\"9\"><title>t</title>" + content + "</svg>";
        const RunResult run = Shell(std::string("LD_DEBUG=files \"$Z\" -f ") + format, document);
        EXPECT_EQ(run.status, 0);
        EXPECT_TRUE(Contains(run.err, "libcairo")); // the linker does tell
        EXPECT_EQ(Contains(run.err, "ZAMPrintFonts"), Contains(run.err, "libpango")) << content;
        return Contains(run.err, "libpango");
    };
    for (const char* format : {"pdf", "png", "json"}) {
        EXPECT_FALSE(opensFonts("<g font-size=\"3\"><rect width=\"5\" height=\"5\"/></g>", format));
        EXPECT_FALSE(opensFonts("<text> </text><text fill=\"none\">unseen</text>", format));
        EXPECT_TRUE(opensFonts("<text font-family=\"serif\">seen</text>", format));
    }
}
