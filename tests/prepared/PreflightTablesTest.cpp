// SPDX-License-Identifier: MIT
// What the preflight says that prepared documents may have, against what they really make of it.
#include "prepress/ZAMPrepress.h"
#include "tests/support/FontFolders.h"
#include "tests/support/SvgDecoding.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

using namespace ZAMPrintSVGVocabulary;

namespace {

using Attributes = std::map<std::string, std::string>;

const std::string kPicture =
    "data:image/bmp;base64,Qk0+AAAAAAAAADYAAAAoAAAAAQAAAAIAAAABABgAAAAAAAgAAAAAAAAAAAAAAAAAAAAA"
    "AAAAAAD/AP8AAAA=";

struct Host {
    std::string content;   // "@" stands where the attributes do
    Attributes attributes; // without which others make no difference
};

const std::string kStops = "<stop offset='0.1' stop-color='red'/><stop offset='0.8' stop-color='blue'/>";
const std::string kSquare = "<rect width='9' height='5' stroke='red'/>";

// Documents in which each element counts.
const std::map<std::string_view, Host> kHosts = {
    {"svg", {"<svg @>" + kSquare + "</svg>", {{"width", "50"}, {"height", "40"}, {"viewBox", "0 0 20 10"}}}},
    {"g", {"<g @>" + kSquare + "</g>", {}}},
    {"a", {"<a @>" + kSquare + "</a>", {}}},
    {"switch", {"<switch @>" + kSquare + "</switch>", {}}},
    {"symbol",
     {"<symbol id='s' @>" + kSquare + "</symbol><use xlink:href='#s'/>",
      {{"viewBox", "0 0 20 10"}, {"width", "30"}, {"height", "30"}}}},
    {"use",
     {"<symbol id='s' viewBox='0 0 9 9'>" + kSquare + "</symbol><use @/>", {{"xlink:href", "#s"}, {"width", "20"}}}},
    {"rect", {"<rect @/>", {{"width", "20"}, {"height", "30"}}}},
    {"circle", {"<circle @/>", {{"r", "9"}}}},
    {"ellipse", {"<ellipse @/>", {{"rx", "9"}, {"ry", "5"}}}},
    {"line", {"<line stroke='red' @/>", {{"x2", "9"}}}},
    {"polyline", {"<polyline stroke='red' @/>", {{"points", "1 2 8 9"}}}},
    {"polygon", {"<polygon @/>", {{"points", "1 2 8 9 3 4"}}}},
    {"path",
     {"<path id='t' fill='none' stroke='red' @/><text><textPath xlink:href='#t' startOffset='2'>o</textPath></text>",
      {{"d", "M1 2L80 90"}}}},
    {"image", {"<image @/>", {{"width", "20"}, {"height", "30"}, {"xlink:href", kPicture}}}},
    {"text", {"<text @>two words</text>", {}}},
    {"tspan", {"<text>a<tspan @>two words</tspan></text>", {}}},
    {"tref", {"<text><tspan id='w'>word</tspan><tref @/></text>", {{"xlink:href", "#w"}}}},
    {"textPath",
     {"<path id='t' d='M1 2L80 90'/><path id='a' d='M1 2L80 9'/><text><textPath @>word</textPath></text>",
      {{"xlink:href", "#t"}}}},
    {"marker",
     {"<marker id='m' @>" + kSquare +
          "</marker><path d='M1 1L20 9' stroke='red' stroke-width='3' marker-end='url(#m)'/>",
      {{"viewBox", "0 0 20 10"}}}},
    {"pattern",
     {"<pattern id='b' patternTransform='rotate(5)' width='3' height='3' patternUnits='userSpaceOnUse'><image "
      "width='5' height='5' "
      "xlink:href='" +
          kPicture + "'/></pattern><pattern id='p' @><image width='5' height='5' xlink:href='" + kPicture +
          "'/></pattern><rect width='40' height='30' fill='url(#p)'/>",
      {{"patternUnits", "objectBoundingBox"}, {"width", "0.4"}, {"height", "0.3"}, {"viewBox", "0 0 9 8"}}}},
    {"linearGradient",
     {"<linearGradient id='b' x1='0.4'/><linearGradient id='p' @>" + kStops +
          "</linearGradient><rect width='40' height='30' fill='url(#p)'/>",
      {{"x2", "0.5"}}}},
    {"radialGradient",
     {"<radialGradient id='b' fx='0.4'/><radialGradient id='p' @>" + kStops +
          "</radialGradient><rect width='40' height='30' fill='url(#p)'/>",
      {}}},
    {"stop",
     {"<linearGradient id='p'><stop @/>" + kStops + "</linearGradient><rect width='40' height='30' fill='url(#p)'/>",
      {}}},
    {"clipPath",
     {"<clipPath id='k' @><rect width='5' height='5'/></clipPath><rect width='40' height='30' clip-path='url(#k)'/>",
      {}}},
};

const std::map<std::string_view, std::string> kValues = {
    {"points", "1,2 3,4 5,9"},
    {"d", "M1 2L3 40"},
    {"transform", "translate(3 4)"},
    {"viewBox", "1 2 30 40"},
    {"orient", "45"},
    {"preserveAspectRatio", "none"},
    {"spreadMethod", "reflect"},
    {"systemLanguage", "none"},
    {"requiredExtensions", "none"},
    {"requiredFeatures", "none"},
    {"markerUnits", "userSpaceOnUse"},
    {"patternUnits", "userSpaceOnUse"},
    {"patternContentUnits", "objectBoundingBox"},
    {"patternTransform", "rotate(9)"},
    {"gradientUnits", "userSpaceOnUse"},
    {"gradientTransform", "rotate(9)"},
    {"clipPathUnits", "objectBoundingBox"},
    {"offset", "0.5"},
    {"fx", "0.3"},
    {"fy", "0.3"},
    {"fr", "0.3"},
    {"lengthAdjust", "spacingAndGlyphs"},
    {"xlink:href", "#b"},
    {"x1", "0.3"},
    {"cx", "0.3"},
    {"x", "0.17"},
    {"y", "0.17"},
};

std::string TextOf(const ZAMLightXmlElementItf& element) {
    std::string text(element.GetName());
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        text.append(" ").append(element.GetAttributeAt(i).name).append("=").append(element.GetAttributeAt(i).value);
    }
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        text.append("(").append(TextOf(element.GetNextChild(position))).append(")");
    }
    return text;
}

// The pictures that fills have become: the model's text tells only their sizes.
std::string PicturesIn(const ZAMLightXmlElementItf& element) {
    std::string text(element.GetName() == "image" ? element.GetAttribute("xlink:href") : std::string_view());
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        text += PicturesIn(element.GetNextChild(position));
    }
    return text;
}

// Draws no tiles but notes which it is asked for.
class TileNotes : public ZAMPrepressTileRenderer {
public:
    std::string Render(const ZAMLightXmlElement& drawing) override {
        notes += TextOf(drawing);
        return {};
    }
    std::string notes;
};

// All that can be told of the prepared drawing.
std::string ModelOf(std::string content, const Attributes& attributes) {
    std::string text;
    for (const auto& [name, value] : attributes) {
        text.append(name).append("='").append(value).append("' ");
    }
    content.replace(content.find('@'), 1, text);
    TileNotes tiles;
    const ZAMLightXmlElement root =
        ZAMPrepress::Prepare(ParseDocument("<svg width='200' height='100'>" + content + "</svg>"), &tiles);
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVG2Interpreter decoder(&root);
    ZAMPrintSVGModelDriver driver(model.Get());
    EXPECT_TRUE(model && decoder.Decode(&driver) == 1);
    return ToJson(*model) + PicturesIn(root) + tiles.notes;
}

bool ChangesModel(const Host& host, const std::string& attribute) {
    Attributes before = host.attributes;
    if (attribute == "lengthAdjust") {
        before["textLength"] = "90";
    }
    if (attribute == "patternContentUnits") {
        before.erase("viewBox"); // which would rule
    }
    Attributes after = before;
    const auto found = kValues.find(attribute);
    after[attribute] = found != kValues.end() ? found->second : "7";
    return ModelOf(host.content, before) != ModelOf(host.content, after);
}

// Whether the style makes a difference to a shape, a text, a nested svg, a clipping path or a gradient's stop.
bool StyleCounts(const std::string& style) {
    const std::string definitions =
        "<defs><clipPath id='k'><rect width='5' height='5'/></clipPath><marker id='m'>" + kSquare + "</marker></defs>";
    const std::string contents[] = {
        "<rect width='9' height='9' @/>",
        "<circle r='9' @/>",
        "<g transform='scale(2 3)'><path stroke='red' stroke-width='4' d='M5 5H50V60H5V5L20 30 40 9Z' @/></g>",
        "<path stroke='red' stroke-width='4' stroke-dasharray='9 3' d='M5 5H50' @/>",
        "<text direction='rtl'>two  <tspan @>words  again</tspan></text>",
        "<text @>two  words </text>",
        "<svg width='5' height='5' @><rect width='9' height='9'/></svg>",
        "<clipPath id='q'><path d='M0 0H9V9H0V0H5V5H0z' @/></clipPath><rect width='9' height='9' clip-path='url(#q)'/>",
        "<linearGradient id='p'><stop @/>" + kStops + "</linearGradient><rect width='40' height='30' fill='url(#p)'/>",
    };
    return std::ranges::any_of(contents, [&](const std::string& content) {
        return ModelOf(definitions + content, {{"style", style}}) != ModelOf(definitions + content, {});
    });
}

// What is not the text's in SVG and yet leaves a trace in its model.
// Where a tile lies shows only once it is drawn.
constexpr std::string_view kUntold = "viewBox@text x@pattern y@pattern";

} // namespace

TEST(PreflightTables, AttributesOfPreparedDocuments) {
    for (const auto& [element, host] : kHosts) {
        for (const Attribute& attribute : GetAttributes()) {
            if (Holds(kUntold, ' ', std::string(attribute.name) + "@" + std::string(element))) {
                continue;
            }
            EXPECT_EQ(ChangesModel(host, std::string(attribute.name)), IsReadBy(attribute, element, Mode::Prepared))
                << attribute.name << " of " << element;
        }
    }
}

TEST(PreflightTables, PropertiesOfPreparedDocuments) {
    const std::map<std::string_view, std::string> values = {
        {"fill-rule", "evenodd"},
        {"display", "none"},
        {"visibility", "hidden"},
        {"marker", "url(#m)"},
        {"marker-start", "url(#m)"},
        {"marker-mid", "url(#m)"},
        {"marker-end", "url(#m)"},
        {"stroke-dashoffset", "3"},
        {"paint-order", "stroke"},
        {"vector-effect", "non-scaling-stroke"},
        {"clip-path", "url(#k)"},
        {"clip-rule", "evenodd"},
        {"overflow", "visible"},
        {"stop-color", "lime"},
        {"stop-opacity", "0.3"},
        {"font", "bold 20px serif"},
        {"font-style", "italic"},
        {"x", "3px"},
        {"y", "3px"},
        {"width", "3px"},
        {"height", "3px"},
        {"cx", "3px"},
        {"cy", "3px"},
        {"r", "3px"},
        {"rx", "3px"},
        {"ry", "3px"},
        {"font-stretch", "condensed;font-family:DejaVu Sans"},
        {"word-spacing", "9"},
        {"text-decoration", "underline"},
        {"text-decoration-line", "underline"},
        {"baseline-shift", "super"},
        {"alignment-baseline", "hanging"},
        {"dominant-baseline", "hanging"},
        {"direction", "rtl"},
        {"unicode-bidi", "bidi-override"},
        {"white-space", "pre"},
    };
    for (const Property& property : GetProperties()) {
        if (property.isPrepared) {
            const auto value = values.find(property.name);
            ASSERT_NE(value, values.end()) << property.name;
            EXPECT_TRUE(StyleCounts(std::string(property.name) + ":" + value->second)) << property.name;
        }
    }
    for (const char* const style :
         {"mask:url(#k)", "filter:url(#k)", "mix-blend-mode:multiply", "stroke-miterlimit:1", "font-variant:small-caps",
          "text-transform:uppercase", "text-shadow:1px 1px red", "kerning:9", "transform:scale(2)",
          "clip:rect(0 0 0 0)", "font-feature-settings:smcp", "background:red", "font-variant-caps:small-caps"}) {
        const std::string_view name = std::string_view(style).substr(0, std::string_view(style).find(':'));
        ASSERT_NE(FindProperty(name), nullptr) << name;
        EXPECT_FALSE(FindProperty(name)->isPrepared || StyleCounts(style)) << name;
    }
}
