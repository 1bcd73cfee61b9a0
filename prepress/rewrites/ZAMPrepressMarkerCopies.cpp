// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressMarkerCopies.h"

#include "prepress/document/ZAMPrepressClipPaths.h"
#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/geometry/ZAMPrepressTransformText.h"

#include <algorithm>

namespace {

constexpr std::string_view kBlack = "#000000";
constexpr std::string_view kNone = "none";

} // namespace

ZAMPrepressMarkedPaint ZAMPrepressMarkedPaint::Of(const ZAMPrepressElement& shape) {
    return {shape.Find("fill"), shape.Find("stroke"), ZAMPrepressNumberOr(shape, "opacity", 1.0)};
}

ZAMPrepressElement* ZAMPrepressMarkerCopies::Make(ZAMPrepressMarker& marker, const ZAMMathAffine2D& map,
                                                  const ZAMPrepressMarkedPaint& paint) {
    if (!map.IsFinite() || map.a * map.d == map.b * map.c) {
        return nullptr;
    }
    ZAMPrepressElement* const group = _Tree.Copy(*marker.content);
    if (group == nullptr) {
        return nullptr;
    }
    std::erase_if(group->children, [](const ZAMPrepressElement* child) { return !ZAMPrepressIsDrawn(child->name); });
    std::ranges::for_each(group->children, [&](ZAMPrepressElement* child) { Adapt(*child, paint); });
    group->name = "g";
    group->attributes = {{"transform", _Tree.Keep(ZAMPrepressTransformText(map))}};
    if (!marker.clip.empty()) {
        group->Set("clip-path", marker.clip);
    } else if (marker.isClipped) {
        ZAMPrepressSetClip(*group, *marker.shape.GetClip(), _Ids, _Tree);
        marker.clip = group->Get("clip-path");
    }
    return group;
}

// A copy has no id of its own, and may be painted as the shape is.
void ZAMPrepressMarkerCopies::Adapt(ZAMPrepressElement& element, const ZAMPrepressMarkedPaint& paint) {
    element.Remove("id");
    for (const std::string_view attribute : {"fill", "stroke"}) {
        const std::string_view value = element.Get(attribute);
        if (value == "context-fill" || value == "context-stroke") {
            const auto& given = value == "context-fill" ? paint.fill : paint.stroke;
            const std::string_view initial = value == "context-fill" ? kBlack : kNone;
            element.Set(attribute, given.value_or(initial));
        }
    }
    if (element.Get("stroke") == kNone) {
        element.Remove("stroke");
    }
    std::erase_if(element.children, [](const ZAMPrepressElement* child) {
        return !child->IsText() && !ZAMPrepressIsDrawn(child->name) && !ZAMPrepressIsTextPart(child->name);
    });
    if (paint.opacity != 1.0 && element.Get("fill") != kNone && !element.Is("g") && !element.IsText()) {
        Fade(element, "fill-opacity", paint.opacity);
    }
    if (paint.opacity != 1.0 && element.Has("stroke")) {
        Fade(element, "stroke-opacity", paint.opacity);
    }
    std::ranges::for_each(element.children, [&](ZAMPrepressElement* child) { Adapt(*child, paint); });
}

void ZAMPrepressMarkerCopies::Fade(ZAMPrepressElement& element, std::string_view attribute, double opacity) {
    element.Set(attribute, _Tree.Keep(ZAMPrepressNumberText(ZAMPrepressNumberOr(element, attribute, 1.0) * opacity)));
}
