// SPDX-License-Identifier: MIT
// The text element (SVG 1.1, 10.4): one run of text at one point. Only the first number of each position list counts,
// and child elements other than the descriptions give nothing.
#include "framework/base/ZAMNumberReading.h"
#include "framework/mathematics/ZAMMathConstants.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGViewBoxParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <algorithm>
#include <string>

namespace {

// Line breaks and tabs go without a trace, so that what stands around them is joined; blanks go at both ends.
std::string Collapsed(const ZAMUnicodeString& content) {
    std::string text(content.View());
    std::erase_if(text, [](char c) { return c == '\n' || c == '\r' || c == '\t'; });
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace

// Text and font attributes are read after style, and so win over it.
int ZAMPrintSVGParser::ParseTextElement(const ZAMLightXmlElementItf& element, ZAMPrtTextElt* text) {
    if (text == nullptr) {
        return -1;
    }
    const ZAMPrintSVGStateScope saved(*this);
    ParseShapeAttrib(element);
    text->SetDrawStyle(_DrawStyle);
    text->SetStrokeAttributes(_StrokeAttributes);
    text->SetFillAttributes(_FillAttributes);
    ParseCoreAttrib(element, text);
    ParseTextAttrib(element);
    ParseTextContentAttrib(element);
    ParseFontAttrib(element);
    text->SetTextAttributes(_TextAttributes);
    ParseTransformAttrib(element, text);
    ReadTextPosition(element, *text);
    const ZAMUnicodeString content = element.GetTextContent();
    if (!content.IsEmpty()) {
        text->SetText(Collapsed(content));
    }
    ParseDescriptions(element, text);
    return 0;
}

void ZAMPrintSVGParser::ReadTextPosition(const ZAMLightXmlElementItf& element, ZAMPrtTextElt& text) {
    double x = 0.0;
    double y = 0.0;
    double dx = 0.0;
    double dy = 0.0;
    GetXCoordinate(element, "x", x);
    GetYCoordinate(element, "y", y);
    GetHorLength(element, "dx", dx);
    GetVertLength(element, "dy", dy);
    text.SetPosition({x + dx, y + dy}); // dy counts upward, as it stands

    // The element has its copy of the attributes already, so that its direction stays what it was.
    double rotate = 0.0;
    ZAMReadDouble(element.GetAttribute("rotate"), rotate);
    _TextAttributes.SetDirection(static_cast<float>(rotate * ZAMDegreeToRadian));

    const std::string_view viewBox = element.GetAttribute("viewBox");
    if (!viewBox.empty()) {
        double minX = 0.0;
        double minY = 0.0;
        double width = 0.0;
        double height = 0.0;
        ZAMPrintSVGViewBoxParser::ParseViewBoxString(viewBox, minX, minY, width, height);
        text.SetViewBox(minX, minY, width, height);
    }
}
