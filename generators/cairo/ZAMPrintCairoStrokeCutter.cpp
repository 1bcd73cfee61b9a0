// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoStrokeCutter.h"

#include "generators/cairo/ZAMPrintCairoContour.h"
#include "generators/cairo/ZAMPrintCairoPathWalk.h"
#include "generators/cairo/ZAMPrintCairoWorld.h"

#include <utility>

using ZAMPrintCairoWorld::Contains;

namespace {

/// Shortens a line to its part on the right side of a limit; false when there is none.
bool CutAt(ZAMMathPoint2D& from, ZAMMathPoint2D& to, ZAMPrintCairoWorld::Axis axis, double low, double high) {
    if ((from.*axis < low && to.*axis < low) || (from.*axis > high && to.*axis > high)) {
        return false;
    }
    for (const auto& [end, other] : {std::pair(&from, &to), std::pair(&to, &from)}) {
        if (end->*axis < low || end->*axis > high) {
            *end = ZAMPrintCairoWorld::Cross(*end, *other, axis, end->*axis < low ? low : high);
        }
    }
    return true;
}

} // namespace

std::vector<ZAMPrintCairoStrokeCutter::Piece>
ZAMPrintCairoStrokeCutter::Cut(const ZAMPrintPath& path, const ZAMMathBox2D& view, const Measure& measure) {
    ZAMPrintCairoStrokeCutter cutter(view, measure);
    ZAMPrintCairoPathWalk::Walk(path, view, cutter);
    return std::move(cutter._Pieces);
}

void ZAMPrintCairoStrokeCutter::Move(const ZAMMathPoint2D& point) {
    _Start = point;
    _Current = point;
    _Walked = 0.0;
    _FirstPiece = _Pieces.size();
    _IsDrawing = false;
}

void ZAMPrintCairoStrokeCutter::Line(const ZAMMathPoint2D& point) {
    ZAMMathPoint2D from = _Current;
    ZAMMathPoint2D to = point;
    if (CutAt(from, to, &ZAMMathPoint2D::x, _View.xMin, _View.xMax) &&
        CutAt(from, to, &ZAMMathPoint2D::y, _View.yMin, _View.yMax)) {
        _IsDrawing = _IsDrawing && from == _Current;
        DrawLine(from, to);
        _IsDrawing = to == point;
    } else {
        _IsDrawing = false;
    }
    _Walked += MeasureLine(_Current, point);
    _Current = point;
}

void ZAMPrintCairoStrokeCutter::Curve(const ZAMPrintCairoCurve& curve) {
    BeginPiece(_Current, _Walked);
    _Pieces.back().path.CubicTo(curve.points[1], curve.points[2], curve.points[3]);
    _Walked += MeasureCurve(curve);
    _Current = curve.points[3];
}

void ZAMPrintCairoStrokeCutter::FarCurve(const ZAMPrintCairoCurve& curve) {
    _IsDrawing = false;
    _Walked += MeasureCurve(curve);
    _Current = curve.points[3];
}

void ZAMPrintCairoStrokeCutter::Close() {
    const bool startsInView = Contains(_View, _Start);
    if (startsInView && _Pieces.size() == _FirstPiece) {
        // A contour of one point, which round caps make a dot.
        BeginPiece(_Start, 0.0);
    }
    if (startsInView && IsWhole()) {
        _Pieces.back().path.ClosePath();
        return;
    }
    if (_Current != _Start) {
        Line(_Start);
    }
    if (startsInView && !_Measure) {
        JoinAtStart();
    }
}

void ZAMPrintCairoStrokeCutter::BeginPiece(const ZAMMathPoint2D& point, double walked) {
    if (!_IsDrawing) {
        _Pieces.emplace_back().walked = walked;
        _Pieces.back().path.MoveTo(point);
        _IsDrawing = true;
    }
}

void ZAMPrintCairoStrokeCutter::DrawLine(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
    BeginPiece(from, from == _Current ? _Walked : _Walked + MeasureLine(_Current, from));
    _Pieces.back().path.LineTo(to);
}

/// The contour's last piece ends where its first one starts: they are one piece.
void ZAMPrintCairoStrokeCutter::JoinAtStart() {
    if (_IsDrawing && _Pieces.size() > _FirstPiece + 1) {
        ZAMPrintCairoContour::Continue(_Pieces.back().path, _Pieces[_FirstPiece].path);
        std::swap(_Pieces[_FirstPiece], _Pieces.back());
        _Pieces.pop_back();
    }
}

/// Nothing was left out of a contour that starts in the view, nor will be of the line that closes it.
bool ZAMPrintCairoStrokeCutter::IsWhole() const {
    return _IsDrawing && _Pieces.size() == _FirstPiece + 1 && Contains(_View, _Current);
}

double ZAMPrintCairoStrokeCutter::MeasureLine(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) const {
    return _Measure ? _Measure({to.x - from.x, to.y - from.y}) : 0.0;
}

double ZAMPrintCairoStrokeCutter::MeasureCurve(const ZAMPrintCairoCurve& curve) const {
    return _Measure ? curve.GetLength(_Measure) : 0.0;
}
