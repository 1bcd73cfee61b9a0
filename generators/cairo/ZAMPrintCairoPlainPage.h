// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintPaint.h"
#include "framework/print/ZAMPrintPath.h"
#include "generators/cairo/ZAMPrintCairoDevicePath.h"
#include "generators/cairo/ZAMPrintCairoPen.h"
#include "generators/cairo/ZAMPrintCairoPlainPath.h"
#include "generators/cairo/ZAMPrintCairoPlainText.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Writes the content of a PDF page with nothing but plain paths on it. Of marks as they are on most drawings it makes
/// what cairo would make, in a tenth of the time and with fewer bytes; the others it leaves to cairo.
class ZAMPrintCairoPlainPage {
public:
    /// The size in points is what the page shows: all of it that was begun, or a little more.
    ZAMPrintCairoPlainPage(double width, double height);

    void Paint(const ZAMPrintColour& colour);
    void PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage);
    void PopClip();
    void DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen);

    /// There was no mark that only cairo can draw.
    [[nodiscard]] bool IsPlain() const { return _IsPlain; }
    /// The content, packed.
    [[nodiscard]] std::string Finish() { return _Text.Finish(); }
    /// The opacities that it names: /a128 for 128 of 255.
    [[nodiscard]] const std::set<int>& GetOpacities() const { return _Opacities; }

private:
    // The part of the graphics state that marks set, as it is at the start of a page; -1 is not set.
    struct State {
        ZAMPrintColour fill;
        ZAMPrintColour stroke;
        int opacity = 255;
        double width = 1.0;
        cairo_line_cap_t cap = CAIRO_LINE_CAP_BUTT;
        cairo_line_join_t join = CAIRO_LINE_JOIN_MITER;
        bool hasMiterLimit = false;
        std::vector<double> dashes;
        double dashOffset = 0.0;
    };
    struct Clip {
        enum class Kind { Everything, Nothing, Path };
        Kind kind = Kind::Everything; ///< what it leaves open
        ZAMPrintPath path;
        bool isWritten = false;
        State outside; ///< what is set when it ends
    };

    [[nodiscard]] bool Assign(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage);
    [[nodiscard]] bool IsHidden() const;
    [[nodiscard]] bool Shows(double reach) const;
    [[nodiscard]] bool HasWrittenArea() const;
    void WriteClips();
    void Fill(const ZAMPrintFill& fill);
    void Stroke(const ZAMPrintCairoPen& pen, std::string_view word);
    void StrokeShaped(const ZAMPrintCairoPen& pen);
    void SetColour(ZAMPrintColour& known, const ZAMPrintColour& colour, std::string_view word);
    void SetOpacity(int opacity);
    void SetPen(const ZAMPrintCairoPen& pen);
    void AddLength(double length);

    ZAMMathBox2D _Page;
    ZAMPrintCairoPlainText _Text;
    int _Decimals; ///< of coordinates
    ZAMPrintCairoPlainPath _Path;
    ZAMPrintCairoDevicePath _Device; ///< of the mark that is being drawn
    ZAMMathBox2D _Box;               ///< and what it reaches
    int _PathDecimals = 0;           ///< and how it is written
    State _State;
    std::vector<Clip> _Clips;
    std::set<int> _Opacities;
    bool _IsPlain = true;
};
