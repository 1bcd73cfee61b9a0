// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressPixels.h"
#include "prepress/paint/ZAMPrepressTileBook.h"
#include "prepress/paint/ZAMPrepressVectorPattern.h"

/// What draws the tiles of patterns. All are borrowed.
struct ZAMPrepressTileDrawer {
    ZAMPrepressTree& tree; ///< has the renderer
    const ZAMPrepressIds& ids;
    ZAMPrepressTileBook& book; ///< of the tiles that the content is filled with, and of what may be drawn still

    /// A part of the pattern's tile, in the tile's units, as a PNG file of that size. Nothing when it cannot be drawn.
    [[nodiscard]] std::string Draw(const ZAMPrepressVectorPattern& pattern, const ZAMMathBox2D& part,
                                   const ZAMPrepressPixels& pixels) const;

private:
    [[nodiscard]] ZAMPrepressElement& MakeDrawing(const ZAMPrepressVectorPattern& pattern, const ZAMMathBox2D& part,
                                                  const ZAMPrepressPixels& pixels) const;
};
