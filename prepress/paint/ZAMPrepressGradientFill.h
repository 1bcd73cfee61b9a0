// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressFilledLeaf.h"
#include "prepress/paint/ZAMPrepressGradient.h"
#include "prepress/paint/ZAMPrepressGradientPicture.h"
#include "prepress/paint/ZAMPrepressRamps.h"
#include "prepress/paint/ZAMPrepressTileBook.h"

#include <optional>

/// A gradient that fills leaves, each with a tile that repeats nothing of it beside what the gradient itself repeats.
///
/// Where its colours change along an axis of the leaf the tile is one row or column of pixels. Otherwise the leaf is
/// moved into the space of the gradient, where that is so for any linear gradient, and where leaves of all sizes can
/// share the tile of a gradient that goes with their boxes.
class ZAMPrepressGradientFill {
public:
    ZAMPrepressGradientFill(const ZAMPrepressGradient& gradient, ZAMPrepressRamps::Numbered ramp)
        : _Gradient(gradient), _Ramp(std::move(ramp)) {}

    /// Whether it paints leaves with this box: one without an area is nothing to measure by.
    [[nodiscard]] bool Paints(const ZAMMathBox2D& box) const { return IsSolid(box) || GetOffsets(box).has_value(); }
    /// Of all its colours.
    [[nodiscard]] ZAMPrepressPremultiplied GetMean() const { return _Ramp.ramp->GetMean(); }
    /// Fills the leaf, when the book is closed.
    void Fill(ZAMPrepressTree& tree, ZAMPrepressTileBook& book, const ZAMPrepressFilledLeaf& leaf) const;

private:
    [[nodiscard]] bool IsSolid(const ZAMMathBox2D& box) const;
    [[nodiscard]] ZAMMathAffine2D GetToLeaf(const ZAMMathBox2D& box) const;
    [[nodiscard]] std::optional<ZAMPrepressOffsets> GetOffsets(const ZAMMathBox2D& box) const;
    [[nodiscard]] std::optional<ZAMPrepressPremultiplied> FindOnlyColour(const ZAMPrepressOffsets& offsets,
                                                                         const ZAMMathBox2D& box) const;
    [[nodiscard]] bool FillMoved(ZAMPrepressTree& tree, ZAMPrepressTileBook& book, const ZAMPrepressFilledLeaf& leaf,
                                 const ZAMPrepressOffsets& offsets) const;
    [[nodiscard]] ZAMPrepressTile MakeTile(const ZAMPrepressOffsets& offsets, const ZAMMathBox2D& box,
                                           const ZAMMathAffine2D& toDrawing) const;

    ZAMPrepressGradient _Gradient;
    ZAMPrepressRamps::Numbered _Ramp;
};
