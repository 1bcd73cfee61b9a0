// SPDX-License-Identifier: MIT
// The svg element (SVG 1.1, 5.1): the root, which becomes the image element, and the nested one, which becomes a group.
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGViewBoxParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGNear.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

int ZAMPrintSVGParser::ParseSVGElement(const ZAMLightXmlElementItf& element, ZAMPrtModel* model) {
    if (model == nullptr) {
        return -1;
    }
    _Model = model;
    if (BeginImage(*model) != 1) {
        return -1;
    }
    _DefsList = {};
    static_cast<ZAMPrintSVGAttributeState&>(*this) = {};
    ParsePresentationAttrib(element, _Image.Get());
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, _Image.Get());
    ReadImageFrame(element);
    int definitions = 0; // the root's live as long as the parser
    const int result = ParseChildren(element, kAllChildren, _Image.Get(), definitions);
    FitImageToContent();
    return result;
}

int ZAMPrintSVGParser::BeginImage(ZAMPrtModel& model) {
    _Image = ZAMNew<ZAMPrtImageElt>();
    if (!_Image) {
        return -1;
    }
    model.AddImage(_Image.Get());
    return GetColourTable() != nullptr ? 1 : -1;
}

// The viewBox sets the origin and the size of the image. It never scales it: the scale is the size divided by itself,
// which is 1 unless the size is 0 or not finite.
void ZAMPrintSVGParser::ReadImageFrame(const ZAMLightXmlElementItf& element) {
    GetLength(element, "width", _ImageWidth);
    GetLength(element, "height", _ImageHeight);
    _Image->SetSize(_ImageWidth, _ImageHeight);
    constexpr int kUserUnits = 1;
    _Image->SetSizeUnit(kUserUnits);

    const std::string_view viewBox = element.GetAttribute("viewBox");
    if (viewBox.empty()) {
        if (_FlipToOrigin) {
            _Image->SetOrigin({0.0, -_ImageHeight});
            _ImageHeight = 0.0;
        }
        return;
    }
    double minX = 0.0;
    double minY = 0.0;
    ZAMPrintSVGViewBoxParser::ParseViewBoxString(viewBox, minX, minY, _ImageWidth, _ImageHeight);
    if (_FlipToOrigin) {
        _Image->SetOrigin({minX, -(_ImageHeight + minY)});
    } else {
        _Image->SetOrigin({minX, _FlipY ? -minY : minY});
    }
    _Image->SetSize(_ImageWidth, _ImageHeight);
    const double heightRatio = _ImageHeight / _ImageHeight;
    const double widthRatio = _ImageWidth / _ImageWidth;
    const double scale = heightRatio < widthRatio ? heightRatio : widthRatio;
    _Image->SetMatrix({scale, 0.0, 0.0, scale});
    if (_FlipToOrigin) {
        _ImageHeight = 0.0;
    }
}

// A document that says nothing of its size is as large as what it holds.
void ZAMPrintSVGParser::FitImageToContent() {
    if (!(_ImageWidth <= 0.0 && _ImageHeight <= 0.0)) {
        return;
    }
    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
    ZAMPrintModelBoundingBoxComputer::Compute(_Image.Get(), xMin, xMax, yMin, yMax);
    _Image->SetOrigin({xMin, yMin});
    _Image->SetSize(xMax - xMin, yMax - yMin);
}

int ZAMPrintSVGParser::ParseSVGElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group) {
    if (group == nullptr) {
        return -1;
    }
    const ZAMPrintSVGStateScope saved(*this);
    ParsePresentationAttrib(element, group);
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, group);
    PlaceNestedSvg(element, *group);
    return ParseScopedChildren(element, kAllChildren, group);
}

// Values that are not there, or are no numbers, are those of `preset`.
ZAMPrintSVGParser::ViewBox ZAMPrintSVGParser::ReadViewBox(const ZAMLightXmlElementItf& element, ViewBox preset) const {
    ViewBox box = preset;
    box.isGiven = ZAMPrintSVGViewBoxParser::ParseViewBoxString(element.GetAttribute("viewBox"), box.minX, box.minY,
                                                               box.width, box.height) == 1;
    box.differs =
        box.isGiven && !(ZAMPrintSVGIsNear(box.minX, 0.0) && ZAMPrintSVGIsNear(box.minY, 0.0) &&
                         ZAMPrintSVGIsNear(box.width, _ImageWidth) && ZAMPrintSVGIsNear(box.height, _ImageHeight));
    return box;
}

void ZAMPrintSVGParser::AddFlip(ZAMPrtTransformAttributes& transform) const {
    if (_FlipY) {
        transform.AddTranslation({0.0, _ImageHeight});
        transform.AddScaleY(-1.0);
    }
}

// Factors within 1 % of 1 are not applied.
void ZAMPrintSVGParser::AddScale(ZAMPrtTransformAttributes& transform, double xScale, double yScale) {
    if (!ZAMPrintSVGIsNear(xScale, 1.0)) {
        transform.AddScaleX(xScale);
    }
    if (!ZAMPrintSVGIsNear(yScale, 1.0)) {
        transform.AddScaleY(yScale);
    }
}

// Moves and scales in the document's frame; y is the coordinate as it was read, flipped where y is flipped.
void ZAMPrintSVGParser::AddPlacement(ZAMPrtTransformAttributes& transform, Placement placement) const {
    AddFlip(transform);
    if (_FlipY) {
        placement.y = _ImageHeight - placement.y;
    }
    if (!ZAMPrintSVGIsNear(placement.x, 0.0) || !ZAMPrintSVGIsNear(placement.y, 0.0)) {
        transform.AddTranslation({placement.x, placement.y});
    }
    AddScale(transform, placement.xScale, placement.yScale);
    AddFlip(transform);
}

// The group is still empty, so that without a viewBox there is no content to scale.
void ZAMPrintSVGParser::PlaceNestedSvg(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt& group) const {
    Placement placement{0.0, 0.0};
    double width = 0.0;
    double height = 0.0;
    GetXCoordinate(element, "x", placement.x);
    GetYCoordinate(element, "y", placement.y);
    GetHorLength(element, "width", width);
    GetVertLength(element, "height", height);
    const ViewBox viewBox = ReadViewBox(element, {0.0, 0.0, _ImageWidth, _ImageHeight});
    ZAMPrtTransformAttributes transform = group.GetTransformAttributes();

    // y is held against the height also where it is not flipped.
    if (!ZAMPrintSVGIsNear(placement.x, 0.0) || !ZAMPrintSVGIsNear(placement.y, _ImageHeight) || width > 0.0 ||
        height > 0.0) {
        // The box is measured by its edges, rounding included.
        const double contentWidth = viewBox.minX + viewBox.width - viewBox.minX;
        const double contentHeight = viewBox.minY + viewBox.height - viewBox.minY;
        if (viewBox.differs && contentWidth > 0.0 && contentHeight > 0.0 && width > 0.0 && height > 0.0) {
            placement.xScale = width / contentWidth;
            placement.yScale = height / contentHeight;
        }
        AddPlacement(transform, placement);
    }
    if (viewBox.differs) {
        AddFlip(transform);
        transform.AddTranslation({-viewBox.minX, -viewBox.minY});
        AddFlip(transform);
    }
    group.SetTransformAttributes(transform);
}
