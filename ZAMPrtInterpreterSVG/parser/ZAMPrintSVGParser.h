// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "ZAMPrtInterpreterSVG/defs/ZAMPrintSVGDefinitions.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGLengthReader.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGMarkers.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGAttributeState.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGFontFinder.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGPatternBitmaps.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGPictures.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// Walks one root `svg` element and fills a print model with what it finds. A parser serves for one root.
///
/// Handlers of elements give 0 when done and -1 for a null target. The operations that offer a child element to the
/// handlers of one kind give 1 when the name is not theirs, so that the next operation is tried. Readers of values give
/// 1 when a value was stored. Whatever is not understood is skipped in silence and leaves the state as it was.
class ZAMPrintSVGParser : private ZAMPrintSVGAttributeState {
public:
    ZAMPrintSVGParser() = default;
    ZAMPrintSVGParser(const ZAMPrintSVGParser&) = delete;
    ZAMPrintSVGParser& operator=(const ZAMPrintSVGParser&) = delete;
    virtual ~ZAMPrintSVGParser();

    /// The path of the document's file, for relative references. Always 1.
    int SetCurrentPath(const ZAMUnicodeString& path) { return _Pictures.SetCurrentPath(path); }

    /// The document's root: adds an image element to the model. -1 when the model is null or memory is out, else what
    /// the last child gave.
    int ParseSVGElement(const ZAMLightXmlElementItf& element, ZAMPrtModel* model);

    // What the parser knows, told from the tables that it works by.

    /// Whether elements of that name, letter case aside, are read anywhere.
    [[nodiscard]] static bool IsElement(std::string_view name);
    [[nodiscard]] static std::vector<std::string_view> GetElementNames();
    /// A presentation property and the forms in which it is heard.
    struct Property {
        std::string_view name;
        bool asAttribute;
        bool inStyle;
    };
    /// By name, letter case aside, as in style; an attribute has the name exactly. Nothing for a name that is not
    /// known.
    [[nodiscard]] static std::optional<Property> FindProperty(std::string_view name);
    [[nodiscard]] static std::vector<Property> GetProperties();

    /// Turn the document's downward y axis into the model's upward one.
    bool _FlipY = true;
    /// Put the document's lower left corner at the origin instead of flipping about the document's height.
    bool _FlipToOrigin = false;

private:
    // Structure: svg, g, a and the dispatch of children. Whoever registers definitions adds their number to the counter
    // that it is handed.
    int ParseSVGElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group);
    int ParseGroupElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group);
    int ParseLinkElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group);
    int ParseChildEltAsDescriptionElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                          ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    int ParseChildEltAsGraphicPrimitiveElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                               ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    int ParseChildEltAsStructureElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                        ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    int ParseChildEltAsMarkerElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                     ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    int ParseChildEltAsHyperlinkElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                        ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    int ParseChildEltAsPatternElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                      ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    using ChildOperation = int (ZAMPrintSVGParser::*)(const ZAMLightXmlElementItf&, std::string_view,
                                                      ZAMPrtGraphicPrimitiveElt*, int&);
    static const ChildOperation kAllChildren[6];
    static const ChildOperation kDefsChildren[5];
    static const ChildOperation kTileChildren[5];
    int ParseChildren(const ZAMLightXmlElementItf& element, std::span<const ChildOperation> operations,
                      ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    int ParseScopedChildren(const ZAMLightXmlElementItf& element, std::span<const ChildOperation> operations,
                            ZAMPrtGraphicPrimitiveElt* parent);
    static int AddChildElt(ZAMPrtGraphicPrimitiveElt* parent, ZAMPrtGraphicPrimitiveElt* child);
    void ParseDescriptions(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* target);

    struct ElementRow {
        std::string_view name;
        int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent,
                                        int& definitions);
    };
    using ElementRows = std::span<const ElementRow>;
    using P = ZAMPrintSVGParser; // as the tables call it
    static const ElementRow kDescriptionRows[2];
    static const ElementRow kGraphicPrimitiveRows[9];
    static const ElementRow kStructureRows[5];
    static const ElementRow kMarkerRows[1];
    static const ElementRow kHyperlinkRows[1];
    static const ElementRow kPatternRows[1];
    template <class Visit> static void VisitElementRows(Visit visit);
    int ParseChildAs(ElementRows rows, const ZAMLightXmlElementItf& element, std::string_view name,
                     ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    // The ways in which handlers are called from a row.
    template <int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, ZAMPrtGraphicPrimitiveElt*)>
    int ParseOnto(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    template <class Element, int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, Element*)>
    int ParseNew(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    template <class Element,
              int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, Element*, ZAMPrtGraphicPrimitiveElt*)>
    int ParseNewIn(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent, int& definitions);
    template <int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, int&)>
    int ParseDefinition(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent, int& definitions);

    // Definitions and what refers to them.
    int ParseDefsElement(const ZAMLightXmlElementItf& element, int& definitions);
    int ParseSymbolElement(const ZAMLightXmlElementItf& element, int& definitions);
    int ParsePatternElement(const ZAMLightXmlElementItf& element, int& definitions);
    int ParseMarkerElement(const ZAMLightXmlElementItf& element, int& definitions);
    int ParseUseElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group);
    void PlaceUse(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt& group) const;
    [[nodiscard]] ZAMRef<ZAMPrtDefsElt> NewDefinition() const;
    int InitDefsEltAttributes();
    int ModifyDefsEltAttributes(ZAMPrtGraphicPrimitiveElt* element);
    [[nodiscard]] bool IsStateOf(const ZAMPrtDefsElt& definition) const;
    int GetDefsElt(const ZAMPrintSVGReference& id, ZAMRef<ZAMPrtGraphicPrimitiveElt>& result);
    int GetEltFromURI(const ZAMPrintSVGReference* id, ZAMRef<ZAMPrtGraphicPrimitiveElt>& result);
    void CompleteShared(const ZAMPrintSVGDefinitions::Found& found);
    ZAMPrintSVGMarkers FindMarkers();
    void AddLineMarker(const ZAMRef<ZAMPrtGraphicPrimitiveElt>& marker, const ZAMMathPoint2D& vertex,
                       ZAMPrtGraphicPrimitiveElt* parent) const;

    // The tile of a pattern, the box of a marker: the two are placed alike.
    struct Tile {
        ZAMMathPoint2D reference;
        double width = 0.0;
        double height = 0.0;
    };
    [[nodiscard]] Tile ReadPatternTile(const ZAMLightXmlElementItf& element) const;
    [[nodiscard]] Tile ReadMarkerTile(const ZAMLightXmlElementItf& element) const;
    void ScaleContent(const ZAMLightXmlElementItf& element, const Tile& tile, ZAMPrtGraphicPrimitiveElt& content) const;
    void SetMarkerFrame(const ZAMLightXmlElementItf& element, ZAMPrtSymbolElt& symbol) const;
    void SetFillPattern(const ZAMPrtPatternElt& pattern);

    // Pictures.
    int ParseBitmapImageElement(const ZAMLightXmlElementItf& element, ZAMPrtBitmapImageElt* bitmap);
    void ParseXLinkEmbedAttrib(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* primitive);

    // The root and the nested svg.
    int BeginImage(ZAMPrtModel& model);
    void ReadImageFrame(const ZAMLightXmlElementItf& element);
    void FitImageToContent();
    struct ViewBox {
        double minX;
        double minY;
        double width;
        double height;
        bool isGiven = false;
        bool differs = false; ///< it was given and is not the document's own box
    };
    [[nodiscard]] ViewBox ReadViewBox(const ZAMLightXmlElementItf& element, ViewBox preset) const;
    struct Placement {
        double x;
        double y;
        double xScale = 1.0;
        double yScale = 1.0;
    };
    void AddPlacement(ZAMPrtTransformAttributes& transform, Placement placement) const;
    static void AddScale(ZAMPrtTransformAttributes& transform, double xScale, double yScale);
    void PlaceNestedSvg(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt& group) const;
    void AddFlip(ZAMPrtTransformAttributes& transform) const;

    // Shapes and paths.
    int ParseRectElement(const ZAMLightXmlElementItf& element, ZAMPrtRectangleElt* rect);
    int ParseCircleElement(const ZAMLightXmlElementItf& element, ZAMPrtCircleElt* circle);
    int ParseEllipseElement(const ZAMLightXmlElementItf& element, ZAMPrtEllipseElt* ellipse);
    int ParseLineElement(const ZAMLightXmlElementItf& element, ZAMPrtLineElt* line,
                         ZAMPrtGraphicPrimitiveElt* markerParent);
    int ParsePolylineElement(const ZAMLightXmlElementItf& element, ZAMPrtPolylineElt* polyline,
                             ZAMPrtGraphicPrimitiveElt* markerParent);
    int ParsePolygonElement(const ZAMLightXmlElementItf& element, ZAMPrtPolygonElt* polygon,
                            ZAMPrtGraphicPrimitiveElt* markerParent);
    int ParsePathElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group);
    template <class Shape, class ReadGeometry>
    int ParseShape(const ZAMLightXmlElementItf& element, Shape* shape, ReadGeometry readGeometry);
    template <class Shape>
    int ParsePoints(const ZAMLightXmlElementItf& element, Shape* shape, ZAMPrtGraphicPrimitiveElt* markerParent);
    enum class Markers : bool { None, Read };
    void ParseShapeAttrib(const ZAMLightXmlElementItf& element, Markers markers = Markers::None);

    // Text, titles and descriptions.
    int ParseTextElement(const ZAMLightXmlElementItf& element, ZAMPrtTextElt* text);
    void ReadTextPosition(const ZAMLightXmlElementItf& element, ZAMPrtTextElt& text);
    int ParseDescElement(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* target);
    int ParseTitleElement(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* target);

    // Attributes.
    void ParsePresentationAttrib(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* primitive);
    void ParseOpacityAttrib(const ZAMLightXmlElementItf& element);
    void ParseColorAttrib(const ZAMLightXmlElementItf& element);
    void ParseGraphicsAttrib(const ZAMLightXmlElementItf& element);
    void ParsePaintAttrib(const ZAMLightXmlElementItf& element);
    void ParseTextAttrib(const ZAMLightXmlElementItf& element);
    void ParseTextContentAttrib(const ZAMLightXmlElementItf& element);
    void ParseFontAttrib(const ZAMLightXmlElementItf& element);
    void ParseMarkerAttrib(const ZAMLightXmlElementItf& element);
    void ParseStyleAttrib(const ZAMLightXmlElementItf& element);
    static void ParseCoreAttrib(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* primitive);
    void ParseTransformAttrib(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* primitive) const;
    static void ParseXLinkReplaceAttrib(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* primitive);

    // Properties, as attributes and in style.
    enum class ReadingOperation : std::uint8_t { Opacity, Color, Graphics, Paint, Text, TextContent, Font, Marker };
    // What the properties of one reading operation, or of one style, have to say together; applied at its end.
    struct PendingPaint {
        float strokeOpacity = 1.0F;
        float fillOpacity = 1.0F;
        int strokeFlag = -1; ///< 1 turns the stroke on, 0 off, -1 says nothing
        int fillFlag = -1;
    };
    using PropertyReader = void (ZAMPrintSVGParser::*)(std::string_view value, PendingPaint& pending);
    struct PropertyRow {
        ZAMLightXmlName name;
        ReadingOperation operation;
        PropertyReader asAttribute; ///< null where the attribute has no effect
        PropertyReader inStyle;     ///< null where the declaration has no effect
    };
    static const PropertyRow kProperties[];
    static constexpr std::uint64_t AttributeBits(ReadingOperation operation);
    template <ReadingOperation operation> void ReadAttributes(const ZAMLightXmlElementItf& element);
    // Whether the element has a property or a style: without one there is nothing to save.
    static bool MayChangeState(const ZAMLightXmlElementItf& element);
    void ReadDeclaration(std::string_view declaration, PendingPaint& pending);
    void Apply(const PendingPaint& pending);

    void ReadOpacity(std::string_view value, PendingPaint& pending);
    void ReadStrokeOpacity(std::string_view value, PendingPaint& pending);
    void ReadFillOpacity(std::string_view value, PendingPaint& pending);
    void ReadColor(std::string_view value, PendingPaint& pending);
    void ReadDisplay(std::string_view value, PendingPaint& pending);
    void ReadVisibility(std::string_view value, PendingPaint& pending);
    void ReadFillAttribute(std::string_view value, PendingPaint& pending);
    void ReadFill(std::string_view value, PendingPaint& pending);
    void ReadFillRule(std::string_view value, PendingPaint& pending);
    void ReadStroke(std::string_view value, PendingPaint& pending);
    void ReadDashArray(std::string_view value, PendingPaint& pending);
    void ReadLineCap(std::string_view value, PendingPaint& pending);
    void ReadLineJoin(std::string_view value, PendingPaint& pending);
    void ReadStrokeWidth(std::string_view value, PendingPaint& pending);
    void ReadWritingMode(std::string_view value, PendingPaint& pending);
    void ReadLetterSpacing(std::string_view value, PendingPaint& pending);
    void ReadTextAnchor(std::string_view value, PendingPaint& pending);
    void ReadFontFamily(std::string_view value, PendingPaint& pending);
    void ReadFontSize(std::string_view value, PendingPaint& pending);
    void ReadFontWeight(std::string_view value, PendingPaint& pending);
    void ReadMarker(std::string_view value, PendingPaint& pending);
    void ReadMarkerStart(std::string_view value, PendingPaint& pending);
    void ReadMarkerMid(std::string_view value, PendingPaint& pending);
    void ReadMarkerEnd(std::string_view value, PendingPaint& pending);
    void ReadFillPaint(ZAMUnicodeString& text, PendingPaint& pending);
    void ReadFillReference(std::string_view id);

    int GetColor(ZAMUnicodeString& text, unsigned int& index);
    ZAMPrtColourTable* GetColourTable(); // of the image, made when it is missing; null when memory is out

    // Lengths and coordinates, of a text and of an element's attribute.
    int GetLength(std::string_view text, double& result) const;
    int GetHorLength(std::string_view text, double& result) const;
    int GetVertLength(std::string_view text, double& result) const;
    int GetLength(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name, double& result) const;
    int GetCoordinate(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name, double& result) const;
    int GetHorLength(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name, double& result) const;
    int GetVertLength(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name, double& result) const;
    int GetXCoordinate(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name, double& result) const;
    int GetYCoordinate(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name, double& result) const;
    [[nodiscard]] ZAMPrintSVGLengthReader Lengths() const { return {_ImageWidth, _ImageHeight, _FlipY}; }

    ZAMPrtModel* _Model = nullptr;
    ZAMRef<ZAMPrtImageElt> _Image;
    double _ImageWidth = 0.0;
    double _ImageHeight = 0.0; ///< also what y coordinates are flipped about
    ZAMPrintSVGDefinitions _DefsList;
    ZAMPrintSVGPatternBitmaps _PatternBitmaps;
    ZAMPrintSVGPictures _Pictures;
    ZAMPrintSVGFontFinder _Fonts;
    ZAMPrintSVGPathParser _PathParser; // one for all paths: it keeps its memory
};
