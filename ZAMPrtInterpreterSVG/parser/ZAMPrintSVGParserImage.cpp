// SPDX-License-Identifier: MIT
// The image element (SVG 1.1, 5.7), and the references by which content is embedded.
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

// Only the properties of paint are read; none of them reaches the picture.
int ZAMPrintSVGParser::ParseBitmapImageElement(const ZAMLightXmlElementItf& element, ZAMPrtBitmapImageElt* bitmap) {
    if (bitmap == nullptr) {
        return -1;
    }
    const ZAMPrintSVGStateScope saved(*this, ZAMPrintSVGSaved::Paint);
    ParseGraphicsAttrib(element);
    ParseOpacityAttrib(element);
    ParseColorAttrib(element);
    ParseStyleAttrib(element);
    ParseXLinkEmbedAttrib(element, bitmap);
    ParseCoreAttrib(element, bitmap);
    ParseTransformAttrib(element, bitmap);
    ZAMMathPoint2D corner;
    double width = 0.0;
    double height = 0.0;
    GetXCoordinate(element, "x", corner.x);
    GetYCoordinate(element, "y", corner.y);
    GetHorLength(element, "width", width);
    GetVertLength(element, "height", height);
    bitmap->SetDirection(0.0F);
    bitmap->SetOrigin({corner.x, _FlipY ? corner.y - height : corner.y});
    bitmap->SetSize(width, height);
    ParseDescriptions(element, bitmap);
    return 0;
}

void ZAMPrintSVGParser::ParseXLinkEmbedAttrib(const ZAMLightXmlElementItf& element,
                                              ZAMPrtGraphicPrimitiveElt* primitive) {
    const std::string_view reference = element.GetAttribute("xlink:href");
    if (auto* const bitmap = ZAMPrtCast<ZAMPrtBitmapImageElt>(primitive)) {
        if (const auto picture = _Pictures.Find(reference)) {
            bitmap->SetPixelImage(picture.Get());
        }
        return;
    }
    auto* const group = ZAMPrtCast<ZAMPrtGroupElt>(primitive);
    if (group != nullptr && reference.starts_with('#')) {
        ZAMRef<ZAMPrtGraphicPrimitiveElt> found;
        if (GetDefsElt(ZAMPrintSVGReference(reference.substr(1)), found) == 1) {
            group->AddChild(found.Get());
        }
    }
}
