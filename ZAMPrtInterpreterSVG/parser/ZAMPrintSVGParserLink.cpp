// SPDX-License-Identifier: MIT
// Where a link leads (SVG 1.1, 17.1).
#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

void ZAMPrintSVGParser::ParseXLinkReplaceAttrib(const ZAMLightXmlElementItf& element,
                                                ZAMPrtGraphicPrimitiveElt* primitive) {
    auto* const group = ZAMPrtCast<ZAMPrtGroupElt>(primitive);
    if (group == nullptr) {
        return;
    }
    ZAMPrtGroupAttributes attributes = group->GetGroupAttributes();
    ZAMPrintLinkURI link = attributes.GetLinkURI();
    const std::string_view target = element.GetAttribute("xlink:href");
    if (target.starts_with('#')) {
        link.SetElementId(target.substr(1));
    } else {
        link.SetBaseURL(target);
    }
    const std::string_view show = element.GetAttribute("xlink:show");
    if (ZAMTextMatches(show, "new")) {
        link.SetLinkShow(ZAMPrtLinkShow::New);
    } else if (ZAMTextMatches(show, "replace")) {
        link.SetLinkShow(ZAMPrtLinkShow::Replace);
    }
    attributes.SetLinkURI(link);
    group->SetGroupAttributes(attributes);
}
