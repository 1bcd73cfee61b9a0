// SPDX-License-Identifier: MIT
// The pattern and marker elements (SVG 1.1, 13.3 and 11.6): definitions whose content is scaled to a tile.
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGNear.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

int ZAMPrintSVGParser::ParsePatternElement(const ZAMLightXmlElementItf& element, int& definitions) {
    const auto definition = NewDefinition();
    const auto pattern = ZAMNew<ZAMPrtPatternElt>();
    if (!definition || !pattern) {
        return -1;
    }
    const ZAMPrintSVGDefinitions::OpenScope open(_DefsList, definition);
    ++definitions;
    definition->AddChild(pattern.Get());
    const ZAMPrintSVGStateScope saved(*this);
    InitDefsEltAttributes();
    ParsePresentationAttrib(element, pattern.Get());
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, pattern.Get());
    ParseTransformAttrib(element, pattern.Get());
    const Tile tile = ReadPatternTile(element);
    const ZAMMathPoint2D& corner = tile.reference;
    pattern->SetOrigin({corner.x, _FlipY ? _ImageHeight - corner.y - tile.height : corner.y});
    pattern->SetSize(tile.width, tile.height);
    const int result = ParseScopedChildren(element, kTileChildren, pattern.Get());
    ScaleContent(element, tile, *pattern);
    return result;
}

int ZAMPrintSVGParser::ParseMarkerElement(const ZAMLightXmlElementItf& element, int& definitions) {
    const auto definition = NewDefinition();
    const auto symbol = ZAMNew<ZAMPrtSymbolElt>();
    if (!definition || !symbol) {
        return -1;
    }
    const ZAMPrintSVGDefinitions::OpenScope open(_DefsList, definition);
    ++definitions;
    definition->AddChild(symbol.Get());
    const ZAMPrintSVGStateScope saved(*this);
    InitDefsEltAttributes();
    ParsePresentationAttrib(element, symbol.Get());
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, symbol.Get());
    const Tile tile = ReadMarkerTile(element);
    const int result = ParseScopedChildren(element, kTileChildren, symbol.Get());
    ScaleContent(element, tile, *symbol);
    SetMarkerFrame(element, *symbol);
    return result;
}

ZAMPrintSVGParser::Tile ZAMPrintSVGParser::ReadPatternTile(const ZAMLightXmlElementItf& element) const {
    Tile tile;
    GetXCoordinate(element, "x", tile.reference.x);
    GetYCoordinate(element, "y", tile.reference.y);
    GetHorLength(element, "width", tile.width);
    GetVertLength(element, "height", tile.height);
    return tile;
}

ZAMPrintSVGParser::Tile ZAMPrintSVGParser::ReadMarkerTile(const ZAMLightXmlElementItf& element) const {
    Tile tile;
    GetXCoordinate(element, "refX", tile.reference.x);
    GetYCoordinate(element, "refY", tile.reference.y);
    GetHorLength(element, "markerWidth", tile.width);
    GetVertLength(element, "markerHeight", tile.height);
    return tile;
}

// Scales the content's box, or the viewBox when there is one, to the tile, and moves the reference point to the origin.
// Content that fills a square of the document's height stays where it is.
void ZAMPrintSVGParser::ScaleContent(const ZAMLightXmlElementItf& element, const Tile& tile,
                                     ZAMPrtGraphicPrimitiveElt& content) const {
    const ViewBox viewBox = ReadViewBox(element, {0.0, 0.0, 0.0, 0.0});
    ZAMMathBox2D box{0.0, 0.0, 0.0, 0.0};
    if (viewBox.isGiven) {
        box = {viewBox.minX, viewBox.minY, viewBox.minX + viewBox.width, viewBox.minY + viewBox.height};
    } else {
        ZAMPrintModelBoundingBoxComputer::Compute(&content, box.xMin, box.xMax, box.yMin, box.yMax);
    }
    if (ZAMPrintSVGIsNear(box.xMin, 0.0) && ZAMPrintSVGIsNear(box.yMin, 0.0) &&
        ZAMPrintSVGIsNear(box.xMax, _ImageHeight) && ZAMPrintSVGIsNear(box.yMax, _ImageHeight)) {
        return;
    }
    double xScale = 1.0;
    double yScale = 1.0;
    if (box.Width() > 0.0 && box.Height() > 0.0 && tile.width > 0.0 && tile.height > 0.0) {
        xScale = tile.width / box.Width();
        yScale = tile.height / box.Height();
    }
    ZAMPrtTransformAttributes transform = content.GetTransformAttributes();
    AddFlip(transform);
    AddScale(transform, xScale, yScale);
    transform.AddTranslation({-tile.reference.x, -(_FlipY ? _ImageHeight - tile.reference.y : tile.reference.y)});
    AddFlip(transform);
    content.SetTransformAttributes(transform);
}

void ZAMPrintSVGParser::SetMarkerFrame(const ZAMLightXmlElementItf& element, ZAMPrtSymbolElt& symbol) const {
    const ViewBox box = ReadViewBox(element, {0.0, 0.0, 0.0, 0.0});
    if (!box.differs) {
        return;
    }
    const double bottom = _ImageHeight - (box.minY + box.height);
    if (_FlipY) {
        // Undoes the shift that a symbol with a size makes.
        ZAMPrtTransformAttributes transform = symbol.GetTransformAttributes();
        transform.AddTranslation({box.minX, bottom});
        symbol.SetTransformAttributes(transform);
    }
    symbol.SetOrigin({box.minX, _FlipY ? _ImageHeight - box.minY - box.height : box.minY});
    symbol.SetSize(box.width, box.height);
}

// Of a fill that refers to a pattern only the pattern's bitmaps count, and of these the last.
void ZAMPrintSVGParser::ReadFillReference(std::string_view id) {
    const ZAMPrintSVGDefinitions::Found found = _DefsList.Find(ZAMPrintSVGReference(id));
    if (found.element == nullptr) {
        return;
    }
    if (IsStateOf(*found.definition)) {
        CompleteShared(found);
    }
    if (const auto* pattern = ZAMPrtCast<ZAMPrtPatternElt>(found.element)) {
        _FillAttributes.SetFillStyle(ZAMPrtFillStyle::Pattern);
        SetFillPattern(*pattern);
    }
}

void ZAMPrintSVGParser::SetFillPattern(const ZAMPrtPatternElt& pattern) {
    const ZAMPrtBitmapImageElt* const bitmap = _PatternBitmaps.FindLast(pattern);
    if (bitmap == nullptr) {
        return;
    }
    const ZAMMathPoint2D& tile = pattern.GetOrigin();
    const ZAMMathVector2D& step = pattern.GetSize();
    const ZAMMathPoint2D& picture = bitmap->GetOrigin();
    _FillAttributes.SetPattern(bitmap->GetPixelImage(), bitmap->GetSize(), step);
    _FillAttributes.SetPatternRefPoint({tile.x + picture.x, _FlipY ? picture.y - tile.y - step.y : tile.y + picture.y});
}
