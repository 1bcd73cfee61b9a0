// SPDX-License-Identifier: MIT
// The pieces of a path and the closed figure that may hold them.
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"

void ZAMPrintSVGPathParser::AddPiece(ZAMPrtGraphicPrimitiveElt* piece) {
    if (_Region) {
        _Region->AddChild(piece);
    } else {
        _Group->AddChild(piece);
    }
}

// A run of a single point makes no piece.
void ZAMPrintSVGPathParser::ClosePolyline() {
    if (_Run.size() > 1) {
        if (const auto polyline = ZAMNew<ZAMPrtPolylineElt>()) {
            AddPiece(polyline.Get());
            polyline->SetStrokeAttributes(_StrokeAttributes);
            polyline->SetPoints(_Run.data(), static_cast<int>(_Run.size()));
        }
    }
    _Run.clear();
}

// Behind a curve, an arc or the end of a subpath a line goes on from the current point.
void ZAMPrintSVGPathParser::ReopenPolyline() {
    OpenPolyline();
    AddPointToPolyline(_Current);
}

void ZAMPrintSVGPathParser::BeginFigure() {
    _Figure = {};
    _Region = {};
    if (_DrawStyle == ZAMPrtDrawStyle::None || _DrawStyle == ZAMPrtDrawStyle::Stroke) {
        return;
    }
    _Figure = ZAMNew<ZAMPrtClosedFigureElt>();
    if (_Figure) {
        _Figure->SetDrawStyle(_DrawStyle);
        _Figure->SetStrokeAttributes(_StrokeAttributes);
        _Figure->SetFillAttributes(_FillAttributes);
        _Group->AddChild(_Figure.Get());
        NewClosedFigureRegion();
    }
}

void ZAMPrintSVGPathParser::NewClosedFigureRegion() {
    if (_Figure) {
        _Region = ZAMNew<ZAMPrtClosedFigureRegionElt>();
        _Figure->AddChild(_Region.Get());
    }
}

// Two vertices enclose nothing: what the last region holds becomes open pieces of the group, without the fill.
void ZAMPrintSVGPathParser::DissolveFigure() {
    constexpr std::size_t kVerticesWithoutArea = 2;
    if (_Figure && _VertexCount <= kVerticesWithoutArea) {
        if (_Region) {
            for (const auto& piece : _Region->GetChildren()) {
                _Group->AddChild(piece.Get());
            }
        }
        _Group->RemoveChild(_Figure.Get());
    }
    _Region = {};
    _Figure = {};
}
