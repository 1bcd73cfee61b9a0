// SPDX-License-Identifier: MIT
// The readers of the colour, opacity, display and paint properties (SVG 1.1, 11 and 12.2). A value that is not
// understood changes nothing, but any fill or stroke that is no "none" turns that part on.
#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGNumberList.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGColorParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGKeywords.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <array>

namespace {

constexpr ZAMPrintSVGKeyword<ZAMPrintLineAttribute> kLineCaps[] = {
    {"butt", ZAMPrintLineAttribute::CapButt},
    {"round", ZAMPrintLineAttribute::CapRound},
    {"square", ZAMPrintLineAttribute::CapSquare},
};

constexpr ZAMPrintSVGKeyword<ZAMPrintLineAttribute> kLineJoins[] = {
    {"miter", ZAMPrintLineAttribute::JoinMiter},
    {"round", ZAMPrintLineAttribute::JoinRound},
    {"bevel", ZAMPrintLineAttribute::JoinBevel},
};

constexpr ZAMPrintSVGKeyword<ZAMPrtFillRule> kFillRules[] = {
    {"nonzero", ZAMPrtFillRule::NonZero},
    {"evenodd", ZAMPrtFillRule::EvenOdd},
};

// "visible" draws both parts, whatever was set before.
constexpr ZAMPrintSVGKeyword<ZAMPrtDrawStyle> kVisibilities[] = {
    {"visible", ZAMPrtDrawStyle::StrokeAndFill},
    {"hidden", ZAMPrtDrawStyle::None},
    {"collapse", ZAMPrtDrawStyle::None},
};

bool ReadOpacityValue(std::string_view value, float& opacity) {
    double number = 1.0;
    if (ZAMTextMatches(value, "inherit") || ZAMReadDouble(value, number) != 1) {
        return false;
    }
    opacity = static_cast<float>(number);
    return true;
}

} // namespace

int ZAMPrintSVGParser::GetColor(ZAMUnicodeString& text, unsigned int& index) {
    if (text.IsEmpty() || !_Image) {
        return -1;
    }
    ZAMPrintSVGColorParser parser;
    parser.SetColorTable(GetColourTable());
    return parser.ParseColorString(text, index);
}

// A fresh table begins with black, whatever colour is asked for.
ZAMPrtColourTable* ZAMPrintSVGParser::GetColourTable() {
    if (_Image->GetColourTable() == nullptr) {
        if (const auto table = ZAMNew<ZAMPrtColourTable>()) {
            unsigned int black = 0;
            table->AddColour(0, 0, 0, black);
            _Image->SetColourTable(table.Get());
        }
    }
    return _Image->GetColourTable();
}

void ZAMPrintSVGParser::ReadOpacity(std::string_view value, PendingPaint& pending) {
    if (ReadOpacityValue(value, pending.strokeOpacity)) {
        pending.fillOpacity = pending.strokeOpacity;
    }
}

void ZAMPrintSVGParser::ReadStrokeOpacity(std::string_view value, PendingPaint& pending) {
    ReadOpacityValue(value, pending.strokeOpacity);
}

void ZAMPrintSVGParser::ReadFillOpacity(std::string_view value, PendingPaint& pending) {
    ReadOpacityValue(value, pending.fillOpacity);
}

// The first reading eats what it understands, so that only a keyword is there to be read a second time: "#f00" and
// "rgb()" reach the stroke's colour alone.
void ZAMPrintSVGParser::ReadColor(std::string_view value, PendingPaint& /*pending*/) {
    ZAMUnicodeString text(value);
    GetColor(text, _StrokeColourIndex);
    GetColor(text, _FillColourIndex);
}

void ZAMPrintSVGParser::ReadDisplay(std::string_view value, PendingPaint& /*pending*/) {
    if (ZAMTextMatches(value, "none")) {
        _DrawStyle = ZAMPrtDrawStyle::None;
    }
}

void ZAMPrintSVGParser::ReadVisibility(std::string_view value, PendingPaint& /*pending*/) {
    if (const auto* keyword = ZAMPrintSVGFindKeyword(kVisibilities, value)) {
        _DrawStyle = keyword->code;
    }
}

// The attribute "fill-rule" is not looked at: it is the fill's own value, as far as it was not understood, that may
// name a rule.
void ZAMPrintSVGParser::ReadFillAttribute(std::string_view value, PendingPaint& pending) {
    ZAMUnicodeString text(value);
    ReadFillPaint(text, pending);
    ReadFillRule(text, pending);
}

void ZAMPrintSVGParser::ReadFill(std::string_view value, PendingPaint& pending) {
    ZAMUnicodeString text(value);
    ReadFillPaint(text, pending);
}

void ZAMPrintSVGParser::ReadFillPaint(ZAMUnicodeString& text, PendingPaint& pending) {
    if (ZAMTextMatches(text, "none")) {
        pending.fillFlag = 0;
        return;
    }
    pending.fillFlag = 1;
    unsigned int index = 0;
    if (ZAMTextMatches(text, "currentColor")) {
        _FillAttributes.SetFillColourIndex(_FillColourIndex);
    } else if (text.SearchSubString("url") >= 0) {
        if (text.View().starts_with("url(#")) {
            text.Remove(0, 5);
            text.ReplaceAll(")", "");
            ReadFillReference(text);
        }
    } else if (GetColor(text, index) == 1) {
        _FillAttributes.SetFillColourIndex(index);
    }
}

void ZAMPrintSVGParser::ReadFillRule(std::string_view value, PendingPaint& /*pending*/) {
    if (const auto* keyword = ZAMPrintSVGFindKeyword(kFillRules, value)) {
        _FillAttributes.SetFillRule(keyword->code);
    }
}

void ZAMPrintSVGParser::ReadStroke(std::string_view value, PendingPaint& pending) {
    if (ZAMTextMatches(value, "none")) {
        pending.strokeFlag = 0;
        return;
    }
    pending.strokeFlag = 1;
    if (ZAMTextMatches(value, "currentColor")) {
        _StrokeAttributes.SetStrokeColourIndex(_StrokeColourIndex);
        return;
    }
    ZAMUnicodeString text(value);
    unsigned int index = 0;
    if (text.SearchSubString("url") < 0 && GetColor(text, index) == 1) {
        _StrokeAttributes.SetStrokeColourIndex(index);
    }
}

// The count is kept in one byte and wraps. A list without any number selects the dashed type and leaves the pattern
// alone.
void ZAMPrintSVGParser::ReadDashArray(std::string_view value, PendingPaint& /*pending*/) {
    if (ZAMTextMatches(value, "none")) {
        _StrokeAttributes.SetStrokeType(ZAMPrintLineAttribute::Solid);
        return;
    }
    std::array<float, 255> lengths{};
    std::size_t count = 0;
    ZAMPrintSVGForEachNumber(value, [&](double length) {
        if (count < lengths.size()) {
            lengths.at(count) = static_cast<float>(length);
        }
        ++count;
    });
    _StrokeAttributes.SetStrokeType(ZAMPrintLineAttribute::UserPattern);
    if (count > 0) {
        _StrokeAttributes.SetStrokeTypePattern(lengths.data(), static_cast<unsigned char>(count));
    }
}

void ZAMPrintSVGParser::ReadLineCap(std::string_view value, PendingPaint& /*pending*/) {
    if (const auto* keyword = ZAMPrintSVGFindKeyword(kLineCaps, value)) {
        _StrokeAttributes.SetStrokeCap(keyword->code);
    }
}

void ZAMPrintSVGParser::ReadLineJoin(std::string_view value, PendingPaint& /*pending*/) {
    if (const auto* keyword = ZAMPrintSVGFindKeyword(kLineJoins, value)) {
        _StrokeAttributes.SetStrokeJoin(keyword->code);
    }
}

void ZAMPrintSVGParser::ReadStrokeWidth(std::string_view value, PendingPaint& /*pending*/) {
    double width = 0.0;
    if (GetLength(value, width) > 0) {
        _StrokeAttributes.SetStrokeWidth(width);
    }
}
