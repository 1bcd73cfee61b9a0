// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressElement.h"

/// Whether a leaf paints anything.
[[nodiscard]] inline bool ZAMPrepressHasPaint(const ZAMPrepressElement& leaf) {
    return leaf.Get("fill") != "none" || leaf.Has("stroke");
}

/// Gives an element the paint of another one, for leaves have all of their paint as attributes.
inline void ZAMPrepressCopyPaint(const ZAMPrepressElement& from, ZAMPrepressElement& to) {
    for (const std::string_view attribute :
         {"fill", "fill-opacity", "stroke", "stroke-opacity", "stroke-width", "stroke-linecap", "stroke-linejoin",
          "stroke-miterlimit", "stroke-dasharray", "stroke-dashoffset"}) {
        if (const auto value = from.Find(attribute)) {
            to.Set(attribute, *value);
        }
    }
}
