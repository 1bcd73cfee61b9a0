// SPDX-License-Identifier: MIT
// The tables of the preflight against the interpreter, and docs/SUPPORTED.md against the tables.
#include "tests/ZAMPrtInterpreterSVG/preflight/Findings.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

using namespace ZAMPrintSVGVocabulary;

namespace {

const std::string kPicture =
    "data:image/bmp;base64,Qk0+AAAAAAAAADYAAAAoAAAAAQAAAAIAAAABABgAAAAAAAgAAAAAAAAAAAAAAAAAAAAA"
    "AAAAAAD/AP8AAAA=";

// Documents in which each element counts; "@" stands where an attribute of it is to be tried, "%" where a child is.
const std::map<std::string_view, std::string> kDocuments = {
    {"svg", "<svg @>%<rect width='5' height='5'/></svg>"},
    {"symbol", "<symbol id='s' @>%<rect width='5' height='5'/></symbol><use xlink:href='#s'/>"},
    {"marker", "<marker id='m' @>%<rect width='5' height='5'/></marker><path d='M1 1L2 2' marker-end='url(#m)'/>"},
    {"pattern", "<pattern id='p' @>%<image width='5' height='5' xlink:href='" + kPicture +
                    "'/></pattern><rect width='9' height='9' fill='url(#p)'/>"},
    {"defs", "<defs @>%<rect id='r' width='5'/></defs><use xlink:href='#r'/><use xlink:href='#c'/>"},
    {"text", "<text @>word%</text>"},
    {"title", "<title @>word%</title>"},
    {"desc", "<desc @>word%</desc>"},
};

// A value of each attribute that makes a difference where it is read.
const std::map<std::string_view, std::string> kValues = {
    {"points", "1,2 3,4"},      {"d", "M1 2L3 4"},       {"transform", "translate(3 4)"}, {"viewBox", "1 2 30 40"},
    {"xlink:href", kPicture},   {"orient", "45"},        {"preserveAspectRatio", "none"}, {"spreadMethod", "reflect"},
    {"systemLanguage", "none"}, {"markerUnits", "user"}, {"requiredExtensions", "none"},
};

// Attributes without which that one makes no difference.
std::string CompanionsOf(std::string_view element, std::string_view attribute) {
    static const std::map<std::string_view, std::string> kPartners = {{"width", "height='9'"},
                                                                      {"height", "width='9'"},
                                                                      {"markerWidth", "markerHeight='9'"},
                                                                      {"markerHeight", "markerWidth='9'"}};
    const auto partner = kPartners.find(attribute);
    std::string companions = partner == kPartners.end() ? "" : partner->second;
    companions += element == "use" && attribute != "xlink:href" ? " xlink:href='#a'" : "";
    companions += element == "svg" && partner != kPartners.end() ? " viewBox='1 2 30 40'" : "";
    return companions;
}

std::string DocumentOf(std::string_view element, const std::string& attribute, const std::string& child = {}) {
    const auto found = kDocuments.find(element);
    const std::string name(element);
    std::string content = found != kDocuments.end() ? found->second : "<" + name + " @>%</" + name + ">";
    content.replace(content.find('%'), 1, child);
    content.replace(content.find('@'), 1, attribute);
    return "<svg width='100' height='100' xmlns:xlink='x'><defs><rect id='a' width='5' height='5'/></defs>" + content +
           "</svg>";
}

bool ChangesModel(std::string_view element, std::string_view attribute) {
    const auto found = kValues.find(attribute);
    std::string value = found != kValues.end() ? found->second : "7";
    if (attribute == "xlink:href" && element != "image") {
        value = "#a";
    }
    const std::string companions = CompanionsOf(element, attribute);
    const std::string tried = std::string(attribute) + "='" + value + "' ";
    return DecodeToJson(DocumentOf(element, companions)) != DecodeToJson(DocumentOf(element, tried + companions));
}

std::string JoinCode(const std::string& list, std::string_view name) {
    return list + (list.empty() ? "`" : ", `") + std::string(name) + "`";
}

std::string CodeList(std::string_view words) {
    std::string list;
    while (!words.empty()) {
        const std::size_t length = std::min(words.find(' '), words.size());
        list = JoinCode(list, words.substr(0, length));
        words.remove_prefix(std::min(length + 1, words.size()));
    }
    return list;
}

std::string WriteElements() {
    std::string text = "| element | prepared | as it stands |\n|---|---|---|\n";
    for (const Element& element : GetElements()) {
        if (IsRead(element, kPrepared)) {
            text += "| `" + std::string(element.name) + "` | yes | " + (IsRead(element, kAsItStands) ? "yes" : "no") +
                    " |\n";
        }
    }
    return text;
}

std::string WriteAttributes() {
    std::string text = "| attribute | of | when prepared also of |\n|---|---|---|\n";
    for (const Attribute& attribute : GetAttributes()) {
        text += "| `" + std::string(attribute.name) + "` | " + CodeList(attribute.elements) + " | " +
                CodeList(attribute.preparedElements) + " |\n";
    }
    return text;
}

std::string WriteProperties() {
    std::string text = "| property | prepared | as it stands |\n|---|---|---|\n";
    for (const ZAMPrintSVGParser::Property& property : ZAMPrintSVGParser::GetProperties()) {
        text += "| `" + std::string(property.name) + "` | yes | " +
                (!property.inStyle       ? "attribute only"
                 : !property.asAttribute ? "style only"
                                         : "yes") +
                " |\n";
    }
    for (const Property& property : GetProperties()) {
        if (property.isPrepared && !ZAMPrintSVGParser::FindProperty(property.name)) {
            text += "| `" + std::string(property.name) + "` | yes | no |\n";
        }
    }
    return text;
}

std::string WriteUndrawn() {
    std::string elements;
    for (const Element& element : GetElements()) {
        elements = IsRead(element, kPrepared) ? elements : JoinCode(elements, element.name);
    }
    std::string properties;
    for (const Property& property : GetProperties()) {
        properties = property.isPrepared || property.plain == "*" ? properties : JoinCode(properties, property.name);
    }
    return "Elements: " + elements + ", and all that stand nowhere here.\n\nProperties: " + properties +
           ", and all that stand nowhere here, but for those that mean nothing on paper.\n";
}

std::string WritePage() {
    return "# What is supported\n\n"
           "Documents are prepared before they are read, unless `--prepress off` says otherwise; a host that gives its "
           "documents to the\ninterpreter itself has them read as they stand. `zamprint --check` says of a document "
           "what of it will not come out as it is\ndrawn. This page is written from the tables that it works by, and a "
           "test holds the two together.\n\n## Elements\n\n" +
           WriteElements() +
           "\nIn documents as they stand a `text` is one run of characters without parts, and definitions stand "
           "directly below `defs` and\nbefore their use (`symbol`, `pattern` and `marker` anywhere).\n\n## Attributes "
           "of single elements\n\n" +
           WriteAttributes() + "\n## Properties\n\n" + WriteProperties() + "\n## Not drawn\n\n" + WriteUndrawn() +
           "\nClipping is exact by upright rectangles, and by other shapes where what they clip is a single rectangle "
           "or image that covers\nthem; else the shape's box clips. Pictures are PNG, JPEG and BMP, and drawings in "
           "prepared documents.\n";
}

} // namespace

TEST(PreflightVocabulary, KnowsTheElementsOfTheParser) {
    for (const std::string_view name : ZAMPrintSVGParser::GetElementNames()) {
        EXPECT_NE(FindElement(name), nullptr) << name;
    }
    EXPECT_GT(ZAMPrintSVGParser::GetElementNames().size(), 15U);
    EXPECT_TRUE(ZAMPrintSVGParser::IsElement("RECT") && !ZAMPrintSVGParser::IsElement("tspan"));
}

// Every element of the parser with every attribute of the table: it changes the model exactly where the table says so.
TEST(PreflightVocabulary, AttributesAreReadByTheElementsThatTheTableNames) {
    for (const Attribute& attribute : GetAttributes()) {
        for (const std::string_view element : ZAMPrintSVGParser::GetElementNames()) {
            const bool isKeptOnly =
                attribute.name == "viewBox" && element == "text"; // the model has it, nobody draws it
            EXPECT_EQ(ChangesModel(element, attribute.name), IsReadBy(attribute, element, kAsItStands) || isKeptOnly)
                << attribute.name << " of " << element;
        }
    }
}

// A circle inside each element: it is drawn exactly where the preflight says nothing. A pattern shows pictures only.
TEST(PreflightVocabulary, ChildrenAreReadWhereThePreflightSaysSo) {
    std::size_t drawn = 0;
    for (const std::string_view parent : ZAMPrintSVGParser::GetElementNames()) {
        const std::string document = DocumentOf(parent, {}, "<circle id='c' r='77'/>");
        const bool isDrawn = parent == "pattern" || DecodeToJson(document).find("77") != std::string::npos;
        const bool isAside = FindElement(parent)->role == Role::Aside; // nobody draws what it holds
        const bool isMisplaced = FindingsOf(document, kAsItStands).find("misplaced-element") != std::string::npos;
        EXPECT_EQ(isDrawn, !isMisplaced && !isAside) << parent;
        drawn += isDrawn ? 1 : 0;
    }
    EXPECT_EQ(drawn, 7U) << "svg, g, a, defs, symbol, marker, pattern";
}

TEST(PreflightVocabulary, PropertiesHaveTheFormsOfTheParser) {
    const auto form = [](std::string_view name) {
        const auto property = ZAMPrintSVGParser::FindProperty(name);
        return !property ? "none" : !property->inStyle ? "attribute" : !property->asAttribute ? "style" : "both";
    };
    EXPECT_STREQ(form("FILL"), "both");
    EXPECT_STREQ(form("fill-rule"), "style");
    EXPECT_STREQ(form("marker-end"), "attribute");
    EXPECT_STREQ(form("clip-path"), "none");
    for (const Property& property : GetProperties()) {
        EXPECT_TRUE(!ZAMPrintSVGParser::FindProperty(property.name) || property.isPrepared) << property.name;
    }
}

TEST(PreflightVocabulary, ThePageTellsWhatTheTablesHold) {
    const std::string file = ZAM_SOURCE_DIR "/docs/SUPPORTED.md";
    if (const char* const regenerate = std::getenv("ZAM_REGENERATE"); regenerate != nullptr && regenerate[0] == '1') {
        std::ofstream(file, std::ios::binary) << WritePage();
        return;
    }
    std::ostringstream page;
    page << std::ifstream(file, std::ios::binary).rdbuf();
    EXPECT_EQ(page.str(), WritePage()) << "ZAM_REGENERATE=1 writes the page anew";
}
