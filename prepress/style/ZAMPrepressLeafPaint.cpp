// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressLeafPaint.h"

#include "prepress/style/ZAMPrepressDashes.h"
#include "prepress/style/ZAMPrepressPaint.h"

#include <algorithm>
#include <utility>

namespace {

using Element = ZAMPrepressElement;
using Kind = ZAMPrepressPaint::Kind;
using Property = ZAMPrepressProperty;
using Scope = ZAMPrepressPaintScope;
using Style = ZAMPrepressComputedStyle;

constexpr std::string_view kNone = "none";
constexpr std::string_view kServers[] = {"linearGradient", "radialGradient", "pattern"};
constexpr std::string_view kMarked[] = {"path", "line", "polyline", "polygon"};

std::string ToUrl(std::string_view id) {
    return std::string("url(#").append(id).append(")");
}

} // namespace

bool ZAMPrepressLeafPaint::IsServer(std::string_view id) const {
    const Element* const element = _Ids.Find(id);
    return element != nullptr && std::ranges::find(kServers, element->name) != std::end(kServers);
}

ZAMPrepressLeafPaint::Resolved ZAMPrepressLeafPaint::Resolve(Property property, Property opacity, const Style& style,
                                                             const Scope& scope) const {
    const double inherited = scope.opacity * style.GetNumber(opacity);
    const auto paint = ZAMPrepressPaint::Parse(style.Get(property));
    if (!paint || inherited <= 0.0) {
        return {std::string(kNone)};
    }
    if (!paint->reference.empty() && IsServer(paint->reference)) {
        std::string url = ToUrl(paint->reference);
        if (paint->kind == Kind::Colour) { // for a server that paints nothing
            url.append(" ").append(paint->colour.ToHex());
        }
        return {std::move(url), inherited};
    }
    switch (paint->kind) {
    case Kind::None:
        return {std::string(kNone)};
    case Kind::ContextFill:
    case Kind::ContextStroke:
        return {scope.isInMarker ? paint->kind == Kind::ContextFill ? "context-fill" : "context-stroke"
                                 : std::string(kNone),
                inherited};
    default:
        break;
    }
    const auto current = ZAMPrepressPaint::Parse(style.Get(Property::Color));
    const ZAMPrepressColour colour = paint->kind == Kind::CurrentColour && current ? current->colour : paint->colour;
    const double total = inherited * colour.alpha;
    return {total > 0.0 ? colour.ToHex() : std::string(kNone), total};
}

void ZAMPrepressLeafPaint::Write(Element& element, const Style& style, const Scope& scope) {
    if (element.Is("image")) {
        WriteNumber(element, Property::FillOpacity, scope.opacity);
        return;
    }
    if (!element.Is("line")) {
        WriteFill(element, style, scope);
    }
    WriteStroke(element, style, scope);
    if (scope.isInClip) {
        WriteValue(element, style, Property::ClipRule);
    }
}

void ZAMPrepressLeafPaint::WriteFill(Element& element, const Style& style, const Scope& scope) {
    const Resolved fill = Resolve(Property::Fill, Property::FillOpacity, style, scope);
    WriteText(element, ZAMPrepressGetRow(Property::Fill), fill.paint);
    if (fill.paint == kNone) {
        return;
    }
    WriteNumber(element, Property::FillOpacity, fill.opacity);
    if (!style.Is(Property::FillRule, "nonzero")) {
        element.Set("style", "fill-rule:evenodd");
    }
}

void ZAMPrepressLeafPaint::WriteStroke(Element& element, const Style& style, const Scope& scope) {
    const double scale =
        style.Is(Property::VectorEffect, kNone) || scope.strokeScale <= 0.0 ? 1.0 : 1.0 / scope.strokeScale;
    const double width = style.GetNumber(Property::StrokeWidth) * scale;
    const Resolved stroke = Resolve(Property::Stroke, Property::StrokeOpacity, style, scope);
    const bool isMarked = WriteMarkers(element, style);
    const bool isStroked = width > 0.0 && stroke.paint != kNone;
    if (isStroked || isMarked) { // markers have the size of the stroke that may not be there
        WriteNumber(element, Property::StrokeWidth, width);
    }
    if (isMarked) { // and its opacity, which is no more to be told from that of fill and stroke
        WriteNumber(element, Property::Opacity, scope.opacity);
    }
    if (!isStroked) {
        return;
    }
    WriteText(element, ZAMPrepressGetRow(Property::Stroke), stroke.paint);
    WriteNumber(element, Property::StrokeOpacity, stroke.opacity);
    WriteValue(element, style, Property::StrokeLinecap);
    WriteValue(element, style, Property::StrokeLinejoin);
    WriteValue(element, style, Property::StrokeMiterlimit);
    WriteDashes(element, style, scale);
}

void ZAMPrepressLeafPaint::WriteDashes(Element& element, const Style& style, double scale) {
    const std::string_view dashes = style.Get(Property::StrokeDasharray);
    if (dashes == kNone) {
        return;
    }
    const double offset = style.GetNumber(Property::StrokeDashoffset);
    if (offset == 0.0 && scale == 1.0) {
        WriteValue(element, style, Property::StrokeDasharray);
        return;
    }
    element.Set(ZAMPrepressGetRow(Property::StrokeDasharray).name,
                _Tree.Keep(ZAMPrepressShiftDashes(dashes, offset, scale, style.Is(Property::StrokeLinecap, "butt"))));
}

// Whether there are any.
bool ZAMPrepressLeafPaint::WriteMarkers(Element& element, const Style& style) {
    if (std::ranges::find(kMarked, element.name) == std::end(kMarked)) {
        return false;
    }
    constexpr Property kMarkers[] = {Property::MarkerStart, Property::MarkerMid, Property::MarkerEnd};
    for (const Property marker : kMarkers) {
        WriteValue(element, style, marker);
    }
    return std::ranges::any_of(kMarkers, [&](Property marker) { return !style.Is(marker, kNone); });
}

void ZAMPrepressLeafPaint::WriteStop(Element& stop, const Style& style) {
    auto paint = ZAMPrepressPaint::Parse(style.Get(Property::StopColor));
    if (paint && paint->kind == Kind::CurrentColour) {
        paint = ZAMPrepressPaint::Parse(style.Get(Property::Color));
    }
    const ZAMPrepressColour colour = paint ? paint->colour : ZAMPrepressColour();
    stop.Set("stop-color", _Tree.Keep(colour.ToHex()));
    stop.Set("stop-opacity", _Tree.Keep(ZAMPrepressNumberText(colour.alpha * style.GetNumber(Property::StopOpacity))));
}

void ZAMPrepressLeafPaint::WriteText(Element& element, const ZAMPrepressPropertyRow& row, std::string_view value) {
    if (value != row.initial) {
        element.Set(row.name, _Tree.Keep(std::string(value)));
    }
}

void ZAMPrepressLeafPaint::WriteNumber(Element& element, Property property, double number) {
    if (number != 1.0) { // which is the initial value of all that come here
        element.Set(ZAMPrepressGetRow(property).name, _Tree.Keep(ZAMPrepressNumberText(number)));
    }
}

void ZAMPrepressLeafPaint::WriteValue(Element& element, const Style& style, Property property) {
    const ZAMPrepressPropertyRow& row = ZAMPrepressGetRow(property);
    if (!style.Is(property, row.initial)) {
        element.Set(row.name, style.Get(property));
    }
}
