// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/text/ZAMPrepressTextPositions.h"
#include "prepress/text/ZAMPrepressTextStyles.h"

#include <string_view>
#include <vector>

/// Characters of one element that stand on one straight line, and where.
struct ZAMPrepressTextRun {
    const ZAMPrepressTextSpan* span = nullptr;
    const ZAMPrepressTextSetting* setting = nullptr;
    std::string_view text;
    std::size_t firstCharacter = 0;
    ZAMMathPoint2D origin; ///< where the pen stands on the line of the text, in the text element's coordinates
    ZAMMathVector2D direction{1.0, 0.0}; ///< of the run's own x axis, of length 1
    ZAMPrepressTextSetting::Anchor anchor = ZAMPrepressTextSetting::Anchor::Start; ///< what of the run the origin is
    std::optional<double> advance; ///< of the pen behind the run; what nobody asked for was not measured
    bool isSeen = true;

    /// A place of the run's own frame, whose origin is the run's, in the text element's coordinates.
    [[nodiscard]] ZAMMathPoint2D GetPoint(double x, double y) const {
        return {origin.x + direction.x * x - direction.y * y, origin.y + direction.y * x + direction.x * y};
    }
    [[nodiscard]] bool IsTurned() const { return direction != ZAMMathVector2D{1.0, 0.0}; }
};

/// Cuts a text into runs and puts them in their places (SVG 1.1, 10.5 to 10.13).
class ZAMPrepressTextRuns {
public:
    ZAMPrepressTextRuns(const ZAMPrepressTextContent& content, const ZAMPrepressTextPositions& positions,
                        const ZAMPrepressTextStyles& styles);

    [[nodiscard]] std::vector<ZAMPrepressTextRun>& GetRuns() { return _Runs; }

    /// How far the pen gets with the run, from its origin and along the flow of its text; measured when need be.
    static double GetAdvance(ZAMPrepressTextRun& run);

private:
    using Run = ZAMPrepressTextRun;

    void Cut(const ZAMPrepressTextPiece& piece);
    void CutAtClusters(const ZAMPrepressTextPiece& piece);
    void AddRun(const ZAMPrepressTextPiece& piece, std::size_t first, std::size_t end);
    [[nodiscard]] bool StartsRun(std::size_t character, const ZAMPrepressTextSetting& setting) const;

    void Place();
    [[nodiscard]] bool NeedsPen(std::size_t run) const;
    void EndChunk(std::size_t end);
    void Anchor(std::size_t end);
    [[nodiscard]] bool AnchorsItself(Run& run) const;
    [[nodiscard]] bool RunsBackwards(const Run& run) const;
    std::size_t PlaceOnPath(std::size_t first, ZAMMathPoint2D& pen);
    static void SetOnPath(ZAMPrepressTextRun& run, double distance, double across);

    const ZAMPrepressTextContent& _Content;
    const ZAMPrepressTextPositions& _Positions;
    const ZAMPrepressTextStyles& _Styles;
    const ZAMMathVector2D _Axis; // the way of the pen by an advance of 1
    std::vector<ZAMPrepressTextRun> _Runs;
    std::size_t _ChunkStart = 0; // the run that the chunk starts with
};
