// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoFonts.h"

#include "generators/cairo/ZAMPrintCairoFontFile.h"

namespace {

/// Shapes and places are the layout's: nothing is to be moved to a grid.
ZAMPrintCairoFontOptions MakeOptions() {
    ZAMPrintCairoFontOptions options(cairo_font_options_create());
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    return options;
}

} // namespace

cairo_scaled_font_t* ZAMPrintCairoFonts::Find(const ZAMTextFace& face, const ZAMMath2x2Matrix& toDevice) {
    cairo_font_face_t* found = FindFace(face);
    if (found == nullptr) {
        return nullptr;
    }
    if (_Options == nullptr) {
        _Options = MakeOptions();
    }
    // Cairo's own glyph space has its y downward.
    cairo_matrix_t shape;
    cairo_matrix_init(&shape, toDevice.a, toDevice.c, -toDevice.b, -toDevice.d, 0.0, 0.0);
    cairo_matrix_t identity;
    cairo_matrix_init_identity(&identity);
    // For a shape that was used lately cairo gives the font that it has already.
    _Font.reset(cairo_scaled_font_create(found, &shape, &identity, _Options.get()));
    return cairo_scaled_font_status(_Font.get()) == CAIRO_STATUS_SUCCESS ? _Font.get() : nullptr;
}

cairo_font_face_t* ZAMPrintCairoFonts::FindFace(const ZAMTextFace& face) {
    const auto [place, isNew] = _Faces.try_emplace(&face);
    if (isNew) {
        place->second = ZAMPrintCairoFontFile::Open(face);
    }
    return place->second.get();
}
