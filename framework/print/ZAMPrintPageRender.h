// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtFillAttributes.h"
#include "framework/model/ZAMPrtStrokeAttributes.h"
#include "framework/print/ZAMPrintDestinations.h"
#include "framework/print/ZAMPrintGenerator.h"
#include "framework/print/ZAMPrintPlacement.h"

#include <vector>

/// Draws what one image element holds onto the page that the generator has begun.
class ZAMPrintPageRender {
public:
    /// All arguments are borrowed.
    ZAMPrintPageRender(const ZAMPrtImageElt& image, ZAMPrintGenerator& generator, const ZAMPrintPlacement& placement,
                       const ZAMPrintDestinations& destinations)
        : _Image(image), _Generator(generator), _Placement(placement), _Destinations(destinations) {}

    void Draw() { DrawChildren(_Image, _Placement.toPage); }

private:
    void DrawElement(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& toPage);
    void DrawChildren(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& toPage);
    void DrawGroup(const ZAMPrtGroupElt& group, const ZAMMathAffine2D& toPage);
    void DrawSymbol(const ZAMPrtSymbolElt& symbol, const ZAMMathAffine2D& toPage);
    void DrawBitmap(const ZAMPrtBitmapImageElt& bitmap, const ZAMMathAffine2D& toPage);
    void DrawOutlines(const ZAMPrtGroupElt& group, const ZAMMathAffine2D& toPage);
    void AddLink(const ZAMPrtGroupElt& group, const ZAMMathAffine2D& toPage);

    void PaintPath(const ZAMPrtPaintedElt& element, const ZAMMathAffine2D& toPage);
    void StrokePath(const ZAMPrtStrokeAttributes& stroke, const ZAMMathAffine2D& toPage);
    void DrawText(const ZAMPrtTextElt& text, const ZAMMathAffine2D& toPage);

    // The resolved paint of one mark.
    struct Paint {
        ZAMPrintFill fill;
        ZAMPrintPen pen;
        bool fills = false;
        bool strokes = false;

        [[nodiscard]] bool Paints() const { return fills || strokes; }
        [[nodiscard]] const ZAMPrintFill* GetFill() const { return fills ? &fill : nullptr; }
        [[nodiscard]] const ZAMPrintPen* GetPen() const { return strokes ? &pen : nullptr; }
    };
    [[nodiscard]] Paint PaintOf(const ZAMPrtPaintedElt& element) const;
    void DrawPath(const Paint& paint, const ZAMMathAffine2D& toPage);
    [[nodiscard]] bool Resolve(unsigned int index, unsigned char transparency, ZAMPrintColour& colour) const;
    [[nodiscard]] bool Resolve(const ZAMPrtFillAttributes& attributes, ZAMPrintFill& fill) const;
    [[nodiscard]] bool Resolve(const ZAMPrtStrokeAttributes& attributes, ZAMPrintPen& pen) const;

    const ZAMPrtImageElt& _Image;
    ZAMPrintGenerator& _Generator;
    const ZAMPrintPlacement& _Placement;
    const ZAMPrintDestinations& _Destinations;
    ZAMPrintPath _Path; // the mark at hand; kept for its memory
};
