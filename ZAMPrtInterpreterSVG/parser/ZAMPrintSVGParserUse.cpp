// SPDX-License-Identifier: MIT
// The use element (SVG 1.1, 5.6).
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGNear.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

int ZAMPrintSVGParser::ParseUseElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group) {
    if (group == nullptr) {
        return -1;
    }
    const ZAMPrintSVGStateScope saved(*this);
    ParsePresentationAttrib(element, group);
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, group);
    ParseXLinkEmbedAttrib(element, group);
    ParseTransformAttrib(element, group);
    PlaceUse(element, *group);
    ParseDescriptions(element, group);
    return 0;
}

// A width and a height scale the content's box to that size.
void ZAMPrintSVGParser::PlaceUse(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt& group) const {
    Placement placement{0.0, 0.0};
    double width = 0.0;
    double height = 0.0;
    GetXCoordinate(element, "x", placement.x);
    GetYCoordinate(element, "y", placement.y);
    GetHorLength(element, "width", width);
    GetVertLength(element, "height", height);
    // y is held against the height also where it is not flipped.
    if (ZAMPrintSVGIsNear(placement.x, 0.0) && ZAMPrintSVGIsNear(placement.y, _ImageHeight) && width <= 0.0 &&
        height <= 0.0) {
        return;
    }
    if (width > 0.0 && height > 0.0) {
        ZAMMathBox2D box{0.0, 0.0, 0.0, 0.0};
        ZAMPrintModelBoundingBoxComputer::Compute(&group, box.xMin, box.xMax, box.yMin, box.yMax);
        if (box.Width() > 0.0 && box.Height() > 0.0) {
            placement.xScale = width / box.Width();
            placement.yScale = height / box.Height();
        }
    }
    ZAMPrtTransformAttributes transform = group.GetTransformAttributes();
    AddPlacement(transform, placement);
    group.SetTransformAttributes(transform);
}
