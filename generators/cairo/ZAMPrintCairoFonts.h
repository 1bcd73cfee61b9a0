// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMath2x2Matrix.h"
#include "framework/visualisation/ZAMTextFace.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"

#include <cairo.h>
#include <unordered_map>

/// The fonts of a document as cairo knows them. Each file is opened once, for the first text that needs it.
class ZAMPrintCairoFonts {
public:
    /// The face, shaped by a map from em space (y upward) to device units, to be drawn with the identity as the matrix.
    /// Null when cairo cannot show it. Valid until the next call.
    [[nodiscard]] cairo_scaled_font_t* Find(const ZAMTextFace& face, const ZAMMath2x2Matrix& toDevice);

private:
    [[nodiscard]] cairo_font_face_t* FindFace(const ZAMTextFace& face);

    std::unordered_map<const ZAMTextFace*, ZAMPrintCairoFontFace> _Faces; ///< null for those that cannot be shown
    ZAMPrintCairoFontOptions _Options;
    ZAMPrintCairoScaledFont _Font; ///< the last one
};
