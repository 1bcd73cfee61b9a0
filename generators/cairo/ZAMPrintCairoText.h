// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/print/ZAMPrintPaint.h"
#include "framework/print/ZAMPrintPath.h"
#include "framework/visualisation/ZAMTextLayout.h"
#include "generators/cairo/ZAMPrintCairoBitmaps.h"
#include "generators/cairo/ZAMPrintCairoCanvas.h"
#include "generators/cairo/ZAMPrintCairoFonts.h"

/// Draws a text: as text where the surface keeps that, else as outlines. In a picture cairo would move each glyph to
/// whole pixels, which makes the gaps between letters uneven.
class ZAMPrintCairoText {
public:
    /// All arguments are borrowed.
    ZAMPrintCairoText(ZAMPrintCairoCanvas& canvas, ZAMPrintCairoFonts& fonts, ZAMPrintCairoBitmaps& bitmaps,
                      const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage);

    /// Fills the text (unless `fill` is null), then strokes it (unless `pen` is null).
    void Draw(const ZAMPrintFill* fill, const ZAMPrintPen* pen);

private:
    [[nodiscard]] ZAMMath2x2Matrix ShapeOf(const ZAMTextRun& run) const;
    void Fill(const ZAMTextRun& run, const ZAMPrintFill& fill);
    [[nodiscard]] bool Show(const ZAMTextRun& run, const ZAMMath2x2Matrix& shape, const ZAMPrintColour& colour);
    void ShowBitmaps(const ZAMTextRun& run, const ZAMMath2x2Matrix& shape, double opacity);
    void PaintBitmaps(const ZAMTextRun& run, const ZAMMath2x2Matrix& shape, double opacity);
    void AddOutlines(const ZAMTextRun& run, const ZAMPrintFill* fill, const ZAMPrintPen* pen);
    void PaintOutlines(const ZAMPrintFill* fill, const ZAMPrintPen* pen);

    ZAMPrintCairoCanvas& _Canvas;
    ZAMPrintCairoFonts& _Fonts;
    ZAMPrintCairoBitmaps& _Bitmaps;
    const ZAMTextLayout& _Layout;
    const ZAMMathAffine2D& _ToPage;
    ZAMMathAffine2D _ToDevice;
    ZAMPrintPath _Outlines; ///< not painted yet
};
