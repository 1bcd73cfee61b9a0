// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressGradientFill.h"
#include "prepress/paint/ZAMPrepressPatternFill.h"
#include "prepress/text/ZAMPrepressFonts.h"

#include <optional>
#include <unordered_map>
#include <unordered_set>

/// Gives the leaves of a drawing that refer to gradients and patterns what the interpreter can paint.
class ZAMPrepressLeafPainter {
public:
    /// Of a root element. All are borrowed.
    ZAMPrepressLeafPainter(ZAMPrepressTree& tree, ZAMPrepressIds& ids, ZAMPrepressTileBook& book,
                           const ZAMPrepressElement& drawing);

    /// Paints all that is drawn below the element; the map carries the units of its children to those of the drawing.
    void PaintBelow(ZAMPrepressElement& element, const ZAMMathAffine2D& toDrawing);

private:
    void Paint(ZAMPrepressElement& leaf, const ZAMMathAffine2D& toDrawing);
    void PaintFill(const ZAMPrepressFilledLeaf& leaf, ZAMPrepressElement& server);
    ZAMPrepressElement& PaintStroke(ZAMPrepressElement& leaf, ZAMPrepressElement& server,
                                    const ZAMMathAffine2D& toDrawing);
    [[nodiscard]] bool Fill(ZAMPrepressElement& server, const ZAMPrepressFilledLeaf& leaf);
    [[nodiscard]] bool FillWithPattern(ZAMPrepressElement& server, const ZAMPrepressFilledLeaf& leaf);
    [[nodiscard]] std::optional<ZAMPrepressPremultiplied> FindMean(ZAMPrepressElement& server, const ZAMMathBox2D& box);
    [[nodiscard]] ZAMPrepressPremultiplied GetMean(const ZAMPrepressVectorPattern& pattern);
    [[nodiscard]] ZAMMathBox2D GetBox(const ZAMPrepressElement& leaf, const ZAMPrepressPath* path);
    [[nodiscard]] ZAMMathBox2D GetShown(const ZAMMathBox2D& box, const ZAMMathAffine2D& toDrawing) const;
    [[nodiscard]] const ZAMPrepressGradientFill* FindGradient(ZAMPrepressElement& server);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds& _Ids;
    ZAMPrepressTileBook& _Book;
    ZAMPrepressViewportSize _Viewport;
    ZAMMathBox2D _Shown; // of the drawing; empty when that cannot be told
    ZAMPrepressFonts _Fonts;
    ZAMPrepressRamps _Ramps;
    std::unordered_map<const ZAMPrepressElement*, std::optional<ZAMPrepressGradientFill>> _Gradients;
    std::unordered_set<const ZAMPrepressElement*> _PaintedContents;
    std::unordered_map<const ZAMPrepressElement*, ZAMPrepressPremultiplied> _ContentSums;
    std::vector<const ZAMPrepressElement*> _OpenContents; // of patterns, those being painted
    std::size_t _StrokeVertices = 2'000'000;              // that outlines of strokes may have still
};
