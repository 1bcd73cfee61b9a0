// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGUnset.h"

#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtTypeList.h"

namespace {

constexpr auto kDrawStyle = ZAMPrtDrawStyle::Explicit;
constexpr unsigned int kColourIndex = 10000;
constexpr unsigned char kTransparency = 200;
constexpr auto kStrokeType = static_cast<ZAMPrintLineAttribute>(15);
constexpr double kLength = -1.0;
constexpr unsigned char kStrokeStyle = 1;
constexpr auto kCapAndJoin = static_cast<ZAMPrintLineAttribute>(1);
constexpr auto kFillStyle = static_cast<ZAMPrtFillStyle>(1);
constexpr auto kFillRule = static_cast<ZAMPrtFillRule>(1);
constexpr auto kWeightAndAnchor = static_cast<ZAMPrintTextAttribute>(11);
constexpr float kAngle = -1.0F;
constexpr auto kWritingMode = static_cast<ZAMPrtTextWritingMode>(3);

using PaintedElements = ZAMPrtTypeList<ZAMPrtCircleElt, ZAMPrtClosedFigureElt, ZAMPrtEllipseElt, ZAMPrtEllipticalArcElt,
                                       ZAMPrtPolygonElt, ZAMPrtRectangleElt>;
using StrokedElements =
    ZAMPrtTypeList<ZAMPrtLineElt, ZAMPrtPolyCubicBezierElt, ZAMPrtPolylineElt, ZAMPrtPolyQuadraticBezierElt>;
using CompletedContainers =
    ZAMPrtTypeList<ZAMPrtClosedFigureElt, ZAMPrtClosedFigureRegionElt, ZAMPrtGroupElt, ZAMPrtImageElt, ZAMPrtSymbolElt>;

// With the type comes the dash pattern.
void Complete(ZAMPrtStrokeAttributes& stroke, const ZAMPrtStrokeAttributes& current) {
    if (stroke.GetStrokeColourIndex() == kColourIndex) {
        stroke.SetStrokeColourIndex(current.GetStrokeColourIndex());
    }
    if (stroke.GetStrokeColourTransparency() == kTransparency) {
        stroke.SetStrokeColourTransparency(current.GetStrokeColourTransparency());
    }
    if (stroke.GetStrokeType() == kStrokeType) {
        stroke.SetStrokeType(current.GetStrokeType());
        stroke.SetStrokeTypePatternOf(current);
    }
    if (stroke.GetStrokeWidth() == kLength) {
        stroke.SetStrokeWidth(current.GetStrokeWidth());
    }
    if (stroke.GetStrokeStyle() == kStrokeStyle) {
        stroke.SetStrokeStyle(current.GetStrokeStyle());
    }
    if (stroke.GetStrokeCap() == kCapAndJoin) {
        stroke.SetStrokeCap(current.GetStrokeCap());
    }
    if (stroke.GetStrokeJoin() == kCapAndJoin) {
        stroke.SetStrokeJoin(current.GetStrokeJoin());
    }
}

// A colour that is set ends the pattern, so style and pattern are written after it.
void Complete(ZAMPrtFillAttributes& fill, const ZAMPrtFillAttributes& current) {
    const ZAMPrtFillAttributes before = fill;
    if (before.GetFillColourIndex() == kColourIndex) {
        fill.SetFillColourIndex(current.GetFillColourIndex());
    }
    const ZAMPrtFillAttributes& styled = before.GetFillStyle() == kFillStyle ? current : before;
    fill.SetFillStyle(styled.GetFillStyle());
    fill.SetPatternOf(styled);
    if (fill.GetFillRule() == kFillRule) {
        fill.SetFillRule(current.GetFillRule());
    }
    if (fill.GetFillColourTransparency() == kTransparency) {
        fill.SetFillColourTransparency(current.GetFillColourTransparency());
    }
}

void Complete(ZAMPrtTextAttributes& text, const ZAMPrtTextAttributes& current) {
    if (text.GetFont() == nullptr) {
        text.SetFont(current.GetFont());
    }
    if (text.GetWeight() == kWeightAndAnchor) {
        text.SetWeight(current.GetWeight());
    }
    if (text.GetHeight() == kLength) {
        text.SetHeight(current.GetHeight());
    }
    if (text.GetAnchor() == kWeightAndAnchor) {
        text.SetAnchor(current.GetAnchor());
    }
    if (text.GetSlant() == kAngle) {
        text.SetSlant(current.GetSlant());
    }
    if (text.GetDirection() == kAngle) {
        text.SetDirection(current.GetDirection());
    }
    if (text.GetExtraSpacing() == kLength) {
        text.SetExtraSpacing(current.GetExtraSpacing());
    }
    if (text.GetExpansion() == kLength) {
        text.SetExpansion(current.GetExpansion());
    }
    if (text.GetWritingMode() == kWritingMode) {
        text.SetWritingMode(current.GetWritingMode());
    }
}

void CompleteStroke(ZAMPrtStrokedElt& element, const ZAMPrintSVGAttributeState& state) {
    ZAMPrtStrokeAttributes stroke = element.GetStrokeAttributes();
    Complete(stroke, state._StrokeAttributes);
    element.SetStrokeAttributes(stroke);
}

void CompletePaint(ZAMPrtPaintedElt& element, const ZAMPrintSVGAttributeState& state) {
    if (element.GetDrawStyle() == kDrawStyle) {
        element.SetDrawStyle(state._DrawStyle);
    }
    CompleteStroke(element, state);
    ZAMPrtFillAttributes fill = element.GetFillAttributes();
    Complete(fill, state._FillAttributes);
    element.SetFillAttributes(fill);
}

void CompleteText(ZAMPrtTextElt& element, const ZAMPrintSVGAttributeState& state) {
    CompletePaint(element, state);
    ZAMPrtTextAttributes text = element.GetTextAttributes();
    Complete(text, state._TextAttributes);
    element.SetTextAttributes(text);
}

} // namespace

void ZAMPrintSVGUnset::Mark(ZAMPrintSVGAttributeState& state) {
    state._DrawStyle = kDrawStyle;

    ZAMPrtStrokeAttributes& stroke = state._StrokeAttributes;
    stroke.SetStrokeColourIndex(kColourIndex);
    stroke.SetStrokeColourTransparency(kTransparency);
    stroke.SetStrokeType(kStrokeType);
    stroke.SetStrokeWidth(kLength);
    stroke.SetStrokeStyle(kStrokeStyle);
    stroke.SetStrokeCap(kCapAndJoin);
    stroke.SetStrokeJoin(kCapAndJoin);

    ZAMPrtFillAttributes fill;
    fill.SetFillColourIndex(kColourIndex);
    fill.SetFillColourTransparency(kTransparency);
    fill.SetFillRule(kFillRule);
    fill.SetFillStyle(kFillStyle);
    fill.SetPatternOf(state._FillAttributes);
    state._FillAttributes = fill;

    ZAMPrtTextAttributes& text = state._TextAttributes;
    text.SetFont(nullptr);
    text.SetWeight(kWeightAndAnchor);
    text.SetHeight(kLength);
    text.SetAnchor(kWeightAndAnchor);
    text.SetSlant(kAngle);
    text.SetDirection(kAngle);
    text.SetExtraSpacing(kLength);
    text.SetExpansion(kLength);
    text.SetWritingMode(kWritingMode);
}

void ZAMPrintSVGUnset::Complete(ZAMPrtGraphicPrimitiveElt& element, const ZAMPrintSVGAttributeState& state) {
    ZAMPrtGraphicPrimitiveElt* const pointer = &element;
    PaintedElements::Visit(pointer, [&](auto& painted) { CompletePaint(painted, state); }) ||
        StrokedElements::Visit(pointer, [&](auto& stroked) { CompleteStroke(stroked, state); }) ||
        ZAMPrtTypeList<ZAMPrtTextElt>::Visit(pointer, [&](auto& text) { CompleteText(text, state); });
    if (CompletedContainers::Holds(pointer)) {
        for (const auto& child : element.GetChildren()) {
            Complete(*child, state);
        }
    }
}
