// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>
#include <memory>

/// Gives cairo's objects back.
struct ZAMPrintCairoRelease {
    void operator()(cairo_t* context) const noexcept { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const noexcept { cairo_surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const noexcept { cairo_pattern_destroy(pattern); }
    void operator()(cairo_font_face_t* face) const noexcept { cairo_font_face_destroy(face); }
    void operator()(cairo_scaled_font_t* font) const noexcept { cairo_scaled_font_destroy(font); }
    void operator()(cairo_font_options_t* options) const noexcept { cairo_font_options_destroy(options); }
};

using ZAMPrintCairoContext = std::unique_ptr<cairo_t, ZAMPrintCairoRelease>;
using ZAMPrintCairoSurface = std::unique_ptr<cairo_surface_t, ZAMPrintCairoRelease>;
using ZAMPrintCairoPattern = std::unique_ptr<cairo_pattern_t, ZAMPrintCairoRelease>;
using ZAMPrintCairoFontFace = std::unique_ptr<cairo_font_face_t, ZAMPrintCairoRelease>;
using ZAMPrintCairoScaledFont = std::unique_ptr<cairo_scaled_font_t, ZAMPrintCairoRelease>;
using ZAMPrintCairoFontOptions = std::unique_ptr<cairo_font_options_t, ZAMPrintCairoRelease>;
