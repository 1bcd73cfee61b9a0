// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressDrawnBox.h"

#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <cmath>

namespace {

// How far a stroke may reach from the geometry: to the tip of a mitre, or else to the corner of a square cap.
double StrokeReach(const ZAMPrepressElement& shape) {
    if (!shape.Has("stroke") || shape.Get("stroke") == "none") {
        return 0.0;
    }
    constexpr double kMiterLimit = 4.0;
    const double half = ZAMPrepressNumberOr(shape, "stroke-width", 1.0) / 2.0;
    const std::string_view join = shape.Get("stroke-linejoin");
    const bool isMitred =
        !shape.Is("circle") && !shape.Is("ellipse") && !shape.Is("line") && (join.empty() || join == "miter");
    return half * (isMitred ? ZAMPrepressNumberOr(shape, "stroke-miterlimit", kMiterLimit) : std::sqrt(2.0));
}

std::optional<ZAMMathBox2D> BoxOfShape(const ZAMPrepressElement& shape) {
    const auto path = ZAMPrepressPath::Of(shape);
    if (!path) {
        return std::nullopt;
    }
    const ZAMMathBox2D box = path->GetBox();
    const double reach = StrokeReach(shape);
    return box.IsEmpty() ? box : ZAMMathBox2D{box.xMin - reach, box.yMin - reach, box.xMax + reach, box.yMax + reach};
}

} // namespace

std::optional<ZAMMathBox2D> ZAMPrepressDrawnBoxes::OfContent(const ZAMPrepressElement& element) {
    const auto known = _Known.find(&element);
    return known != _Known.end() ? known->second : _Known.emplace(&element, Measure(element)).first->second;
}

std::optional<ZAMMathBox2D> ZAMPrepressDrawnBoxes::Measure(const ZAMPrepressElement& element) {
    ZAMMathBox2D all;
    for (const ZAMPrepressElement* child : element.children) {
        if (!ZAMPrepressIsDrawn(child->name)) {
            continue;
        }
        const auto box = child->Is("g") || child->Is("a") ? OfContent(*child) : BoxOfShape(*child);
        if (!box) {
            return std::nullopt;
        }
        if (!box->IsEmpty()) {
            const auto transform = ZAMPrepressReadTransform(child->Get("transform")).value_or(ZAMMathAffine2D());
            for (const ZAMMathPoint2D& corner : box->Corners()) {
                all.Add(transform.Apply(corner));
            }
        }
    }
    return all;
}
