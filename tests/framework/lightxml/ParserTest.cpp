// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace {

struct Parsed {
    int result;
    ZAMLightXmlElement root;
    ZAMLightXmlError error;
};

Parsed Parse(const std::string& text) {
    Parsed parsed;
    ZAMLightXmlParser parser;
    const ZAMLightXmlInputStreamBuffer stream(reinterpret_cast<const unsigned char*>(text.data()),
                                              static_cast<int>(text.size()));
    parsed.result = parser.Parse(stream, parsed.root);
    parsed.error = parser.GetError();
    return parsed;
}

// name(attribute=value)"text"{children}, each part only when there is something in it
std::string Dump(const ZAMLightXmlElement& element) {
    std::string dump(element.GetName());
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        const auto [name, value] = element.GetAttributeAt(i);
        EXPECT_EQ(element.GetAttribute(name).data(), value.data());
        dump.append("(").append(name).append("=").append(value).append(")");
    }
    if (const ZAMUnicodeString text = element.GetTextContent(); !text.IsEmpty()) {
        dump.append("\"").append(text.View()).append("\"");
    }
    std::string children;
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        children += Dump(element.GetNextChild(position));
    }
    return children.empty() ? dump : dump + "{" + children + "}";
}

std::string Repeat(const std::string& text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

std::string AsUtf16(std::string_view ascii, bool littleEndian) {
    std::string text = littleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (const char c : ascii) {
        text += littleEndian ? std::string{c, '\0'} : std::string{'\0', c};
    }
    return text;
}

} // namespace

TEST(LightXmlTest, WhatADocumentSays) {
    const struct {
        std::string text;
        std::string dump;
    } rows[] = {
        {"<a/>", "a"},
        {"<a b='1' x:c=\"2\"><d/><e><f/></e><d/></a>", "a(b=1)(x:c=2){de{f}d}"},
        {"<a b='1\t2\n3\r\n4\r5&#10;6&#9;7  8'/>", "a(b=1 2 3 4 5\n6\t7  8)"},
        {"<a b='&lt;&amp;&quot;&#65;&#x20AC;'/>", "a(b=<&\"A\xE2\x82\xAC)"},
        {"<a>one<b>in</b>two<![CDATA[<&]]>three<!-- no --><?no no?>&#33;\r\n</a>", "a\"onetwo<&three!\n\"{b\"in\"}"},
        {"<!DOCTYPE a [<!ENTITY t 'v<b c=\"&u;\"/>w'><!ENTITY u 'deep'>]><a x='&u;'>[&t;]</a>",
         "a(x=deep)\"[vw]\"{b(c=deep)}"},
        {"<!DOCTYPE a [<!ATTLIST a b CDATA 'given'>]><a c='1'/>", "a(c=1)(b=given)"},
        // Nothing outside is opened: what is declared there is not there.
        {"<!DOCTYPE a SYSTEM 'file:///etc/passwd' [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><a>[&x;]</a>", "a\"[]\""},
        {"<!DOCTYPE a [<!ENTITY % p SYSTEM 'file:///etc/passwd'> %p;]><a>[&unknown;]</a>", "a\"[]\""},
        // encodings
        {"\xEF\xBB\xBF<a>\xC3\xA9</a>", "a\"\xC3\xA9\""},
        {AsUtf16("<a b='c'>d</a>", true), "a(b=c)\"d\""},
        {AsUtf16("<a b='c'>d</a>", false), "a(b=c)\"d\""},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9\x80</a>", "a\"\xC3\xA9\xC2\x80\""},
        {"<?xml version='1.0' encoding='windows-1252'?><a b='\xE9'>\x80\x92</a>",
         "a(b=\xC3\xA9)\"\xE2\x82\xAC\xE2\x80\x99\""},
        {"<?xml version='1.0' encoding='windows-1258'?><a>\xE9\xD5</a>", "a\"\xC3\xA9\xC6\xA0\""},
        {"<?xml version='1.0' encoding='koi8-r'?><a>\xC1</a>", "a\"\xD0\xB0\""},
    };
    for (const auto& row : rows) {
        const Parsed parsed = Parse(row.text);
        EXPECT_EQ(parsed.result, 1) << row.text << ": " << parsed.error.reason;
        EXPECT_EQ(Dump(parsed.root), row.dump) << row.text;
    }
}

TEST(LightXmlTest, ErrorsHaveAPlaceAndKeepWhatWasRead) {
    const struct {
        std::string text;
        std::uint32_t line;
        std::uint32_t column;
        std::string kept;
        std::string reason = {};
    } rows[] = {
        {"", 1, 1, "", "no element found"},
        {" \n ", 2, 2, "", "no element found"},
        {"text", 1, 1, ""},
        {"<a><b/>\n  <c d='1'>text</e></a>", 2, 18, "a\"\n  \"{bc(d=1)\"text\"}", "mismatched tag"},
        {"<a>\xC3\xA9\xE2\x82\xAC</b>", 1, 8, "a\"\xC3\xA9\xE2\x82\xAC\""}, // columns count characters
        {"<a/>\n<b/>", 2, 1, "a"},
        {"<a><b c='1' c='2'/></a>", 1, 13, "a"},
        {"<a>&none;</a>", 1, 4, "a"},
        {"<a b='&x;'/>", 1, 1, ""},
        {"<!DOCTYPE a [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><a b='&x;'/>", 1, 61, ""},
        {std::string("<a>\0</a>", 8), 1, 4, "a"},
        {std::string("<a b='\0'/>", 10), 1, 7, ""},
        {"<a>\xFF</a>", 1, 4, "a"},
        {"<?xml version='1.0' encoding='no-such-one'?><a/>", 1, 31, "", "unknown encoding"},
        {"<?xml version='1.0' encoding='UTF-32'?><a/>", 1, 31, "", "unknown encoding"},
        {Repeat("<a>\n", 256) + "<b/>", 257, 1, Repeat("a\"\n\"{", 255) + "a\"\n\"" + std::string(255, '}'),
         "elements are nested more than 256 deep"},
    };
    for (const auto& row : rows) {
        const Parsed parsed = Parse(row.text);
        EXPECT_EQ(parsed.result, -1) << row.text;
        EXPECT_EQ(parsed.error.line, row.line) << row.text;
        EXPECT_EQ(parsed.error.column, row.column) << row.text;
        EXPECT_EQ(Dump(parsed.root), row.kept) << row.text;
        EXPECT_TRUE(row.reason.empty() ? !parsed.error.reason.empty() : parsed.error.reason == row.reason)
            << row.text << ": " << parsed.error.reason;
    }
    const Parsed deepest = Parse(Repeat("<a>", 256) + Repeat("</a>", 256) + "\n");
    EXPECT_EQ(deepest.result, 1) << deepest.error.reason;
}

TEST(LightXmlTest, ADocumentHasSoManyElementsAtMost) {
    const std::string text = "<a><b/><c/></a>";
    const ZAMLightXmlInputStreamBuffer stream(reinterpret_cast<const unsigned char*>(text.data()),
                                              static_cast<int>(text.size()));
    for (const std::size_t most : {3U, 2U}) {
        ZAMLightXmlParser parser;
        parser.SetMostElements(most);
        ZAMLightXmlElement root;
        EXPECT_EQ(parser.Parse(stream, root), most == 3 ? 1 : -1);
        EXPECT_EQ(parser.GetError().reason, most == 3 ? "" : "the document has too many elements");
        EXPECT_EQ(Dump(root), most == 3 ? "a{bc}" : "a{b}");
    }
}

TEST(LightXmlTest, AParserAndAnElementServeAgain) {
    ZAMLightXmlParser parser;
    ZAMLightXmlElement root;
    const std::string good = "<good/>";
    const auto* bytes = reinterpret_cast<const unsigned char*>(good.data());
    EXPECT_EQ(parser.Parse(ZAMLightXmlInputStreamBuffer{bytes, 3}, root), -1);
    EXPECT_EQ(root.GetName(), "");
    EXPECT_EQ(parser.Parse(ZAMLightXmlInputStreamBuffer{bytes, 7}, root), 1);
    EXPECT_EQ(root.GetName(), "good");
    EXPECT_EQ(parser.Parse(ZAMLightXmlInputStreamBuffer{nullptr, 7}, root), -1);
    EXPECT_EQ(parser.Parse(ZAMLightXmlInputStreamBuffer{bytes, -1}, root), -1);
    EXPECT_EQ(root.GetName(), "");
}

TEST(LightXmlTest, HandlesKeepTheirDocumentAndKnowTheirPlace) {
    ZAMLightXmlElement second;
    {
        const ZAMLightXmlElement root = Parse("<a>\n <b/>\n  <!-- \xC3\xA9 --><c d='1'/></a>").root;
        ZAMLightXmlPosition position = root.GetFirstChildPosition();
        const ZAMLightXmlElement first = root.GetNextChild(position);
        EXPECT_EQ(first.GetLine(), 2U);
        EXPECT_EQ(first.GetColumn(), 2U);
        second.Assign(root.GetNextChild(position));
        EXPECT_EQ(position, 0U);
        EXPECT_EQ(root.GetNextChild(position).GetName(), "");
    }
    EXPECT_EQ(Dump(second), "c(d=1)");
    EXPECT_EQ(second.GetLine(), 3U);
    EXPECT_EQ(second.GetColumn(), 13U);
    EXPECT_EQ(second.GetAttribute("D"), "");
    EXPECT_EQ(second.GetFirstChildPosition(), 0U);

    const ZAMLightXmlElement empty;
    ZAMLightXmlPosition nowhere = 0;
    EXPECT_EQ(Dump(empty) + Dump(empty.GetNextChild(nowhere)), "");
    EXPECT_EQ(empty.GetAttribute("a"), "");
    EXPECT_EQ(empty.GetLine() + empty.GetColumn(), 0U);
}

TEST(LightXmlTest, PlacesAreCountedInCharactersOfAnyEncoding) {
    const struct {
        std::string text;
        std::uint32_t line;
        std::uint32_t column;
    } rows[] = {
        {"<a><b/></a>", 1, 4},
        {"<a>\n\n\t<b/></a>", 3, 2},
        {"<a\nc='~'\n><b/></a>", 3, 2},
        {"<a>\r\n\r\n <b/></a>", 3, 2},
        {"<a>\r\r <b/></a>", 3, 2},
        {"<a>\n\xC3\xA9\xE2\x82\xAC<b/></a>", 2, 3},
        {"<?xml version='1.0' encoding='ISO-8859-1'?>\n<a>\xC3\xA9<b/></a>", 2, 6},
        {std::string("\xFF\xFE<\0a\0>\0\n\0<\0b\0/\0>\0<\0/\0a\0>\0", 26), 2, 1},
        {"<!DOCTYPE a [<!ENTITY e '\n\n<b/>'>]>\n<a> &e;</a>", 4, 5},
    };
    for (const auto& row : rows) {
        const Parsed parsed = Parse(row.text);
        ZAMLightXmlPosition position = parsed.root.GetFirstChildPosition();
        const ZAMLightXmlElement child = parsed.root.GetNextChild(position);
        EXPECT_EQ(child.GetName(), "b") << row.text << ": " << parsed.error.reason;
        EXPECT_EQ(child.GetLine(), row.line) << row.text;
        EXPECT_EQ(child.GetColumn(), row.column) << row.text;
    }
}

TEST(LightXmlTest, HugeDocumentsTakeLinearTime) {
    const std::string piece = "1.5,2.5 ";
    std::string manyAttributes = "<a";
    std::string laughs = "<!DOCTYPE a [<!ENTITY l0 'ha'>";
    for (std::size_t i = 0; i < ZAMLimits::kAttributesOfElement; ++i) {
        manyAttributes.append(" n").append(std::to_string(i)).append("='v'");
    }
    for (int i = 1; i < 30; ++i) {
        laughs += "<!ENTITY l" + std::to_string(i) + " '" + Repeat("&l" + std::to_string(i - 1) + ";", 10) + "'>";
    }
    const struct {
        std::string text;
        int result;
        std::size_t attributeCount;
        std::size_t firstValueSize;
        std::size_t textSize;
    } rows[] = {
        {"<a b='" + Repeat(piece, 640'000) + "'/>", 1, 1, 5'120'000, 0},
        {"<a>" + Repeat(piece + "\n", 640'000) + "</a>", 1, 0, 0, 5'760'000},
        {"<a>" + Repeat(piece + "<b/>", 300'000) + "</a>", 1, 0, 0, 2'400'000},
        {manyAttributes + "/>", 1, ZAMLimits::kAttributesOfElement, 1, 0},
        {manyAttributes + " n='v'/>", -1, ZAMLimits::kAttributesOfElement, 1, 0},
        {laughs + "]><a b='&l29;'/>", -1, 0, 0, 0},
        {laughs + "]><a/>" + Repeat("&", 9), -1, 0, 0, 0},
        {Repeat("<a ", 500'000), -1, 0, 0, 0},
    };
    for (const auto& row : rows) {
        const auto start = std::chrono::steady_clock::now();
        const Parsed parsed = Parse(row.text);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        EXPECT_LT(taken.count(), 3.0) << row.text.substr(0, 40); // a quadratic reader takes minutes
        EXPECT_EQ(parsed.result, row.result) << row.text.substr(0, 40) << parsed.error.reason;
        EXPECT_EQ(parsed.root.GetAttributeCount(), row.attributeCount);
        EXPECT_EQ(row.attributeCount == 0 ? 0 : parsed.root.GetAttributeAt(0).value.size(), row.firstValueSize);
        EXPECT_EQ(parsed.root.GetTextContent().View().size(), row.textSize);
    }
    EXPECT_EQ(Parse(laughs + "]><a>&l29;</a>").result, -1);
}
