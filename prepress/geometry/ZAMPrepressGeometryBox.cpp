// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressGeometryBox.h"

#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <algorithm>

namespace {

void AddImage(ZAMMathBox2D& box, const ZAMPrepressElement& image, const ZAMMathAffine2D& map) {
    const double x = ZAMPrepressNumberOr(image, "x", 0.0);
    const double y = ZAMPrepressNumberOr(image, "y", 0.0);
    const double width = ZAMPrepressNumberOr(image, "width", 0.0);
    const double height = ZAMPrepressNumberOr(image, "height", 0.0);
    for (const ZAMMathPoint2D& corner : ZAMMathBox2D{x, y, x + width, y + height}.Corners()) {
        box.Add(map.Apply(corner));
    }
}

} // namespace

bool ZAMPrepressAddGeometry(ZAMMathBox2D& box, const ZAMPrepressElement& element, const ZAMMathAffine2D& map) {
    if (element.Is("image")) {
        AddImage(box, element, map);
        return true;
    }
    if (auto path = ZAMPrepressPath::Of(element)) {
        for (ZAMPrepressPath::Segment& segment : path->segments) {
            segment.control1 = map.Apply(segment.control1);
            segment.control2 = map.Apply(segment.control2);
            segment.end = map.Apply(segment.end);
        }
        const ZAMMathBox2D outline = path->GetBox();
        box.Add({outline.xMin, outline.yMin});
        box.Add({outline.xMax, outline.yMax});
        return true;
    }
    const bool holdsContent = ZAMPrepressIsContainer(element.name) || element.Is("clipPath");
    return holdsContent && std::ranges::all_of(element.children, [&](const ZAMPrepressElement* child) {
               return !ZAMPrepressIsDrawn(child->name) || ZAMPrepressAddTransformedGeometry(box, *child, map);
           });
}

bool ZAMPrepressAddTransformedGeometry(ZAMMathBox2D& box, const ZAMPrepressElement& element,
                                       const ZAMMathAffine2D& map) {
    const auto transform = ZAMPrepressReadTransform(element.Get("transform"));
    return ZAMPrepressAddGeometry(box, element, map * transform.value_or(ZAMMathAffine2D()));
}
