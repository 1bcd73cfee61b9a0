// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextRuns.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "prepress/geometry/ZAMPrepressDirection.h"
#include "prepress/text/ZAMPrepressTextMeasure.h"

#include <algorithm>

namespace {

using Run = ZAMPrepressTextRun;
using Setting = ZAMPrepressTextSetting;

ZAMMathPoint2D Moved(const ZAMMathPoint2D& point, const ZAMMathVector2D& axis, double distance) {
    return {point.x + axis.x * distance, point.y + axis.y * distance};
}

Setting::Anchor OppositeOf(Setting::Anchor anchor) {
    using enum Setting::Anchor;
    return anchor == Middle ? Middle : (anchor == Start ? End : Start);
}

} // namespace

ZAMPrepressTextRuns::ZAMPrepressTextRuns(const ZAMPrepressTextContent& content,
                                         const ZAMPrepressTextPositions& positions, const ZAMPrepressTextStyles& styles)
    : _Content(content), _Positions(positions), _Styles(styles),
      _Axis(styles.Get(content.GetSpans().front()).GetAxis()) {
    for (const ZAMPrepressTextPiece& piece : content.GetPieces()) {
        Cut(piece);
    }
    Place();
}

double ZAMPrepressTextRuns::GetAdvance(Run& run) {
    if (!run.advance) {
        const Setting& setting = *run.setting;
        const double words = run.text.ends_with(' ') ? setting.wordSpacing : 0.0;
        run.advance = setting.IsSeen()
                          ? (ZAMPrepressText::GetAdvance(run.text, setting.GetStyle()) + setting.letterSpacing) *
                                    setting.stretch +
                                words
                          : 0.0;
    }
    return *run.advance;
}

void ZAMPrepressTextRuns::AddRun(const ZAMPrepressTextPiece& piece, std::size_t first, std::size_t end) {
    Run& run = _Runs.emplace_back();
    run.span = piece.span;
    run.setting = &_Styles.Get(*piece.span);
    run.text = _Content.GetText(first, end);
    run.firstCharacter = first;
    run.isSeen = run.setting->IsSeen();
    run.direction = ZAMPrepressDirection(_Positions.Get(first).rotation);
}

// Only what stands apart is worth looking for clusters.
void ZAMPrepressTextRuns::Cut(const ZAMPrepressTextPiece& piece) {
    const Setting& setting = _Styles.Get(*piece.span);
    const bool isPlaced = _Positions.FindNext(piece.firstCharacter + 1, piece.endCharacter) < piece.endCharacter;
    if (setting.path != nullptr || setting.wordSpacing != 0.0 || isPlaced) {
        CutAtClusters(piece);
    } else {
        AddRun(piece, piece.firstCharacter, piece.endCharacter);
    }
}

void ZAMPrepressTextRuns::CutAtClusters(const ZAMPrepressTextPiece& piece) {
    const Setting& setting = _Styles.Get(*piece.span);
    const std::string_view text = _Content.GetText(piece.firstCharacter, piece.endCharacter);
    std::size_t first = piece.firstCharacter;
    std::size_t next = first;
    for (const std::size_t bytes : ZAMPrepressText::GetClusters(text, setting)) {
        if (next > first && (setting.path != nullptr || StartsRun(next, setting))) {
            // Unlike places, which the document spells out, these cuts cost it nothing.
            if ((setting.path != nullptr || setting.wordSpacing != 0.0) && !ZAMAllocationBudget::Spend(1)) {
                return;
            }
            AddRun(piece, first, next);
            first = next;
        }
        const std::size_t cluster = next;
        while (next < piece.endCharacter && _Content.GetText(cluster, next).size() < bytes) {
            ++next;
        }
    }
    AddRun(piece, first, piece.endCharacter);
}

bool ZAMPrepressTextRuns::StartsRun(std::size_t character, const Setting& setting) const {
    const auto& position = _Positions.Get(character);
    return position.Moves() || position.rotation != 0.0 || _Positions.Get(character - 1).rotation != 0.0 ||
           (setting.wordSpacing != 0.0 && _Content.GetFirstByte(character - 1) == ' ');
}

void ZAMPrepressTextRuns::Place() {
    ZAMMathPoint2D pen;
    for (std::size_t i = 0; i < _Runs.size();) {
        Run& run = _Runs[i];
        const auto& position = _Positions.Get(run.firstCharacter);
        if (run.setting->path != nullptr) {
            EndChunk(i);
            i = PlaceOnPath(i, pen);
            _ChunkStart = i;
            continue;
        }
        if (position.x || position.y) {
            EndChunk(i);
            _ChunkStart = i;
        }
        pen = {position.x.value_or(pen.x) + position.dx, position.y.value_or(pen.y) + position.dy};
        run.origin = pen;
        if (NeedsPen(++i)) {
            pen = Moved(pen, _Axis, GetAdvance(run));
        }
    }
    EndChunk(_Runs.size());
}

// Whether the run starts where the one before it leaves the pen.
bool ZAMPrepressTextRuns::NeedsPen(std::size_t run) const {
    if (run >= _Runs.size() || _Runs[run].setting->path != nullptr) {
        return false;
    }
    const auto& position = _Positions.Get(_Runs[run].firstCharacter);
    return !(_Axis.y == 0.0 ? position.x : position.y);
}

// A run that is embedded in the other direction starts, for itself, where the pen is behind it.
bool ZAMPrepressTextRuns::RunsBackwards(const Run& run) const {
    return run.setting->GetAxis() != _Axis;
}

void ZAMPrepressTextRuns::EndChunk(std::size_t end) {
    if (_ChunkStart + 1 == end && AnchorsItself(_Runs[_ChunkStart])) {
        return;
    }
    Anchor(end);
    for (std::size_t i = _ChunkStart; i < end; ++i) {
        if (RunsBackwards(_Runs[i])) {
            _Runs[i].origin = Moved(_Runs[i].origin, _Axis, GetAdvance(_Runs[i]));
        }
    }
}

// The interpreter can place a run by its middle or end itself, but for blanks at its ends, which it drops, and turned
// ones. The room behind the last character counts, but not to the interpreter.
bool ZAMPrepressTextRuns::AnchorsItself(Run& run) const {
    if (run.IsTurned() || run.text.starts_with(' ') || run.text.ends_with(' ')) {
        return false;
    }
    const Setting::Anchor anchor = run.setting->anchor;
    run.anchor = RunsBackwards(run) ? OppositeOf(anchor) : anchor;
    const double share = Setting::GetShare(anchor) - (RunsBackwards(run) ? 1.0 : 0.0);
    run.origin = Moved(run.origin, _Axis, -share * run.setting->letterSpacing * run.setting->stretch);
    return true;
}

// Brings the start, the middle or the end of the chunk, wherever in it that is, to where its first character was given
// (SVG 2, 11.5).
void ZAMPrepressTextRuns::Anchor(std::size_t end) {
    if (_ChunkStart >= end) {
        return;
    }
    const ZAMMathPoint2D given = _Runs[_ChunkStart].origin;
    const double share = Setting::GetShare(_Runs[_ChunkStart].setting->anchor);
    double low = 0.0;
    double high = 0.0;
    for (std::size_t i = _ChunkStart; i < end; ++i) {
        const ZAMMathPoint2D& origin = _Runs[i].origin;
        const double start = (origin.x - given.x) * _Axis.x + (origin.y - given.y) * _Axis.y;
        low = std::min(low, start);
        high = share == 0.0 ? high : std::max(high, start + GetAdvance(_Runs[i]));
    }
    const double shift = (share - 1.0) * low - share * high;
    for (std::size_t i = _ChunkStart; i < end; ++i) {
        _Runs[i].origin = Moved(_Runs[i].origin, _Axis, shift);
    }
}

// The runs of one path, of which each is one cluster. Gives the run behind them; the pen is left at the path's end.
std::size_t ZAMPrepressTextRuns::PlaceOnPath(std::size_t first, ZAMMathPoint2D& pen) {
    const Setting& setting = *_Runs[first].setting;
    const auto isOnPath = [&](const Run& run) {
        return run.setting->path == setting.path && run.setting->pathStart == setting.pathStart;
    };
    std::vector<double> distances;
    double distance = 0.0;
    std::size_t end = first;
    for (; end < _Runs.size() && isOnPath(_Runs[end]); ++end) {
        distance += _Positions.Get(_Runs[end].firstCharacter).dx;
        distances.push_back(distance);
        distance += GetAdvance(_Runs[end]);
    }
    const double start = setting.pathStart - Setting::GetShare(setting.anchor) * distance;
    double across = 0.0;
    for (std::size_t i = first; i < end; ++i) {
        across += _Positions.Get(_Runs[i].firstCharacter).dy;
        SetOnPath(_Runs[i], start + distances[i - first], across);
    }
    pen = setting.path->GetPlace(setting.path->GetLength()).point;
    return end;
}

// A character looks where the path does in its middle; one whose middle is not on the path is not seen.
void ZAMPrepressTextRuns::SetOnPath(Run& run, double distance, double across) {
    const double half = (GetAdvance(run) - run.setting->letterSpacing) / 2.0;
    const double middle = distance + half;
    const ZAMPrepressPathLine& line = *run.setting->path;
    run.isSeen = run.isSeen && middle >= 0.0 && middle <= line.GetLength();
    if (run.isSeen) {
        const auto [point, ahead] = line.GetPlace(middle);
        run.origin = {point.x - ahead.x * half - ahead.y * across, point.y - ahead.y * half + ahead.x * across};
        const ZAMMathVector2D turn = run.direction;
        run.direction = {ahead.x * turn.x - ahead.y * turn.y, ahead.y * turn.x + ahead.x * turn.y};
    }
}
