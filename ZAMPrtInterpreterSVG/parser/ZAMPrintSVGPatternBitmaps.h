// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "framework/model/ZAMPrtBitmapImageElt.h"
#include "framework/model/ZAMPrtPatternElt.h"

#include <cstddef>
#include <unordered_map>

/// Finds the bitmap that a pattern fills with: its last one. Children are only ever added to a pattern, so each is
/// looked at once, however many fills refer to the pattern, and while its content is still being read.
class ZAMPrintSVGPatternBitmaps {
public:
    /// Null when the pattern has no bitmap among its children.
    const ZAMPrtBitmapImageElt* FindLast(const ZAMPrtPatternElt& pattern);

private:
    struct Search {
        ZAMRef<const ZAMPrtPatternElt> pattern; // held, so that no other pattern comes to its address
        std::size_t seen = 0;
        const ZAMPrtBitmapImageElt* last = nullptr;
    };

    std::unordered_map<const ZAMPrtPatternElt*, Search> _Searches;
};
