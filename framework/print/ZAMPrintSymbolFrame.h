// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/model/ZAMPrtSymbolElt.h"

/// What a symbol with a size shows, in its own coordinates.
inline ZAMMathBox2D ZAMPrintSymbolArea(const ZAMPrtSymbolElt& symbol) {
    return {0.0, 0.0, symbol.GetSize().x, symbol.GetSize().y};
}

/// From the coordinates of a symbol's content to its own.
inline ZAMMathAffine2D ZAMPrintSymbolContent(const ZAMPrtSymbolElt& symbol) {
    return symbol.HasSize() ? ZAMMathAffine2D{1.0, 0.0, 0.0, 1.0, -symbol.GetOrigin().x, -symbol.GetOrigin().y}
                            : ZAMMathAffine2D();
}
