// SPDX-License-Identifier: MIT
// The table of presentation properties (SVG 1.1, appendix M) and the two ways in which they are read: as attributes and
// in the style attribute.
#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <cmath>
#include <limits>

namespace {

// Opacities multiply down the tree, rounded up each time. A product outside 0..255 wraps.
unsigned char Faded(unsigned char transparency, float opacity) {
    const float product = static_cast<float>(transparency) * opacity;
    const double rounded = std::ceil(static_cast<double>(product));
    if (!(std::abs(rounded) <= static_cast<double>(std::numeric_limits<int>::max()))) {
        return 0;
    }
    return static_cast<unsigned char>(static_cast<int>(rounded));
}

// A part that is turned on or off: bit 1 is the stroke, bit 2 the fill. The explicit state keeps nothing but what is
// said.
ZAMPrtDrawStyle Switched(ZAMPrtDrawStyle style, ZAMPrtDrawStyle part, int flag) {
    const auto bit = static_cast<unsigned int>(part);
    auto bits = static_cast<unsigned int>(style);
    if (flag < 0) {
        return style;
    }
    if (style == ZAMPrtDrawStyle::Explicit) {
        bits = 0;
    }
    return static_cast<ZAMPrtDrawStyle>(flag == 1 ? bits | bit : bits & ~bit);
}

// Blanks only: tabs and line breaks stay.
std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Eats one declaration. A semicolon at the very start ends nothing: all the rest is one declaration then.
std::string_view TakeDeclaration(std::string_view& style) {
    const std::size_t semicolon = style.find(';');
    const bool last = semicolon == std::string_view::npos || semicolon == 0;
    const std::string_view declaration = last ? style : style.substr(0, semicolon);
    style.remove_prefix(last ? style.size() : semicolon + 1);
    return declaration;
}

} // namespace

// In the order in which the attributes of one operation are read. Where the two readers differ, so do the two forms.
constexpr ZAMPrintSVGParser::PropertyRow ZAMPrintSVGParser::kProperties[] = {
    {"opacity", ReadingOperation::Opacity, &ZAMPrintSVGParser::ReadOpacity, &ZAMPrintSVGParser::ReadOpacity},
    {"stroke-opacity", ReadingOperation::Opacity, &ZAMPrintSVGParser::ReadStrokeOpacity,
     &ZAMPrintSVGParser::ReadStrokeOpacity},
    {"fill-opacity", ReadingOperation::Opacity, &ZAMPrintSVGParser::ReadFillOpacity,
     &ZAMPrintSVGParser::ReadFillOpacity},
    {"color", ReadingOperation::Color, &ZAMPrintSVGParser::ReadColor, &ZAMPrintSVGParser::ReadColor},
    {"display", ReadingOperation::Graphics, &ZAMPrintSVGParser::ReadDisplay, nullptr},
    {"visibility", ReadingOperation::Graphics, &ZAMPrintSVGParser::ReadVisibility, nullptr},
    {"fill", ReadingOperation::Paint, &ZAMPrintSVGParser::ReadFillAttribute, &ZAMPrintSVGParser::ReadFill},
    {"fill-rule", ReadingOperation::Paint, nullptr, &ZAMPrintSVGParser::ReadFillRule},
    {"stroke", ReadingOperation::Paint, &ZAMPrintSVGParser::ReadStroke, &ZAMPrintSVGParser::ReadStroke},
    {"stroke-dasharray", ReadingOperation::Paint, &ZAMPrintSVGParser::ReadDashArray, &ZAMPrintSVGParser::ReadDashArray},
    {"stroke-linecap", ReadingOperation::Paint, &ZAMPrintSVGParser::ReadLineCap, &ZAMPrintSVGParser::ReadLineCap},
    {"stroke-linejoin", ReadingOperation::Paint, &ZAMPrintSVGParser::ReadLineJoin, &ZAMPrintSVGParser::ReadLineJoin},
    {"stroke-width", ReadingOperation::Paint, &ZAMPrintSVGParser::ReadStrokeWidth, &ZAMPrintSVGParser::ReadStrokeWidth},
    {"writing-mode", ReadingOperation::Text, &ZAMPrintSVGParser::ReadWritingMode, &ZAMPrintSVGParser::ReadWritingMode},
    {"letter-spacing", ReadingOperation::TextContent, &ZAMPrintSVGParser::ReadLetterSpacing,
     &ZAMPrintSVGParser::ReadLetterSpacing},
    {"text-anchor", ReadingOperation::TextContent, &ZAMPrintSVGParser::ReadTextAnchor,
     &ZAMPrintSVGParser::ReadTextAnchor},
    {"font-family", ReadingOperation::Font, &ZAMPrintSVGParser::ReadFontFamily, &ZAMPrintSVGParser::ReadFontFamily},
    {"font-size", ReadingOperation::Font, &ZAMPrintSVGParser::ReadFontSize, &ZAMPrintSVGParser::ReadFontSize},
    {"font-weight", ReadingOperation::Font, &ZAMPrintSVGParser::ReadFontWeight, &ZAMPrintSVGParser::ReadFontWeight},
    {"marker", ReadingOperation::Marker, &ZAMPrintSVGParser::ReadMarker, nullptr},
    {"marker-start", ReadingOperation::Marker, &ZAMPrintSVGParser::ReadMarkerStart, nullptr},
    {"marker-mid", ReadingOperation::Marker, &ZAMPrintSVGParser::ReadMarkerMid, nullptr},
    {"marker-end", ReadingOperation::Marker, &ZAMPrintSVGParser::ReadMarkerEnd, nullptr},
};

std::vector<ZAMPrintSVGParser::Property> ZAMPrintSVGParser::GetProperties() {
    std::vector<Property> properties;
    for (const PropertyRow& row : kProperties) {
        properties.push_back({row.name.GetText(), row.asAttribute != nullptr, row.inStyle != nullptr});
    }
    return properties;
}

std::optional<ZAMPrintSVGParser::Property> ZAMPrintSVGParser::FindProperty(std::string_view name) {
    for (const PropertyRow& row : kProperties) {
        if (ZAMTextMatches(row.name.GetText(), name)) {
            return Property{row.name.GetText(), row.asAttribute != nullptr, row.inStyle != nullptr};
        }
    }
    return std::nullopt;
}

void ZAMPrintSVGParser::ParsePresentationAttrib(const ZAMLightXmlElementItf& element,
                                                ZAMPrtGraphicPrimitiveElt* /*primitive*/) {
    ParseOpacityAttrib(element);
    ParseColorAttrib(element);
    ParseGraphicsAttrib(element);
    ParsePaintAttrib(element);
    ParseTextAttrib(element);
    ParseTextContentAttrib(element);
    ParseFontAttrib(element);
    ParseMarkerAttrib(element);
}

// The bits of the attributes that an operation reads.
constexpr std::uint64_t ZAMPrintSVGParser::AttributeBits(ReadingOperation operation) {
    std::uint64_t bits = 0;
    for (const PropertyRow& row : kProperties) {
        if (row.operation == operation && row.asAttribute != nullptr) {
            bits |= row.name.GetBit();
        }
    }
    return bits;
}

bool ZAMPrintSVGParser::MayChangeState(const ZAMLightXmlElementItf& element) {
    static constexpr std::uint64_t kStateBits = [] {
        std::uint64_t bits = ZAMLightXmlName("style").GetBit();
        for (const PropertyRow& row : kProperties) {
            bits |= row.name.GetBit();
        }
        return bits;
    }();
    return (element.GetAttributeBits() & kStateBits) != 0;
}

template <ZAMPrintSVGParser::ReadingOperation operation>
void ZAMPrintSVGParser::ReadAttributes(const ZAMLightXmlElementItf& element) {
    static constexpr std::uint64_t kBits = AttributeBits(operation);
    if ((element.GetAttributeBits() & kBits) == 0) {
        return;
    }
    PendingPaint pending;
    for (const PropertyRow& row : kProperties) {
        if (row.operation == operation && row.asAttribute != nullptr) {
            const std::string_view value = element.GetAttribute(row.name);
            if (!value.empty()) {
                (this->*row.asAttribute)(value, pending);
            }
        }
    }
    Apply(pending);
}

void ZAMPrintSVGParser::ParseOpacityAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::Opacity>(element);
}

void ZAMPrintSVGParser::ParseColorAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::Color>(element);
}

void ZAMPrintSVGParser::ParseGraphicsAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::Graphics>(element);
}

void ZAMPrintSVGParser::ParsePaintAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::Paint>(element);
}

void ZAMPrintSVGParser::ParseTextAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::Text>(element);
}

void ZAMPrintSVGParser::ParseTextContentAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::TextContent>(element);
}

void ZAMPrintSVGParser::ParseFontAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::Font>(element);
}

void ZAMPrintSVGParser::ParseMarkerAttrib(const ZAMLightXmlElementItf& element) {
    ReadAttributes<ReadingOperation::Marker>(element);
}

void ZAMPrintSVGParser::ParseStyleAttrib(const ZAMLightXmlElementItf& element) {
    std::string_view style = element.GetAttribute("style");
    PendingPaint pending;
    while (!style.empty()) {
        ReadDeclaration(TakeDeclaration(style), pending);
    }
    Apply(pending);
}

void ZAMPrintSVGParser::ReadDeclaration(std::string_view declaration, PendingPaint& pending) {
    const std::size_t colon = declaration.find(':');
    if (colon == std::string_view::npos) {
        return;
    }
    const std::string_view name = Trimmed(declaration.substr(0, colon));
    const std::string_view value = Trimmed(declaration.substr(colon + 1));
    if (value.empty()) {
        return;
    }
    for (const PropertyRow& row : kProperties) {
        if (row.inStyle != nullptr && ZAMTextMatches(row.name.GetText(), name)) {
            (this->*row.inStyle)(value, pending);
            return;
        }
    }
}

void ZAMPrintSVGParser::Apply(const PendingPaint& pending) {
    _DrawStyle = Switched(_DrawStyle, ZAMPrtDrawStyle::Stroke, pending.strokeFlag);
    _DrawStyle = Switched(_DrawStyle, ZAMPrtDrawStyle::Fill, pending.fillFlag);
    _StrokeAttributes.SetStrokeColourTransparency(
        Faded(_StrokeAttributes.GetStrokeColourTransparency(), pending.strokeOpacity));
    _FillAttributes.SetFillColourTransparency(Faded(_FillAttributes.GetFillColourTransparency(), pending.fillOpacity));
}

void ZAMPrintSVGParser::ParseCoreAttrib(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* primitive) {
    if (primitive != nullptr) {
        primitive->SetID(element.GetAttribute("id"));
    }
}
