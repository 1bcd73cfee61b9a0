// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPngOutput.h"

#include "generators/cairo/ZAMPrintCairoFailure.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoPngWriter.h"

#include <algorithm>
#include <cmath>
#include <limits>

double ZAMPrintCairoPngOutput::GetLargestPageSide() const {
    return std::numeric_limits<double>::infinity();
}

void ZAMPrintCairoPngOutput::BeginDocument(const ZAMPrintParameters& parameters) {
    if (!(parameters.resolution > 0.0 && std::isfinite(parameters.resolution))) {
        throw ZAMPrintCairoFailure("the resolution of a picture must be positive");
    }
    _Resolution = parameters.resolution;
    _Metadata = parameters.metadata;
}

ZAMPrintCairoCanvas* ZAMPrintCairoPngOutput::BeginPage(double width, double height) {
    if (_HasPicture) {
        return nullptr;
    }
    const double scale = _Resolution / 72.0;
    const double columns = std::max(1.0, std::round(width * scale));
    const double rows = std::max(1.0, std::round(height * scale));
    const std::string size = "a picture of " + FormatLength(columns) + " x " + FormatLength(rows) + " pixels";
    if (std::max(columns, rows) > ZAMPrintCairoLimits::kLargestPictureSide) {
        throw ZAMPrintCairoFailure(size + " is too large: a side has at most 32,767");
    }
    if (columns * rows > ZAMPrintCairoLimits::kMostPixels) {
        throw ZAMPrintCairoFailure(size + " is too large: it has at most 134,217,728 in all");
    }
    _Surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(columns), static_cast<int>(rows)));
    Check(cairo_surface_status(_Surface.get()));
    _HasPicture = true;
    return &_Canvas.emplace(_Surface.get(), ZAMPrintCairoCanvas::Kind::Picture, GetPictures(), columns / scale,
                            rows / scale, scale);
}

void ZAMPrintCairoPngOutput::EndPage() {
    if (_Canvas) {
        Check(cairo_status(_Canvas->GetContext()));
        _Canvas.reset();
        Check(cairo_surface_status(_Surface.get()));
        ZAMPrintCairoPngWriter::Write(_Surface.get(), _Resolution, _Metadata, GetStream());
        Check(CAIRO_STATUS_SUCCESS);
        _Surface.reset();
    }
}

void ZAMPrintCairoPngOutput::EndDocument() {}
