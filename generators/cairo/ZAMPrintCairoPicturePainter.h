// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "generators/cairo/ZAMPrintCairoCanvas.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoPictures.h"

#include <algorithm>
#include <cairo.h>

/// Draws pictures on a surface that keeps them, or on one that turns them into pixels.
///
/// In a PDF a picture keeps all its pixels, and readers show them as squares. In a picture it is smoothed when it is
/// made smaller or a little larger; from four times on its pixels show as squares, as readers of a PDF show them.
class ZAMPrintCairoPicturePainter {
public:
    /// What of the surface can be seen is `view`, in device units of 0 and more. All arguments are borrowed.
    ZAMPrintCairoPicturePainter(cairo_t* context, ZAMPrintCairoCanvas::Kind kind, const ZAMMathBox2D& view,
                                ZAMPrintCairoPictures& pictures)
        : _Context(context), _Kind(kind), _View(view), _Pictures(pictures) {}

    /// The map, of any numbers, carries the unit square, y upward, to device units. Changes the context's path.
    void Draw(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toDevice);

    /// A picture whose box has a longer side is cut to what can be seen of it.
    [[nodiscard]] double GetLongestSide() const {
        return std::max(_View.Width(), _View.Height()) * ZAMPrintCairoLimits::kMostPagesWide;
    }

    /// A source that shows the surface where the map carries the unit square. Null when the map is singular.
    [[nodiscard]] ZAMPrintCairoPattern MakeSource(cairo_surface_t* surface, const ZAMMathAffine2D& toDevice,
                                                  cairo_extend_t extend);
    /// Calls `paint` for squares that cover what is seen of the area, with the middle of each and the clip set to it;
    /// once and for all when the surface keeps what is painted.
    template <class Paint> void PaintInBlocks(const ZAMMathBox2D& area, const Paint& paint) {
        if (_Kind == ZAMPrintCairoCanvas::Kind::Vector) {
            paint(ZAMMathPoint2D());
            return;
        }
        constexpr int kSide = ZAMPrintCairoLimits::kPictureBlock;
        const ZAMMathBox2D box = area.Intersection(_View);
        for (int y = static_cast<int>(box.yMin); y < box.yMax; y += kSide) {
            for (int x = static_cast<int>(box.xMin); x < box.xMax; x += kSide) {
                cairo_save(_Context);
                cairo_rectangle(_Context, x, y, kSide, kSide);
                cairo_clip(_Context);
                paint(ZAMMathPoint2D{x + kSide / 2.0, y + kSide / 2.0});
                cairo_restore(_Context);
            }
        }
    }
    /// So many pixels of `pixels` that there are less than two for each of `wanted`.
    [[nodiscard]] static int ReducePixels(int pixels, double wanted);

private:
    [[nodiscard]] cairo_filter_t ChooseFilter(double pixel);
    void DrawPart(const ZAMRef<ZAMPixelImage>& image, ZAMPrintCairoPictures::Form form,
                  const ZAMMathAffine2D& toDevice);

    cairo_t* _Context;
    ZAMPrintCairoCanvas::Kind _Kind;
    ZAMMathBox2D _View;
    ZAMPrintCairoPictures& _Pictures;
};
