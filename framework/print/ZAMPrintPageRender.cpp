// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintPageRender.h"

#include "framework/print/ZAMPrintClipScope.h"
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"
#include "framework/print/ZAMPrintOutline.h"
#include "framework/print/ZAMPrintSymbolFrame.h"
#include "framework/print/ZAMPrintTextPlacement.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// Traces into a path of lines and cubics.
class PathSink {
public:
    explicit PathSink(ZAMPrintPath& path) : _Path(path) { _Path.Clear(); }

    void MoveTo(const ZAMMathPoint2D& point) {
        _Path.MoveTo(point);
        _Current = point;
    }
    void LineTo(const ZAMMathPoint2D& point) {
        _Path.LineTo(point);
        _Current = point;
    }
    void QuadraticTo(const ZAMMathPoint2D& control, const ZAMMathPoint2D& end) {
        CubicTo(TwoThirds(_Current, control), TwoThirds(end, control), end);
    }
    void CubicTo(const ZAMMathPoint2D& control1, const ZAMMathPoint2D& control2, const ZAMMathPoint2D& end) {
        _Path.CubicTo(control1, control2, end);
        _Current = end;
    }
    void ArcTo(const ZAMMathEllipticalArc& arc) {
        arc.ForEachCubic(
            [this](const auto& control1, const auto& control2, const auto& end) { CubicTo(control1, control2, end); });
    }
    void ClosePath() { _Path.ClosePath(); }

private:
    static ZAMMathPoint2D TwoThirds(const ZAMMathPoint2D& from, const ZAMMathPoint2D& to) {
        return {from.x + (to.x - from.x) * 2.0 / 3.0, from.y + (to.y - from.y) * 2.0 / 3.0};
    }

    ZAMPrintPath& _Path;
    ZAMMathPoint2D _Current;
};

bool IsDashPattern(std::span<const float> lengths) {
    float longest = 0.0F;
    for (const float length : lengths) {
        if (!std::isfinite(length) || length < 0.0F) {
            return false;
        }
        longest = std::max(longest, length);
    }
    return longest > 0.0F;
}

bool Strokes(ZAMPrtDrawStyle style) {
    return style != ZAMPrtDrawStyle::None && style != ZAMPrtDrawStyle::Fill;
}

bool Fills(ZAMPrtDrawStyle style) {
    return style == ZAMPrtDrawStyle::Fill || style == ZAMPrtDrawStyle::StrokeAndFill;
}

bool IsUsable(const ZAMPrtFillPattern* pattern) {
    return pattern != nullptr && pattern->image && pattern->size.IsPositive() && pattern->step.IsPositive() &&
           pattern->refPoint.IsFinite();
}

ZAMPrintLineAttribute OneOf(ZAMPrintLineAttribute code, ZAMPrintLineAttribute first, ZAMPrintLineAttribute last) {
    return code >= first && code <= last ? code : first;
}

} // namespace

void ZAMPrintPageRender::DrawChildren(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& toPage) {
    for (const auto& child : element.GetChildren()) {
        DrawElement(*child, toPage * child->GetTransformAttributes().GetMatrix());
    }
}

void ZAMPrintPageRender::DrawElement(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& toPage) {
    const ZAMPrtGraphicPrimitiveElt* const pointer = &element;
    const auto drawShape = [&](const auto& shape) {
        PathSink sink(_Path);
        ZAMPrintTraceShape(shape, sink);
        PaintPath(shape, toPage);
    };
    const auto drawPiece = [&](const auto& piece) {
        PathSink sink(_Path);
        ZAMPrintContourTracer tracer(sink);
        tracer.Add(piece);
        StrokePath(piece.GetStrokeAttributes(), toPage);
    };
    if (const auto* group = ZAMPrtCast<ZAMPrtGroupElt>(pointer)) {
        DrawGroup(*group, toPage);
    } else if (const auto* figure = ZAMPrtCast<ZAMPrtClosedFigureElt>(pointer)) {
        PathSink sink(_Path);
        ZAMPrintTraceFigure(*figure, sink);
        PaintPath(*figure, toPage);
    } else if (const auto* text = ZAMPrtCast<ZAMPrtTextElt>(pointer)) {
        DrawText(*text, toPage);
    } else if (const auto* bitmap = ZAMPrtCast<ZAMPrtBitmapImageElt>(pointer)) {
        DrawBitmap(*bitmap, toPage);
    } else if (const auto* symbol = ZAMPrtCast<ZAMPrtSymbolElt>(pointer)) {
        DrawSymbol(*symbol, toPage);
    } else if (ZAMPrtCast<ZAMPrtPatternElt>(pointer) != nullptr) {
        // Fills show it.
    } else if (!ZAMPrintShapes::Visit(pointer, drawShape) && !ZAMPrintPieces::Visit(pointer, drawPiece)) {
        DrawChildren(element, toPage);
    }
}

void ZAMPrintPageRender::DrawGroup(const ZAMPrtGroupElt& group, const ZAMMathAffine2D& toPage) {
    if (group.IsContinuousOutline()) {
        DrawOutlines(group, toPage);
    } else {
        DrawChildren(group, toPage);
    }
    AddLink(group, toPage);
}

void ZAMPrintPageRender::DrawSymbol(const ZAMPrtSymbolElt& symbol, const ZAMMathAffine2D& toPage) {
    std::optional<ZAMPrintClipScope> clip;
    if (symbol.HasSize()) {
        clip.emplace(_Generator, ZAMPrintSymbolArea(symbol), toPage);
    }
    DrawChildren(symbol, toPage * ZAMPrintSymbolContent(symbol));
}

void ZAMPrintPageRender::DrawBitmap(const ZAMPrtBitmapImageElt& bitmap, const ZAMMathAffine2D& toPage) {
    if (bitmap.GetPixelImage() != nullptr && bitmap.GetSize().IsPositive()) {
        _Generator.DrawImage(ZAMRef<ZAMPixelImage>::Share(bitmap.GetPixelImage()), toPage * bitmap.GetPlacement());
    }
}

// Pieces that follow one another with the same stroke are one path; whatever else stands between them is drawn in its
// turn.
void ZAMPrintPageRender::DrawOutlines(const ZAMPrtGroupElt& group, const ZAMMathAffine2D& toPage) {
    const auto children = group.GetChildren();
    auto child = children.begin();
    while (child != children.end()) {
        const ZAMPrtStrokeAttributes* stroke = nullptr;
        PathSink sink(_Path);
        ZAMPrintContourTracer tracer(sink);
        for (; child != children.end(); ++child) {
            const ZAMPrtGraphicPrimitiveElt* const element = child->Get();
            bool joins = false;
            ZAMPrintPieces::Visit(element, [&](const auto& piece) {
                joins = piece.GetTransformAttributes().IsIdentity() &&
                        (stroke == nullptr || *stroke == piece.GetStrokeAttributes());
                if (joins) {
                    stroke = &piece.GetStrokeAttributes();
                    tracer.Add(piece);
                }
            });
            if (!joins) {
                break;
            }
        }
        tracer.Finish();
        if (stroke != nullptr) {
            StrokePath(*stroke, toPage);
        } else {
            DrawElement(**child, toPage * (*child)->GetTransformAttributes().GetMatrix());
            ++child;
        }
    }
}

void ZAMPrintPageRender::AddLink(const ZAMPrtGroupElt& group, const ZAMMathAffine2D& toPage) {
    if (!group.GetGroupAttributes().HasLinkURI()) {
        return;
    }
    const ZAMPrintLinkURI link = group.GetGroupAttributes().GetLinkURI();
    const bool isInternal = link.GetBaseURL().IsEmpty();
    const std::string* const destination = isInternal ? _Destinations.FindName(link.GetElementId()) : nullptr;
    if (isInternal && destination == nullptr) {
        return;
    }
    const ZAMMathBox2D page{0.0, 0.0, _Placement.pageWidth, _Placement.pageHeight};
    const ZAMMathBox2D area = ZAMPrintModelBoundingBoxComputer::BoxOf(group, toPage).Intersection(page);
    if (area.IsEmpty()) {
        return;
    }
    if (isInternal) {
        _Generator.AddInternalLink(area, *destination);
    } else {
        _Generator.AddLink(area, link.GetBaseURL());
    }
}

void ZAMPrintPageRender::DrawText(const ZAMPrtTextElt& text, const ZAMMathAffine2D& toPage) {
    Paint paint = PaintOf(text);
    if (!paint.Paints()) {
        return;
    }
    // A layout's units start at the text's position, those of its pattern where the element's do.
    ZAMPrtFillPattern pattern;
    if (paint.fill.pattern != nullptr) {
        pattern = *paint.fill.pattern;
        pattern.refPoint.x -= text.GetPosition().x;
        pattern.refPoint.y -= text.GetPosition().y;
        paint.fill.pattern = &pattern;
    }
    const ZAMTextLayout layout = ZAMPrintLayOut(text);
    if (!layout.IsEmpty()) {
        _Generator.DrawText(layout, toPage * ZAMPrintTextPlacement(text), paint.GetFill(), paint.GetPen());
    }
}

void ZAMPrintPageRender::PaintPath(const ZAMPrtPaintedElt& element, const ZAMMathAffine2D& toPage) {
    DrawPath(PaintOf(element), toPage);
}

void ZAMPrintPageRender::StrokePath(const ZAMPrtStrokeAttributes& stroke, const ZAMMathAffine2D& toPage) {
    Paint paint;
    paint.strokes = Resolve(stroke, paint.pen);
    DrawPath(paint, toPage);
}

void ZAMPrintPageRender::DrawPath(const Paint& paint, const ZAMMathAffine2D& toPage) {
    if (paint.Paints() && !_Path.IsEmpty()) {
        _Generator.DrawPath(_Path, toPage, paint.GetFill(), paint.GetPen());
    }
}

ZAMPrintPageRender::Paint ZAMPrintPageRender::PaintOf(const ZAMPrtPaintedElt& element) const {
    Paint paint;
    paint.fills = Fills(element.GetDrawStyle()) && Resolve(element.GetFillAttributes(), paint.fill);
    paint.strokes = Strokes(element.GetDrawStyle()) && Resolve(element.GetStrokeAttributes(), paint.pen);
    return paint;
}

bool ZAMPrintPageRender::Resolve(unsigned int index, unsigned char transparency, ZAMPrintColour& colour) const {
    const ZAMPrtColourTable* const table = _Image.GetColourTable();
    const ZAMPrtColourTable::Colour* const entry = table == nullptr ? nullptr : table->GetColour(index);
    if (entry == nullptr || transparency == 0) {
        return false;
    }
    colour = {entry->red, entry->green, entry->blue, transparency};
    return true;
}

bool ZAMPrintPageRender::Resolve(const ZAMPrtFillAttributes& attributes, ZAMPrintFill& fill) const {
    fill.rule = attributes.GetFillRule() == ZAMPrtFillRule::EvenOdd ? ZAMPrtFillRule::EvenOdd : ZAMPrtFillRule::NonZero;
    const unsigned char transparency = attributes.GetFillColourTransparency();
    if (attributes.GetFillStyle() == ZAMPrtFillStyle::Pattern && IsUsable(attributes.GetPattern())) {
        fill.pattern = attributes.GetPattern();
        fill.colour.alpha = transparency;
        return transparency > 0;
    }
    return Resolve(attributes.GetFillColourIndex(), transparency, fill.colour);
}

bool ZAMPrintPageRender::Resolve(const ZAMPrtStrokeAttributes& attributes, ZAMPrintPen& pen) const {
    pen.width = attributes.GetStrokeWidth();
    if (!std::isfinite(pen.width) || pen.width <= 0.0) {
        return false;
    }
    pen.cap = OneOf(attributes.GetStrokeCap(), ZAMPrintLineAttribute::CapButt, ZAMPrintLineAttribute::CapRound);
    pen.join = OneOf(attributes.GetStrokeJoin(), ZAMPrintLineAttribute::JoinMiter, ZAMPrintLineAttribute::JoinBevel);
    const auto dashes = attributes.GetStrokeTypePattern();
    if (attributes.GetStrokeType() == ZAMPrintLineAttribute::UserPattern && IsDashPattern(dashes)) {
        pen.dashes = dashes;
    }
    return Resolve(attributes.GetStrokeColourIndex(), attributes.GetStrokeColourTransparency(), pen.colour);
}
