// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"

#include <cairo.h>
#include <cstdint>

/// A glyph as a picture: pixels about the glyph's origin, y downward.
class ZAMPrintCairoBitmap {
public:
    /// Nothing to see.
    ZAMPrintCairoBitmap() = default;
    /// The glyph as the font draws it.
    ZAMPrintCairoBitmap(cairo_scaled_font_t* font, std::uint32_t glyph);

    /// Paints it on a surface that keeps the marks, by an invertible map from pixels to device units.
    void Paint(cairo_t* context, const ZAMMathAffine2D& toDevice, double opacity) const;

private:
    ZAMPrintCairoSurface _Surface; ///< null when there is nothing to see
    double _Left = 0.0;
    double _Top = 0.0;
};
