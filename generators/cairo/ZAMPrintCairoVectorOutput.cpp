// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoVectorOutput.h"

void ZAMPrintCairoVectorOutput::EndPage() {
    if (!_Canvas) {
        return;
    }
    FinishPage();
    cairo_show_page(GetContext());
    Check(cairo_status(GetContext()));
    _Canvas.reset();
    GetPictures().EndPage();
    Check(cairo_surface_status(GetSurface()));
}

void ZAMPrintCairoVectorOutput::EndDocument() {
    // Most of what can fail fails here, on the surface, which then takes and gives no more: the filter's own is last.
    cairo_surface_finish(GetSurface());
    Flush();
    Check(cairo_surface_status(GetSurface()));
}

cairo_status_t ZAMPrintCairoVectorOutput::WriteBytes(void* output, const unsigned char* bytes, unsigned int count) {
    try {
        return static_cast<ZAMPrintCairoVectorOutput*>(output)->Write({reinterpret_cast<const char*>(bytes), count})
                   ? CAIRO_STATUS_SUCCESS
                   : CAIRO_STATUS_WRITE_ERROR;
    } catch (...) {
        return CAIRO_STATUS_NO_MEMORY;
    }
}

ZAMPrintCairoCanvas* ZAMPrintCairoVectorOutput::BeginCanvas(double width, double height) {
    _Canvas.emplace(GetSurface(), ZAMPrintCairoCanvas::Kind::Vector, GetPictures(), width, height, 1.0);
    _Canvas->MarkWholePage();
    return &*_Canvas;
}
