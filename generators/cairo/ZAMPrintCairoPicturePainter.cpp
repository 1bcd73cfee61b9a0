// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPicturePainter.h"

#include "generators/cairo/ZAMPrintCairoMap.h"
#include "generators/cairo/ZAMPrintCairoPictureCut.h"
#include "generators/cairo/ZAMPrintCairoStretch.h"

#include <algorithm>
#include <cmath>

using Kind = ZAMPrintCairoCanvas::Kind;

namespace {

constexpr ZAMMathBox2D kUnitSquare{0.0, 0.0, 1.0, 1.0};

/// The longest side of a pixel in device units, which `toDevice` carries pixels to. Along a side of one pixel nothing
/// changes: there it counts as short.
double GetLongestPixel(int width, int height, const ZAMMathAffine2D& toDevice) {
    if (width > 1 && height > 1) {
        return ZAMPrintCairoStretch(toDevice.Linear()).longest;
    }
    return std::max(width > 1 ? std::hypot(toDevice.a, toDevice.b) : 0.0,
                    height > 1 ? std::hypot(toDevice.c, toDevice.d) : 0.0);
}

} // namespace

void ZAMPrintCairoPicturePainter::Draw(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toDevice) {
    const double farthest = ZAMPrintCairoLimits::kFarthestPicture;
    const ZAMPrintCairoStretch stretch(toDevice.Linear());
    // Written so that NaN ends here.
    if (!(stretch.shortest >= ZAMPrintCairoLimits::kThinnestPicture && stretch.longest <= farthest &&
          std::abs(toDevice.e) <= farthest && std::abs(toDevice.f) <= farthest) ||
        ZAMPrintCairoMap::IsFlat(toDevice)) {
        return;
    }
    const ZAMMathBox2D box = toDevice.Apply(kUnitSquare);
    if (box.Intersection(_View).IsEmpty()) {
        return;
    }
    if (std::max(box.Width(), box.Height()) <= GetLongestSide()) {
        DrawPart(image, ZAMPrintCairoPictures::Form::Of(*image), toDevice);
        return;
    }
    for (const auto& part : ZAMPrintCairoPictureCut::Cut(image->GetWidth(), image->GetHeight(), toDevice, _View)) {
        DrawPart(image, ZAMPrintCairoPictures::Form::Of(part.x, part.y, part.width, part.height), part.toDevice);
    }
}

/// PDF knows smooth or not; see the class for when. `pixel` is the longest side of a pixel in device units.
cairo_filter_t ZAMPrintCairoPicturePainter::ChooseFilter(double pixel) {
    constexpr double kLargestSmoothPixel = 4.0;
    // From here on cairo takes seconds to find edges that nobody would miss.
    constexpr double kLargestSmoothEdge = 64.0;
    if (_Kind == Kind::Vector || pixel > kLargestSmoothEdge) {
        return CAIRO_FILTER_FAST;
    }
    if (pixel < kLargestSmoothPixel) {
        return CAIRO_FILTER_GOOD;
    }
    // The best filter draws the pixels of enlarged pictures as squares with smooth edges.
    return _Pictures.SpendEdges(pixel * pixel) ? CAIRO_FILTER_BEST : CAIRO_FILTER_FAST;
}

ZAMPrintCairoPattern ZAMPrintCairoPicturePainter::MakeSource(cairo_surface_t* surface, const ZAMMathAffine2D& toDevice,
                                                             cairo_extend_t extend) {
    const int width = cairo_image_surface_get_width(surface);
    const int height = cairo_image_surface_get_height(surface);
    const ZAMMathAffine2D pixelsToDevice = toDevice * ZAMMathAffine2D{1.0 / width, 0.0, 0.0, -1.0 / height, 0.0, 1.0};
    cairo_matrix_t matrix = ZAMPrintCairoMap::ToCairo(pixelsToDevice);
    if (cairo_matrix_invert(&matrix) != CAIRO_STATUS_SUCCESS) {
        return nullptr;
    }
    ZAMPrintCairoPattern source(cairo_pattern_create_for_surface(surface));
    cairo_pattern_set_matrix(source.get(), &matrix);
    cairo_pattern_set_extend(source.get(), extend);
    cairo_pattern_set_filter(source.get(), ChooseFilter(GetLongestPixel(width, height, pixelsToDevice)));
    return source;
}

int ZAMPrintCairoPicturePainter::ReducePixels(int pixels, double wanted) {
    const double halvings = std::clamp(std::floor(std::log2(pixels / std::max(wanted, 1e-30))), 0.0, 31.0);
    return std::max(1, static_cast<int>(std::lround(std::ldexp(pixels, -static_cast<int>(halvings)))));
}

void ZAMPrintCairoPicturePainter::DrawPart(const ZAMRef<ZAMPixelImage>& image, ZAMPrintCairoPictures::Form form,
                                           const ZAMMathAffine2D& toDevice) {
    const bool isPicture = _Kind == Kind::Picture;
    if (isPicture) {
        const ZAMMathVector2D spacing = ZAMPrintCairoMap::GetSpacing(toDevice);
        form.Reduce(ReducePixels(form.columns, spacing.x), ReducePixels(form.rows, spacing.y));
    }
    cairo_surface_t* surface = _Pictures.Find(image, form);
    // Its edge pixels go on, so that only the outline is smoothed.
    const ZAMPrintCairoPattern source =
        surface == nullptr ? nullptr : MakeSource(surface, toDevice, isPicture ? CAIRO_EXTEND_PAD : CAIRO_EXTEND_NONE);
    if (source == nullptr) {
        return;
    }
    cairo_set_source(_Context, source.get());
    cairo_set_antialias(_Context, CAIRO_ANTIALIAS_DEFAULT);
    PaintInBlocks(toDevice.Apply(kUnitSquare), [&](const ZAMMathPoint2D& /*middle*/) {
        if (!isPicture) {
            cairo_paint(_Context);
            return;
        }
        for (const ZAMMathPoint2D& corner : kUnitSquare.Corners()) {
            const ZAMMathPoint2D point = toDevice.Apply(corner);
            cairo_line_to(_Context, point.x, point.y);
        }
        cairo_fill(_Context);
    });
}
