// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintPaint.h"
#include "framework/print/ZAMPrintPath.h"
#include "framework/visualisation/ZAMPixelImage.h"
#include "generators/cairo/ZAMPrintCairoDevicePath.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoPen.h"
#include "generators/cairo/ZAMPrintCairoRecord.h"

#include <cairo.h>
#include <functional>
#include <utility>
#include <vector>

class ZAMPrintCairoPictures;

/// Draws on a surface, whatever it is, and shows cairo nothing that it cannot bear.
class ZAMPrintCairoCanvas {
public:
    enum class Kind {
        Vector, ///< the surface keeps the marks
        Picture ///< the surface turns each mark into pixels
    };

    /// A page of the given size in points on a surface with `scale` device units to the point. The pictures are
    /// borrowed.
    ZAMPrintCairoCanvas(cairo_surface_t* surface, Kind kind, ZAMPrintCairoPictures& pictures, double width,
                        double height, double scale);

    /// A page that keeps its marks, on a surface that is not there yet: it is made when the first mark comes that is no
    /// plain path. The pictures are borrowed.
    ZAMPrintCairoCanvas(std::function<cairo_surface_t*()> makeSurface, ZAMPrintCairoPictures& pictures, double width,
                        double height);

    /// Makes the surface, if there is none yet, and draws on it what was recorded.
    void Open();
    [[nodiscard]] bool IsOpen() const { return _Context != nullptr; }
    /// The marks of a page that was never opened.
    [[nodiscard]] const ZAMPrintCairoRecord& GetRecord() const { return _Record; }
    [[nodiscard]] ZAMPrintCairoRecord TakeRecord() { return std::move(_Record); }

    /// For what is particular to one kind of surface. Between marks it has no path and the identity as its matrix. Null
    /// unless the canvas is open.
    [[nodiscard]] cairo_t* GetContext() const { return _Context.get(); }

    [[nodiscard]] Kind GetKind() const { return _Kind; }
    /// In device units.
    [[nodiscard]] const ZAMMathBox2D& GetPage() const { return _Page; }
    [[nodiscard]] ZAMMathAffine2D ToDevice(const ZAMMathAffine2D& toPage) const;

    /// The first mark of a page that keeps its marks: it shows nothing and makes the others quick.
    void MarkWholePage();
    /// Covers what the clips leave open.
    void Paint(const ZAMPrintColour& colour);
    void PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage);
    /// Nothing when no clip is left.
    void PopClip();
    void PopAllClips();
    void DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen);
    void DrawImage(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toPage);

private:
    [[nodiscard]] ZAMMathBox2D GetView(double reach) const;
    void ClipTo(const ZAMMathBox2D& area, const ZAMMathAffine2D& toDevice);
    [[nodiscard]] bool IsMuchWork(double reach) const;
    void EmitFill();
    [[nodiscard]] std::vector<ZAMPrintCairoPattern> MakeTiles(const ZAMPrtFillPattern& pattern,
                                                              const ZAMMathAffine2D& toDevice);
    [[nodiscard]] ZAMPrintCairoPattern MakeRings(const ZAMPrtFillPattern& pattern, double opacity,
                                                 const ZAMMathAffine2D& toDevice) const;
    void Fill(const ZAMPrintFill& fill);
    void FillWithTiles(ZAMPrtFillRule rule, const std::vector<ZAMPrintCairoPattern>& tiles, double opacity);
    void Stroke(ZAMPrintCairoPen& pen);
    void StrokePieces(ZAMPrintCairoPen& pen);
    void AddSolid(const ZAMPrintPath& contour, const ZAMPrintCairoPen& pen);

    std::function<cairo_surface_t*()> _MakeSurface;
    ZAMPrintCairoRecord _Record; ///< until it is open
    ZAMPrintCairoContext _Context;
    Kind _Kind;
    ZAMPrintCairoPictures& _Pictures;
    ZAMMathBox2D _Page; ///< in device units
    double _Scale;
    int _Clips = 0;
    ZAMPrintCairoDevicePath _Path; ///< of the mark that is being drawn
    bool _IsMuchWork = false;      ///< to draw that mark
};
