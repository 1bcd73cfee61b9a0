// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRawColldouble.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGCoordinateLists.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGMarkers.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathItems.h"

#include <string_view>
#include <vector>

/// Builds the pieces of one path (SVG 1.1, 8.3) into a group: polylines for straight runs, poly-curves and arcs, and
/// for a filled path one closed figure that holds them in its regions.
class ZAMPrintSVGPathParser : public ZAMPrintSVGCoordinateLists<ZAMPrintSVGMinus::StartsToken> {
public:
    /// Copies of the paint that the pieces get. Always 1.
    int SetPaintAttributes(ZAMPrtDrawStyle drawStyle, const ZAMPrtStrokeAttributes& stroke,
                           const ZAMPrtFillAttributes& fill);

    /// Takes the markers that the vertices get; each is held until the next call. Always 1.
    int SetMarkerAttributes(ZAMPrintSVGMarkers markers);

    /// Adds the pieces of `data` to the group, and the markers after them. 1 done; -1 for a null group or a text
    /// without a command.
    int ParsePathString(ZAMPrtGroupElt* group, std::string_view data);

    /// Adds to each pair the point that it is relative to: the current point, then the last pair of the segment before.
    /// A trailing odd value stays. `pointsPerSegment` is at least 1.
    void ModifyRelativePointListToAbsolutePointList(ZAMRawColldouble& list, const ZAMMathPoint2D& current,
                                                    std::size_t pointsPerSegment) const;
    static void ModifyRelativeXCoordListToAbsoluteXCoordList(ZAMRawColldouble& list, double currentX);
    void ModifyRelativeYCoordListToAbsoluteYCoordList(ZAMRawColldouble& list, double currentY) const;

private:
    using Item = ZAMPrintSVGPathItems::Item;

    void ParseItem(const Item& item);
    void ParseMoveTo(const Item& item);
    void ParseLineTo(const Item& item);
    void ParseHorizontalTo(const Item& item);
    void ParseVerticalTo(const Item& item);
    void ParseClosePath(const Item& item);
    void ParseCubicTo(const Item& item);
    void ParseSmoothCubicTo(const Item& item);
    void ParseQuadraticTo(const Item& item);
    void ParseSmoothQuadraticTo(const Item& item);
    void ParseArcTo(const Item& item);

    struct Command {
        char letter;
        void (ZAMPrintSVGPathParser::*parse)(const Item& item);
    };
    static const Command kCommands[];

    const ZAMRawColldouble& ReadPoints(const Item& item, std::size_t pointsPerSegment);
    void AddVertex(const ZAMMathPoint2D& point);
    void AddMarkerVertex(const ZAMMathPoint2D& point);
    void ForgetControls();
    void AddArc(const ZAMMathPoint2D& to, double xRadius, double yRadius, double rotation, bool largeArc, bool sweep);
    [[nodiscard]] ZAMMathPoint2D Reflected(const ZAMMathPoint2D& control) const;

    void OpenPolyline() { _Run.clear(); }
    void AddPointToPolyline(const ZAMMathPoint2D& point) { _Run.push_back(point); }
    void ClosePolyline();
    void ReopenPolyline();
    void BeginFigure();
    void NewClosedFigureRegion();
    void DissolveFigure();

    template <class Curve> void AddCurve(std::size_t pointsPerSegment);
    void AddPiece(ZAMPrtGraphicPrimitiveElt* piece);

    ZAMPrtDrawStyle _DrawStyle = ZAMPrtDrawStyle::Fill;
    ZAMPrtStrokeAttributes _StrokeAttributes;
    ZAMPrtFillAttributes _FillAttributes;

    ZAMPrtGroupElt* _Group = nullptr; // the target of the parse at hand
    ZAMRef<ZAMPrtClosedFigureElt> _Figure;
    ZAMRef<ZAMPrtClosedFigureRegionElt> _Region;

    std::vector<ZAMMathPoint2D> _Run;   // the straight run that is open
    std::vector<ZAMMathPoint2D> _Curve; // the points of the curve at hand; kept for its memory
    ZAMRawColldouble _Values;           // the arguments of the command at hand; kept for its memory

    ZAMMathPoint2D _Current;
    ZAMMathPoint2D _SubpathStart;
    ZAMMathPoint2D _LastCubicControl;
    ZAMMathPoint2D _LastQuadraticControl;
    ZAMPrintSVGMarkers _Markers;
    ZAMRawColldouble _MarkerVertices; // stays empty without markers
    std::size_t _VertexCount = 0;     // of the vertices that may bear markers
};
