// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGPatternBitmaps.h"

const ZAMPrtBitmapImageElt* ZAMPrintSVGPatternBitmaps::FindLast(const ZAMPrtPatternElt& pattern) {
    Search& search = _Searches[&pattern];
    if (!search.pattern) {
        search.pattern = ZAMRef<const ZAMPrtPatternElt>::Share(&pattern);
    }
    for (const auto& child : pattern.GetChildren().subspan(search.seen)) {
        const auto* const bitmap = ZAMPrtCast<ZAMPrtBitmapImageElt>(child.Get());
        search.last = bitmap == nullptr ? search.last : bitmap;
    }
    search.seen = pattern.GetChildren().size();
    return search.last;
}
