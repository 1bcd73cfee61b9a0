// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/model/ZAMPrtFillPattern.h"
#include "generators/cairo/ZAMPrintCairoCanvas.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoPicturePainter.h"
#include "generators/cairo/ZAMPrintCairoPictures.h"

#include <cairo.h>
#include <cmath>
#include <vector>

/// The paint of a fill with a pattern: a bitmap again and again.
///
/// Where the bitmaps join without gaps, the usual case, no seam shows at any size: cairo repeats them, or a PDF gets
/// one picture of several. Bitmaps with gaps between them, or on top of each other, are drawn one by one; when they are
/// too many, a bitmap that includes the gap is made first. The work does not grow with their number.
class ZAMPrintCairoTiles {
public:
    using Sources = std::vector<ZAMPrintCairoPattern>;

    /// `area` is what has to be painted, in whole device units. The map carries the pattern's coordinates to device
    /// units and is not singular. All arguments are borrowed.
    ZAMPrintCairoTiles(const ZAMPrintCairoCanvas& canvas, ZAMPrintCairoPictures& pictures,
                       const ZAMPrtFillPattern& pattern, const ZAMMathAffine2D& toDevice, const ZAMMathBox2D& area);

    /// Painted one after the other, in device units, they are right within the area. The canvas has no path.
    [[nodiscard]] Sources MakeSources();

private:
    /// The bitmaps along one axis of the pattern.
    struct Axis {
        double origin = 0.0; ///< the start of one of them, in the pattern's coordinates
        double size = 0.0;
        double step = 0.0;
        double length = 0.0;  ///< of a step, in device units
        double spacing = 0.0; ///< between the edges of a bitmap; less than the length when the map is sheared
        double first = 0.0;   ///< of those that reach into the area, counted from the origin
        double count = 0.0;
        double from = 0.0; ///< the area, in bitmaps from the first one's start
        double to = 0.0;
        int pixels = 0; ///< of the image

        /// Where a bitmap, counted from the first, starts.
        [[nodiscard]] double PlaceOf(int bitmap) const { return origin + (first + bitmap) * step; }
        [[nodiscard]] bool IsSmall() const;
    };
    /// What one picture shows of an axis: a part of the row of bitmaps.
    struct Extent {
        int pixels;     ///< of each bitmap; a bitmap of one pixel looks the same all along the row
        double from;    ///< in bitmaps from the first one's start, at a pixel's edge
        double bitmaps; ///< how many there are

        [[nodiscard]] int FirstPixel() const { return pixels == 1 ? 0 : static_cast<int>(std::lround(from * pixels)); }
        [[nodiscard]] int CountPixels() const {
            return pixels == 1 ? 1 : static_cast<int>(std::lround(bitmaps * pixels));
        }
    };

    [[nodiscard]] static Axis MakeAxis(double origin, double size, double step, double from, double to, int pixels);
    [[nodiscard]] Extent MakeExtent(const Axis& axis) const;
    void ShowAll(Extent& x, Extent& y) const;
    [[nodiscard]] bool IsSeamless() const;
    [[nodiscard]] bool IsLong(const Axis& axis) const;
    [[nodiscard]] bool IsHuge(const Axis& axis) const;
    [[nodiscard]] Sources DrawSingly();
    [[nodiscard]] Sources DrawTogether();
    [[nodiscard]] Sources RepeatInPicture(cairo_surface_t* surface, const ZAMMathAffine2D& toDevice);
    template <class Draw> [[nodiscard]] Sources DrawInGroups(const Draw& draw);
    void IncludeGaps();
    [[nodiscard]] ZAMRef<ZAMPixelImage> MakeCell(int columns, int rows);

    cairo_t* _Context;
    ZAMPrintCairoCanvas::Kind _Kind;
    ZAMPrintCairoPictures& _Pictures;
    ZAMRef<ZAMPixelImage> _Image;
    ZAMMathAffine2D _ToDevice;
    ZAMMathBox2D _Area;
    ZAMPrintCairoPicturePainter _Painter;
    Axis _X;
    Axis _Y;
};
