// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>
#include <memory>

/// Gives cairo's objects back.
struct ZAMPrintCairoRelease {
    void operator()(cairo_t* context) const noexcept { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const noexcept { cairo_surface_destroy(surface); }
};

using ZAMPrintCairoContext = std::unique_ptr<cairo_t, ZAMPrintCairoRelease>;
using ZAMPrintCairoSurface = std::unique_ptr<cairo_surface_t, ZAMPrintCairoRelease>;
