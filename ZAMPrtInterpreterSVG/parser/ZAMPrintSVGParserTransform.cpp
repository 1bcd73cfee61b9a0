// SPDX-License-Identifier: MIT
// The transform attribute (SVG 1.1, 7.6).
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTransformParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

void ZAMPrintSVGParser::ParseTransformAttrib(const ZAMLightXmlElementItf& element,
                                             ZAMPrtGraphicPrimitiveElt* primitive) const {
    const std::string_view transform = element.GetAttribute("transform");
    if (transform.empty()) {
        return;
    }
    ZAMPrintSVGTransformParser parser;
    parser.SetImageSize(_ImageWidth, _ImageHeight);
    parser._FlipY = _FlipY;
    parser.ParseTransformString(transform, primitive);
}
