// SPDX-License-Identifier: MIT
// The basic shapes (SVG 1.1, 9) and the path element (8). Values that are missing or unreadable are 0, y coordinates
// the flipped 0; sizes are handed on unchecked.
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPointsParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <concepts>
#include <type_traits>

namespace {

template <class Shape>
constexpr bool kBearsMarkers = std::same_as<Shape, ZAMPrtLineElt> || std::same_as<Shape, ZAMPrtPolylineElt> ||
                               std::same_as<Shape, ZAMPrtPolygonElt>;

} // namespace

// The order in which shapes read their attributes; style comes last and wins.
void ZAMPrintSVGParser::ParseShapeAttrib(const ZAMLightXmlElementItf& element, Markers markers) {
    ParseGraphicsAttrib(element);
    ParseOpacityAttrib(element);
    ParseColorAttrib(element);
    ParsePaintAttrib(element);
    if (markers == Markers::Read) {
        ParseMarkerAttrib(element);
    }
    ParseStyleAttrib(element);
}

template <class Shape, class ReadGeometry>
int ZAMPrintSVGParser::ParseShape(const ZAMLightXmlElementItf& element, Shape* shape, ReadGeometry readGeometry) {
    if (shape == nullptr) {
        return -1;
    }
    const ZAMPrintSVGStateScope saved(*this,
                                      MayChangeState(element) ? ZAMPrintSVGSaved::Paint : ZAMPrintSVGSaved::Nothing);
    ParseShapeAttrib(element, kBearsMarkers<Shape> ? Markers::Read : Markers::None);
    shape->SetStrokeAttributes(_StrokeAttributes);
    if constexpr (std::is_base_of_v<ZAMPrtPaintedElt, Shape>) {
        shape->SetDrawStyle(_DrawStyle);
        shape->SetFillAttributes(_FillAttributes);
    }
    ParseCoreAttrib(element, shape);
    ParseTransformAttrib(element, shape);
    readGeometry();
    ParseDescriptions(element, shape);
    return 0;
}

// Every rectangle has square corners: its radii reach nothing.
int ZAMPrintSVGParser::ParseRectElement(const ZAMLightXmlElementItf& element, ZAMPrtRectangleElt* rect) {
    return ParseShape(element, rect, [&] {
        ZAMMathPoint2D corner;
        double width = 0.0;
        double height = 0.0;
        GetXCoordinate(element, "x", corner.x);
        GetYCoordinate(element, "y", corner.y);
        GetHorLength(element, "width", width);
        GetVertLength(element, "height", height);
        rect->SetCorners(corner, {corner.x + width, _FlipY ? corner.y - height : corner.y + height});
    });
}

int ZAMPrintSVGParser::ParseCircleElement(const ZAMLightXmlElementItf& element, ZAMPrtCircleElt* circle) {
    return ParseShape(element, circle, [&] {
        ZAMMathPoint2D center;
        double radius = 0.0;
        GetXCoordinate(element, "cx", center.x);
        GetYCoordinate(element, "cy", center.y);
        GetLength(element, "r", radius);
        circle->SetCenter(center);
        circle->SetRadius(radius);
    });
}

int ZAMPrintSVGParser::ParseEllipseElement(const ZAMLightXmlElementItf& element, ZAMPrtEllipseElt* ellipse) {
    return ParseShape(element, ellipse, [&] {
        ZAMMathPoint2D center;
        double xRadius = 0.0;
        double yRadius = 0.0;
        GetXCoordinate(element, "cx", center.x);
        GetYCoordinate(element, "cy", center.y);
        GetHorLength(element, "rx", xRadius);
        GetVertLength(element, "ry", yRadius);
        ellipse->SetCenter(center);
        ellipse->SetXRadius(xRadius);
        ellipse->SetYRadius(yRadius);
    });
}

int ZAMPrintSVGParser::ParseLineElement(const ZAMLightXmlElementItf& element, ZAMPrtLineElt* line,
                                        ZAMPrtGraphicPrimitiveElt* markerParent) {
    return ParseShape(element, line, [&] {
        ZAMMathPoint2D start;
        ZAMMathPoint2D end;
        GetXCoordinate(element, "x1", start.x);
        GetYCoordinate(element, "y1", start.y);
        GetXCoordinate(element, "x2", end.x);
        GetYCoordinate(element, "y2", end.y);
        line->SetStartPoint(start);
        line->SetEndPoint(end);
        if (markerParent != nullptr) {
            const ZAMPrintSVGMarkers markers = FindMarkers();
            AddLineMarker(markers.start, start, markerParent);
            AddLineMarker(markers.end, end, markerParent);
        }
    });
}

template <class Shape>
int ZAMPrintSVGParser::ParsePoints(const ZAMLightXmlElementItf& element, Shape* shape,
                                   ZAMPrtGraphicPrimitiveElt* markerParent) {
    return ParseShape(element, shape, [&] {
        ZAMPrintSVGPointsParser parser;
        parser.SetImageSize(_ImageWidth, _ImageHeight);
        parser.SetMarkerAttributes(FindMarkers());
        parser.ParsePointsString(shape, element.GetAttribute("points"), markerParent);
    });
}

int ZAMPrintSVGParser::ParsePolylineElement(const ZAMLightXmlElementItf& element, ZAMPrtPolylineElt* polyline,
                                            ZAMPrtGraphicPrimitiveElt* markerParent) {
    return ParsePoints(element, polyline, markerParent);
}

int ZAMPrintSVGParser::ParsePolygonElement(const ZAMLightXmlElementItf& element, ZAMPrtPolygonElt* polygon,
                                           ZAMPrtGraphicPrimitiveElt* markerParent) {
    return ParsePoints(element, polygon, markerParent);
}

// The group itself bears no paint: it goes to the pieces.
int ZAMPrintSVGParser::ParsePathElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group) {
    if (group == nullptr) {
        return -1;
    }
    const ZAMPrintSVGStateScope saved(*this,
                                      MayChangeState(element) ? ZAMPrintSVGSaved::Paint : ZAMPrintSVGSaved::Nothing);
    ParseShapeAttrib(element, Markers::Read);
    ParseCoreAttrib(element, group);
    ParseTransformAttrib(element, group);
    group->SetContinuousOutline(true);
    _PathParser.SetImageSize(_ImageWidth, _ImageHeight);
    _PathParser.SetPaintAttributes(_DrawStyle, _StrokeAttributes, _FillAttributes);
    _PathParser.SetMarkerAttributes(FindMarkers());
    _PathParser.ParsePathString(group, element.GetAttribute("d"));
    ParseDescriptions(element, group);
    return 0;
}
