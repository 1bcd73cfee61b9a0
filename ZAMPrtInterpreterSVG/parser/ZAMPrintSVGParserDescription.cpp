// SPDX-License-Identifier: MIT
// Titles and descriptions (SVG 1.1, 5.4): the character data of the element as it stands, line breaks and blanks
// included.
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

int ZAMPrintSVGParser::ParseDescElement(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* target) {
    if (target == nullptr) {
        return -1;
    }
    const ZAMUnicodeString content = element.GetTextContent();
    if (!content.IsEmpty()) {
        target->SetDescription(content);
    }
    return 0;
}

int ZAMPrintSVGParser::ParseTitleElement(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* target) {
    if (target == nullptr) {
        return -1;
    }
    const ZAMUnicodeString content = element.GetTextContent();
    if (!content.IsEmpty()) {
        target->SetTitle(content);
    }
    return 0;
}
