// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintColour.h"

#include <cairo.h>

namespace ZAMPrintCairoColour {

/// Makes cairo paint with the colour.
inline void SetSource(cairo_t* context, const ZAMPrintColour& colour) {
    constexpr double kFull = 255.0;
    cairo_set_source_rgba(context, colour.red / kFull, colour.green / kFull, colour.blue / kFull, colour.alpha / kFull);
}

} // namespace ZAMPrintCairoColour
