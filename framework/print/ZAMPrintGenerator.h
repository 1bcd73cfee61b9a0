// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintPaint.h"
#include "framework/print/ZAMPrintParameters.h"
#include "framework/print/ZAMPrintPath.h"
#include "framework/visualisation/ZAMPixelImage.h"
#include "framework/visualisation/ZAMTextLayout.h"

#include <limits>
#include <string>
#include <string_view>

/// The interface of an output: one call a mark, in drawing order.
///
/// Page coordinates are points (1/72 inch) from the page's upper left corner, y downward. A generator keeps no drawing
/// state but its page and its clips: every mark comes with its map to the page and its resolved paint. It must bear any
/// numbers: a mark that cannot be drawn (not finite, singular, out of reach) is left out or cut and harms nothing else.
///
/// The operations that return an int give 1 done, -1 failed; after a failure the document is lost and GetError says
/// why. Marks report nothing; what goes wrong with them shows at the end of the page or of the document.
class ZAM_EXPORT ZAMPrintGenerator {
public:
    ZAMPrintGenerator() = default;
    ZAMPrintGenerator(const ZAMPrintGenerator&) = delete;
    ZAMPrintGenerator& operator=(const ZAMPrintGenerator&) = delete;
    virtual ~ZAMPrintGenerator();

    /// The largest side of a page in points; a larger page is made smaller, with all that is on it, before it begins.
    [[nodiscard]] virtual double GetLargestPageSide() const { return std::numeric_limits<double>::infinity(); }

    virtual int BeginDocument(const ZAMPrintParameters& parameters) = 0;
    /// A page of the given size in points, finite and positive. The background of the parameters covers it.
    virtual int BeginPage(double width, double height) = 0;
    virtual int EndPage() = 0;
    /// The output is complete when this has returned 1.
    virtual int EndDocument() = 0;

    /// Nothing outside `area`, mapped to the page, is drawn until the matching PopClip. Clips nest.
    virtual void PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) = 0;
    virtual void PopClip() = 0;

    /// The area (page coordinates, upright) leads to `address` when it is clicked, where the output can do that.
    virtual void AddLink(const ZAMMathBox2D& area, std::string_view address) = 0;
    /// The area leads to the destination of that name when it is clicked, where the output can do that. The destination
    /// may be added later, on this page or another; a link whose destination is never added leads nowhere.
    virtual void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) = 0;
    /// Names a place on the page (page coordinates) for links. The first of several with one name counts.
    virtual void AddDestination(std::string_view name, const ZAMMathPoint2D& place) = 0;

    /// Fills the path (unless `fill` is null), then strokes it (unless `pen` is null).
    virtual void DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                          const ZAMPrintPen* pen) = 0;

    /// Fills the glyphs of a text, then strokes them, as DrawPath does with a path. The map carries the layout's units,
    /// relative to its anchor point, to the page. Where the output can, the text stays text.
    virtual void DrawText(const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                          const ZAMPrintPen* pen) = 0;

    /// Draws a picture. The map carries the unit square to the page: 0,0 is the picture's lower left corner and 1,1 its
    /// upper right. The image may be held on to until the document ends.
    virtual void DrawImage(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toPage) = 0;

    /// What went wrong, in words for a person; empty when nothing did.
    [[nodiscard]] virtual std::string GetError() const = 0;
};
