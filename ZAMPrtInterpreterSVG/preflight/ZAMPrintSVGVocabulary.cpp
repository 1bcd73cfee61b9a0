// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <algorithm>
#include <iterator>

namespace ZAMPrintSVGVocabulary {

namespace {

using Fault = ZAMPrintSVGFault;

constexpr Element kElements[] = {
    {"svg", Role::Container, true, {}},
    {"g", Role::Container, true, {}},
    {"a", Role::Container, true, {}},
    {"switch", Role::Container, true, Fault::Switch},
    {"defs", Role::Container, true, {}},
    {"symbol", Role::Container, true, {}},
    {"use", Role::Leaf, true, {}},
    {"rect", Role::Leaf, true, {}},
    {"circle", Role::Leaf, true, {}},
    {"ellipse", Role::Leaf, true, {}},
    {"line", Role::Leaf, true, {}},
    {"polyline", Role::Leaf, true, {}},
    {"polygon", Role::Leaf, true, {}},
    {"path", Role::Leaf, true, {}},
    {"image", Role::Leaf, true, {}},
    {"text", Role::Text, true, {}},
    {"tspan", Role::TextPart, true, Fault::TextSpan},
    {"textPath", Role::TextPart, true, Fault::TextSpan},
    {"tref", Role::TextPart, true, Fault::TextSpan},
    {"altGlyph", Role::TextPart, true, Fault::TextSpan},
    {"marker", Role::Container, true, {}},
    {"pattern", Role::Container, true, {}},
    {"linearGradient", Role::Gradient, true, {}},
    {"radialGradient", Role::Gradient, true, {}},
    {"stop", Role::Stop, true, {}},
    {"clipPath", Role::Container, true, {}},
    {"style", Role::Aside, true, Fault::StyleSheet},
    {"title", Role::Aside, true, {}},
    {"desc", Role::Aside, true, {}},
    {"metadata", Role::Aside, false, {}},
    {"script", Role::Aside, false, {}},
    {"view", Role::Aside, false, {}},
    {"cursor", Role::Aside, false, {}},
    {"font", Role::Aside, false, Fault::WebFont},
    {"font-face", Role::Aside, false, Fault::WebFont},
    {"mask", Role::Aside, false, {}},
    {"filter", Role::Aside, false, {}},
    {"animate", Role::Aside, false, Fault::Animation},
    {"animateColor", Role::Aside, false, Fault::Animation},
    {"animateMotion", Role::Aside, false, Fault::Animation},
    {"animateTransform", Role::Aside, false, Fault::Animation},
    {"set", Role::Aside, false, Fault::Animation},
};

constexpr Attribute kAttributes[] = {
    {"x", "rect image svg use text pattern", "tspan tref symbol", "0", true},
    {"y", "rect image svg use text pattern", "tspan tref symbol", "0", true},
    {"width", "svg rect image use pattern", "symbol", "", true},
    {"height", "svg rect image use pattern", "symbol", "", true},
    {"cx", "circle ellipse", "radialGradient", "0", true},
    {"cy", "circle ellipse", "radialGradient", "0", true},
    {"r", "circle", "radialGradient", "", true},
    {"rx", "ellipse", "rect", "0", true},
    {"ry", "ellipse", "rect", "0", true},
    {"x1", "line", "linearGradient", "0", true},
    {"y1", "line", "linearGradient", "0", true},
    {"x2", "line", "linearGradient", "0", true},
    {"y2", "line", "linearGradient", "0", true},
    {"points", "polyline polygon", "", ""},
    {"d", "path", "", ""},
    {"dx", "text", "tspan tref textPath", "0", true},
    {"dy", "text", "tspan tref textPath", "0", true},
    {"rotate", "", "text tspan tref textPath", "0"},
    {"textLength", "", "text tspan textPath tref", ""},
    {"lengthAdjust", "", "text tspan textPath tref", "spacing"},
    {"startOffset", "", "textPath", "0"},
    {"pathLength", "", "path", ""},
    {"transform", "g a rect circle ellipse line polyline polygon path text use image", "svg symbol switch clipPath",
     ""},
    {"viewBox", "svg symbol marker", "pattern", ""},
    {"preserveAspectRatio", "", "svg symbol marker pattern image", "xMidYMid meet|xMidYMid"},
    {"refX", "marker", "", "0", true},
    {"refY", "marker", "", "0", true},
    {"markerWidth", "marker", "", "", true},
    {"markerHeight", "marker", "", "", true},
    {"markerUnits", "", "marker", "userSpaceOnUse"},
    {"orient", "", "marker", "0"},
    {"patternUnits", "", "pattern", "userSpaceOnUse"},
    {"patternContentUnits", "", "pattern", "userSpaceOnUse"},
    {"patternTransform", "", "pattern", ""},
    {"gradientUnits", "", "linearGradient radialGradient", ""},
    {"gradientTransform", "", "linearGradient radialGradient", ""},
    {"spreadMethod", "", "linearGradient radialGradient", ""},
    {"fx", "", "radialGradient", ""},
    {"fy", "", "radialGradient", ""},
    {"fr", "", "radialGradient", ""},
    {"offset", "", "stop", ""},
    {"clipPathUnits", "", "clipPath", "userSpaceOnUse"},
    {"requiredExtensions", "",
     "switch g a use rect circle ellipse line polyline polygon path image text tspan tref textPath svg", ""},
    {"systemLanguage", "",
     "switch g a use rect circle ellipse line polyline polygon path image text tspan tref textPath svg", ""},
    {"xlink:href", "a image use", "linearGradient radialGradient pattern textPath tref", ""},
};

constexpr std::string_view kForeignAttributes[] = {
    "requiredFeatures",
    "id",
    "class",
    "lang",
    "tabindex",
    "role",
    "version",
    "baseProfile",
    "type",
    "zoomAndPan",
    "contentScriptType",
    "media",
    "slot",
    "part",
    "contentStyleType",
    "externalResourcesRequired",
    "focusable",
    "target",
    "download",
    "rel",
    "hreflang",
    "ping",
    "title",
    "nonce",
    "referrerpolicy",
    "crossorigin",
    "decoding",
    "space",
    "xmlns",
};

constexpr Property kProperties[] = {
    {"fill-rule", true, "nonzero|inherit"},
    {"display", true, "inline|block|inherit"},
    {"visibility", true, "visible|inherit"},
    {"marker", true, "none|inherit"},
    {"marker-start", true, "none|inherit"},
    {"marker-mid", true, "none|inherit"},
    {"marker-end", true, "none|inherit"},
    // Only of prepared documents.
    {"stroke-dashoffset", true, "0|0px|inherit"},
    {"paint-order", true, "normal|fill|fill stroke|fill stroke markers|inherit"},
    {"vector-effect", true, "none"},
    {"clip-path", true, "none"},
    {"clip-rule", true, "*"},
    {"overflow", true, "visible|auto"},
    {"stop-color", true, "*"},
    {"stop-opacity", true, "*"},
    {"font", true, "inherit"},
    {"font-style", true, "normal|inherit"},
    {"font-stretch", true, "normal|100%|inherit"},
    {"word-spacing", true, "normal|0|0px|inherit"},
    {"text-decoration", true, "none|inherit"},
    {"text-decoration-line", true, "none|inherit"},
    {"baseline-shift", true, "baseline|0|inherit"},
    {"alignment-baseline", true, "auto|baseline|alphabetic"},
    {"dominant-baseline", true, "auto|alphabetic|inherit"},
    {"direction", true, "ltr|inherit"},
    {"unicode-bidi", true, "normal|embed"},
    {"white-space", true, "normal|nowrap|inherit"},
    {"x", true, "0"},
    {"y", true, "0"},
    {"width", true, "auto"},
    {"height", true, "auto"},
    {"cx", true, "0"},
    {"cy", true, "0"},
    {"r", true, ""},
    {"rx", true, "0|auto"},
    {"ry", true, "0|auto"},
    // Drawn by nothing.
    {"mask", false, "none"},
    {"filter", false, "none"},
    {"mix-blend-mode", false, "normal"},
    {"stroke-miterlimit", false, "4|inherit"},
    {"font-variant", false, "normal|inherit"},
    {"backdrop-filter", false, "none"},
    {"text-transform", false, "none"},
    {"text-shadow", false, "none"},
    {"kerning", false, "auto|0"},
    {"glyph-orientation-vertical", false, "auto"},
    {"glyph-orientation-horizontal", false, "auto|0|0deg"},
    {"font-feature-settings", false, "normal"},
    {"font-variation-settings", false, "normal"},
    {"font-size-adjust", false, "none"},
    {"transform", false, "none"},
    {"transform-origin", false, "0 0|0px 0px"},
    {"color-interpolation", false, "sRGB|auto"},
    {"clip", false, "auto"},
    {"background", false, "none|transparent"},
    {"background-color", false, "transparent"},
    // Of no consequence on paper, or outside of filters.
    {"alignment-adjust", false, "*"},
    {"animation", false, "*"},
    {"block-progression", false, "*"},
    {"color-interpolation-filters", false, "*"},
    {"color-profile", false, "*"},
    {"color-rendering", false, "*"},
    {"cursor", false, "*"},
    {"enable-background", false, "*"},
    {"flood-color", false, "*"},
    {"flood-opacity", false, "*"},
    {"font-kerning", false, "*"},
    {"font-optical-sizing", false, "*"},
    {"font-variant-caps", false, "normal"},
    {"font-variant-east-asian", false, "normal"},
    {"font-variant-ligatures", false, "*"},
    {"font-variant-numeric", false, "normal"},
    {"font-variant-position", false, "normal"},
    {"font-variant-alternates", false, "normal"},
    {"image-rendering", false, "*"},
    {"isolation", false, "*"},
    {"lighting-color", false, "*"},
    {"line-height", false, "*"},
    {"outline", false, "*"},
    {"pointer-events", false, "*"},
    {"shape-padding", false, "*"},
    {"shape-margin", false, "*"},
    {"shape-rendering", false, "*"},
    {"solid-color", false, "*"},
    {"solid-opacity", false, "*"},
    {"text-align", false, "*"},
    {"text-decoration-color", false, "*"},
    {"text-decoration-style", false, "*"},
    {"text-indent", false, "*"},
    {"text-orientation", false, "*"},
    {"text-rendering", false, "*"},
    {"touch-action", false, "*"},
    {"transform-box", false, "*"},
    {"transition", false, "*"},
    {"user-select", false, "*"},
    {"will-change", false, "*"},
};

template <class Row, std::size_t count>
const Row* Find(const Row (&rows)[count], std::string_view name, bool (*matches)(std::string_view, std::string_view)) {
    const auto* const found = std::ranges::find_if(rows, [&](const Row& row) { return matches(row.name, name); });
    return found == std::end(rows) ? nullptr : found;
}

bool IsSame(std::string_view left, std::string_view right) {
    return left == right;
}

bool IsSameWithoutCase(std::string_view left, std::string_view right) {
    return ZAMTextMatches(left, right);
}

} // namespace

std::string_view NameOf(const ZAMLightXmlElementItf& element) {
    const std::string_view name = element.GetName();
    return name.starts_with(kPrefix) ? name.substr(kPrefix.size()) : name;
}

std::span<const Element> GetElements() {
    return kElements;
}

const Element* FindElement(std::string_view name) {
    return Find(kElements, name, IsSameWithoutCase);
}

bool IsRead(const Element& element, Mode mode) {
    return ZAMPrintSVGParser::IsElement(element.name) || (mode == Mode::Prepared && element.isPrepared);
}

std::span<const Attribute> GetAttributes() {
    return kAttributes;
}

const Attribute* FindAttribute(std::string_view name) {
    return Find(kAttributes, name, IsSame);
}

bool IsReadBy(const Attribute& attribute, std::string_view element, Mode mode) {
    return Holds(attribute.elements, ' ', element) ||
           (mode == Mode::Prepared && Holds(attribute.preparedElements, ' ', element));
}

// Of the prefixed names only the link itself is SVG's. Names that begin with "on" are those of event handlers.
bool IsForeignAttribute(std::string_view name) {
    if (name.find(':') != std::string_view::npos) {
        return name != "xlink:href";
    }
    return name.starts_with("data-") || name.starts_with("aria-") || name.starts_with("on") ||
           std::ranges::find(kForeignAttributes, name) != std::end(kForeignAttributes);
}

std::span<const Property> GetProperties() {
    return kProperties;
}

const Property* FindProperty(std::string_view name) {
    return Find(kProperties, name, IsSameWithoutCase);
}

bool IsDrawn(std::string_view property, Mode mode) {
    if (ZAMPrintSVGParser::FindProperty(property)) {
        return true;
    }
    const Property* const row = FindProperty(property);
    return mode == Mode::Prepared && row != nullptr && row->isPrepared;
}

bool IsForeignProperty(std::string_view name) {
    return name.starts_with('-');
}

bool IsPlain(std::string_view plain, std::string_view value) {
    double number = 0.0;
    double plainNumber = 0.0;
    return plain == "*" || Holds(plain, '|', value) ||
           (ZAMReadPlainDouble(value, number) && ZAMReadDouble(plain, plainNumber) == 1 && number == plainNumber);
}

bool Holds(std::string_view list, char separator, std::string_view word) {
    while (!list.empty()) {
        const std::size_t length = std::min(list.find(separator), list.size());
        if (ZAMTextMatches(list.substr(0, length), word)) {
            return true;
        }
        list.remove_prefix(std::min(length + 1, list.size()));
    }
    return false;
}

} // namespace ZAMPrintSVGVocabulary
