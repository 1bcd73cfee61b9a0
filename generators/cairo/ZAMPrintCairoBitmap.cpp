// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoBitmap.h"

#include "generators/cairo/ZAMPrintCairoMap.h"

#include <cmath>
#include <utility>

ZAMPrintCairoBitmap::ZAMPrintCairoBitmap(cairo_scaled_font_t* font, std::uint32_t glyph) {
    // None is larger; a damaged font may say so.
    constexpr double kLargestSide = 2048.0;
    cairo_glyph_t shown{glyph, 0.0, 0.0};
    cairo_text_extents_t extents{};
    cairo_scaled_font_glyph_extents(font, &shown, 1, &extents);
    _Left = std::floor(extents.x_bearing);
    _Top = std::floor(extents.y_bearing);
    const double width = std::ceil(extents.x_bearing + extents.width) - _Left;
    const double height = std::ceil(extents.y_bearing + extents.height) - _Top;
    if (!(width >= 1.0 && width <= kLargestSide && height >= 1.0 && height <= kLargestSide)) {
        return;
    }
    ZAMPrintCairoSurface surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width), static_cast<int>(height)));
    const ZAMPrintCairoContext context(cairo_create(surface.get()));
    cairo_set_scaled_font(context.get(), font);
    shown.x = -_Left;
    shown.y = -_Top;
    cairo_show_glyphs(context.get(), &shown, 1);
    if (cairo_status(context.get()) == CAIRO_STATUS_SUCCESS) {
        _Surface = std::move(surface);
    }
}

void ZAMPrintCairoBitmap::Paint(cairo_t* context, const ZAMMathAffine2D& toDevice, double opacity) const {
    if (_Surface == nullptr) {
        return;
    }
    cairo_save(context);
    const cairo_matrix_t matrix = ZAMPrintCairoMap::ToCairo(toDevice);
    cairo_set_matrix(context, &matrix);
    cairo_set_source_surface(context, _Surface.get(), _Left, _Top);
    cairo_paint_with_alpha(context, opacity);
    cairo_restore(context);
}
