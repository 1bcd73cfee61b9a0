// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/print/ZAMPrintGenerator.h"

#include <memory>
#include <ostream>

/// Draws a model with cairo: PDF (ISO 32000), PostScript, encapsulated PostScript, SVG 1.1 or PNG (ISO 15948), written
/// to a stream that outlives the generator.
///
/// One generator makes one document. A PDF has a page for each page of the model, of its own size, up to 14,400 points
/// a side; one whose size differs from that of the page before it has its sides rounded up to whole points. A PNG is
/// one picture: the first page; later pages draw nothing. Its sides are the page's size at the resolution of the
/// parameters, at least 1 and at most 32,767 pixels, 2^27 in all; more is an error of BeginPage. Without a background
/// it is transparent.
///
/// PostScript has pages as PDF has, at least a point a side; encapsulated PostScript and SVG are the first page alone,
/// an SVG drawing of at most 100,000 points a side. None of these has links. PostScript knows no transparency: what
/// lies under something translucent becomes pixels, 300 to the inch or, on a large page, fewer. Text in an SVG drawing
/// is outlines.
///
/// No document can put the output into an error state: non-finite marks are left out, geometry is cut far outside the
/// page, and singular maps paint nothing.
class ZAM_EXPORT ZAMPrintCairoGenerator : public ZAMPrintGenerator {
public:
    enum class Format { Pdf, Ps, Eps, Svg, Png };

    ZAMPrintCairoGenerator(Format format, std::ostream& out);
    ~ZAMPrintCairoGenerator() override;

    [[nodiscard]] double GetLargestPageSide() const override;
    int BeginDocument(const ZAMPrintParameters& parameters) override;
    int BeginPage(double width, double height) override;
    int EndPage() override;
    int EndDocument() override;
    void PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) override;
    void PopClip() override;
    void AddLink(const ZAMMathBox2D& area, std::string_view address) override;
    void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) override;
    void AddDestination(std::string_view name, const ZAMMathPoint2D& place) override;
    void DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen) override;
    /// A PDF holds text that can be selected and searched, with the used parts of its fonts. Strokes of text, text that
    /// is filled with a pattern or has an em above 2,000 points, and all text of a PNG are outlines; emoji are
    /// pictures.
    void DrawText(const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen) override;
    /// A PDF holds each image once, a JPEG as it was read, and readers show its pixels as squares. A PNG shows it
    /// smoothed unless it is enlarged four times or more.
    void DrawImage(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toPage) override;
    [[nodiscard]] std::string GetError() const override;

private:
    class Implementation;
    std::unique_ptr<Implementation> _Implementation;
};
