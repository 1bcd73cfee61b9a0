// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"

#include <utility>

int ZAMPrintSVGPathParser::SetPaintAttributes(ZAMPrtDrawStyle drawStyle, const ZAMPrtStrokeAttributes& stroke,
                                              const ZAMPrtFillAttributes& fill) {
    _DrawStyle = drawStyle;
    _StrokeAttributes = stroke;
    _FillAttributes = fill;
    return 1;
}

int ZAMPrintSVGPathParser::SetMarkerAttributes(ZAMPrintSVGMarkers markers) {
    _Markers = std::move(markers);
    return 1;
}

int ZAMPrintSVGPathParser::ParsePathString(ZAMPrtGroupElt* group, std::string_view data) {
    if (group == nullptr || !ZAMPrintSVGPathItems::HoldsItem(data)) {
        return -1;
    }
    _Group = group;
    BeginFigure();
    _MarkerVertices.Clear();
    _VertexCount = 0;
    _Current = {0.0, _ImageHeight};
    _SubpathStart = _Current;
    ForgetControls();
    OpenPolyline();

    ZAMPrintSVGPathItems items(data);
    const std::size_t most = ZAMAllocationBudget::GetMostPathCommands();
    std::size_t commands = 0;
    for (Item item{}; items.Next(item);) {
        ParseItem(item);
        if (++commands > most || _VertexCount > most) {
            ZAMAllocationBudget::EndLongPath();
            break;
        }
    }

    ClosePolyline();
    _Markers.AddMarkers(_MarkerVertices, _FlipY, _ImageHeight, _Group);
    DissolveFigure();
    return 1;
}

const ZAMPrintSVGPathParser::Command ZAMPrintSVGPathParser::kCommands[] = {
    {'M', &ZAMPrintSVGPathParser::ParseMoveTo},
    {'L', &ZAMPrintSVGPathParser::ParseLineTo},
    {'Z', &ZAMPrintSVGPathParser::ParseClosePath},
    {'C', &ZAMPrintSVGPathParser::ParseCubicTo},
    {'S', &ZAMPrintSVGPathParser::ParseSmoothCubicTo},
    {'H', &ZAMPrintSVGPathParser::ParseHorizontalTo},
    {'V', &ZAMPrintSVGPathParser::ParseVerticalTo},
    {'Q', &ZAMPrintSVGPathParser::ParseQuadraticTo},
    {'T', &ZAMPrintSVGPathParser::ParseSmoothQuadraticTo},
    {'A', &ZAMPrintSVGPathParser::ParseArcTo},
};

void ZAMPrintSVGPathParser::ParseItem(const Item& item) {
    for (const Command& command : kCommands) {
        if (command.letter == item.command) {
            (this->*command.parse)(item);
            return;
        }
    }
}

const ZAMRawColldouble& ZAMPrintSVGPathParser::ReadPoints(const Item& item, std::size_t pointsPerSegment) {
    _Values.Clear();
    GetPointListFromPointListString(item.arguments, _Values);
    if (item.relative) {
        ModifyRelativePointListToAbsolutePointList(_Values, _Current, pointsPerSegment);
    }
    return _Values;
}

void ZAMPrintSVGPathParser::AddVertex(const ZAMMathPoint2D& point) {
    AddPointToPolyline(point);
    AddMarkerVertex(point);
    _Current = point;
}

void ZAMPrintSVGPathParser::AddMarkerVertex(const ZAMMathPoint2D& point) {
    ++_VertexCount;
    if (!_Markers.IsEmpty()) {
        _MarkerVertices.Append(point.x);
        _MarkerVertices.Append(point.y);
    }
}

void ZAMPrintSVGPathParser::ForgetControls() {
    _LastCubicControl = _LastQuadraticControl = _Current;
}

void ZAMPrintSVGPathParser::ParseMoveTo(const Item& item) {
    ClosePolyline();
    NewClosedFigureRegion();
    const ZAMRawColldouble& list = ReadPoints(item, 1);
    OpenPolyline();
    for (std::size_t i = 1; i < list.GetCount(); i += 2) {
        AddVertex({list[i], list[i + 1]});
    }
    if (list.GetCount() > 1) {
        _SubpathStart = {list[1], list[2]};
    }
    ForgetControls();
}

void ZAMPrintSVGPathParser::ParseLineTo(const Item& item) {
    const ZAMRawColldouble& list = ReadPoints(item, 1);
    for (std::size_t i = 1; i < list.GetCount(); i += 2) {
        AddVertex({list[i], list[i + 1]});
    }
    ForgetControls();
}

void ZAMPrintSVGPathParser::ParseHorizontalTo(const Item& item) {
    _Values.Clear();
    GetXCoordListFromXCoordListString(item.arguments, _Values);
    if (item.relative) {
        ModifyRelativeXCoordListToAbsoluteXCoordList(_Values, _Current.x);
    }
    for (std::size_t i = 1; i <= _Values.GetCount(); ++i) {
        AddVertex({_Values[i], _Current.y});
    }
    ForgetControls();
}

void ZAMPrintSVGPathParser::ParseVerticalTo(const Item& item) {
    _Values.Clear();
    GetYCoordListFromYCoordListString(item.arguments, _Values);
    if (item.relative) {
        ModifyRelativeYCoordListToAbsoluteYCoordList(_Values, _Current.y);
    }
    for (std::size_t i = 1; i <= _Values.GetCount(); ++i) {
        AddVertex({_Current.x, _Values[i]});
    }
    ForgetControls();
}

void ZAMPrintSVGPathParser::ParseClosePath(const Item& /*item*/) {
    if (_Current != _SubpathStart) {
        AddPointToPolyline(_SubpathStart);
    }
    AddMarkerVertex(_SubpathStart);
    _Current = _SubpathStart;
    ForgetControls();
    ClosePolyline();
    NewClosedFigureRegion();
    ReopenPolyline();
}

void ZAMPrintSVGPathParser::ModifyRelativePointListToAbsolutePointList(ZAMRawColldouble& list,
                                                                       const ZAMMathPoint2D& current,
                                                                       std::size_t pointsPerSegment) const {
    // Both the relative value and the reference are flipped, so one height too many is in the sum.
    const double doubleFlip = _FlipY ? _ImageHeight : 0.0;
    ZAMMathPoint2D reference = current;
    const std::size_t pairs = list.GetCount() / 2;
    for (std::size_t k = 1; k <= pairs; ++k) {
        double& x = list[2 * k - 1];
        double& y = list[2 * k];
        x += reference.x;
        y = y + reference.y - doubleFlip;
        if (k % pointsPerSegment == 0) {
            reference = {x, y};
        }
    }
}

void ZAMPrintSVGPathParser::ModifyRelativeXCoordListToAbsoluteXCoordList(ZAMRawColldouble& list, double currentX) {
    for (std::size_t i = 1; i <= list.GetCount(); ++i) {
        currentX = list[i] += currentX;
    }
}

void ZAMPrintSVGPathParser::ModifyRelativeYCoordListToAbsoluteYCoordList(ZAMRawColldouble& list,
                                                                         double currentY) const {
    const double doubleFlip = _FlipY ? _ImageHeight : 0.0;
    for (std::size_t i = 1; i <= list.GetCount(); ++i) {
        currentY = list[i] = list[i] + currentY - doubleFlip;
    }
}
