// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressFilledLeaf.h"
#include "prepress/paint/ZAMPrepressTileDrawing.h"

/// Fills the leaf with the tile of a pattern. The leaf is moved into the space of the pattern where that lies
/// otherwise. Without a renderer it is painted with the mean colour of the tile.
void ZAMPrepressFillWithPattern(const ZAMPrepressTileDrawer& drawer, const ZAMPrepressVectorPattern& pattern,
                                const ZAMPrepressPremultiplied& mean, const ZAMPrepressFilledLeaf& leaf);
