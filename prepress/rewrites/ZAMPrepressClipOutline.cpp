// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressClipOutline.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/geometry/ZAMPrepressGeometryBox.h"
#include "prepress/geometry/ZAMPrepressTransform.h"
#include "prepress/paint/ZAMPrepressLeafSpace.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t kSegmentsOfElement = 16; // that are as much work as an element

// Null unless there is exactly one.
ZAMPrepressElement* OnlyDrawnChild(const ZAMPrepressElement& element) {
    const auto isDrawn = [](const ZAMPrepressElement* child) { return ZAMPrepressIsDrawn(child->name); };
    const auto end = element.children.end();
    const auto first = std::find_if(element.children.begin(), end, isDrawn);
    return first != end && std::find_if(first + 1, end, isDrawn) == end ? *first : nullptr;
}

// Twice the area of a figure that does not cross itself, as the sum of triangles.
double DoubleArea(const ZAMPrepressPath& path) {
    double area = 0.0;
    ZAMMathPoint2D current = path.segments.back().end;
    for (const ZAMPrepressPath::Segment& segment : path.segments) {
        area += current.x * segment.end.y - current.y * segment.end.x;
        current = segment.end;
    }
    return std::abs(area);
}

bool IsStroked(const ZAMPrepressElement& leaf) {
    return leaf.Has("stroke") && leaf.Get("stroke") != "none";
}

void SetShape(ZAMPrepressElement& leaf, std::string_view data, bool isEvenOdd) {
    leaf.name = "path";
    for (const std::string_view attribute : {"x", "y", "width", "height", "points", "style"}) {
        leaf.Remove(attribute);
    }
    leaf.Set("d", data);
    if (isEvenOdd) {
        leaf.Set("style", "fill-rule:evenodd");
    }
}

// What an element draws: itself, or the only leaf below.
struct Leaf {
    ZAMPrepressElement* element;
    ZAMMathAffine2D toContent; // of the element

    [[nodiscard]] ZAMMathAffine2D MapFrom(const ZAMPrepressClipRegion::Outline& outline) const {
        return ZAMPrepressInverse(toContent) * outline.map;
    }
};

Leaf FindLeaf(ZAMPrepressElement& element) {
    Leaf leaf{&element, {}};
    if (ZAMPrepressIsContainer(element.name)) {
        leaf.element = ZAMPrepressFindOnlyLeaf(element, leaf.toContent);
    }
    return leaf;
}

// That of a long outline may come out larger than it is.
ZAMMathBox2D BoxOf(const ZAMPrepressClipRegion::Outline& outline, const ZAMMathAffine2D& map) {
    constexpr std::size_t kLong = 256;
    return outline.path.segments.size() < kLong ? ZAMPrepressMapPath(outline.path, map).GetBox()
                                                : map.Apply(outline.box);
}

} // namespace

ZAMPrepressElement* ZAMPrepressFindOnlyLeaf(const ZAMPrepressElement& element, ZAMMathAffine2D& map) {
    ZAMPrepressElement* child = OnlyDrawnChild(element);
    while (child != nullptr && !child->Has("clip-path")) {
        map = map * ZAMPrepressReadTransform(child->Get("transform")).value_or(ZAMMathAffine2D());
        if (!ZAMPrepressIsContainer(child->name)) {
            return child;
        }
        child = OnlyDrawnChild(*child);
    }
    return nullptr;
}

bool ZAMPrepressIsUprightRectangle(const ZAMPrepressPath& path) {
    constexpr std::size_t kFewestSegments = 4; // a move and three lines
    constexpr std::size_t kMostSegments = 6;   // and one to where it began, and the close
    constexpr double kTolerance = 1e-6;        // of the area
    using Verb = ZAMPrepressPath::Verb;
    const auto isStraight = [](const ZAMPrepressPath::Segment& segment) {
        return segment.verb == Verb::LineTo || segment.verb == Verb::ClosePath;
    };
    const std::size_t count = path.segments.size();
    if (count < kFewestSegments || count > kMostSegments || path.segments.front().verb != Verb::MoveTo ||
        !std::all_of(path.segments.begin() + 1, path.segments.end(), isStraight)) {
        return false;
    }
    const ZAMMathBox2D box = path.GetBox();
    const double area = 2.0 * box.Width() * box.Height();
    return std::abs(DoubleArea(path) - area) <= kTolerance * area;
}

ZAMPrepressElement* ZAMPrepressFindCovering(ZAMPrepressElement& element,
                                            const ZAMPrepressClipRegion::Outline& outline) {
    const Leaf leaf = FindLeaf(element);
    if (leaf.element == nullptr || IsStroked(*leaf.element) || !leaf.toContent.Linear().IsInvertible()) {
        return nullptr;
    }
    const auto path = ZAMPrepressPath::Of(*leaf.element);
    ZAMMathBox2D box;
    const bool isCovering = (leaf.element->Is("image") || (path && ZAMPrepressIsUprightRectangle(*path))) &&
                            ZAMPrepressAddGeometry(box, *leaf.element, {});
    const ZAMMathBox2D needed = BoxOf(outline, leaf.MapFrom(outline));
    return isCovering && needed.Intersection(box) == needed ? leaf.element : nullptr;
}

bool ZAMPrepressCutToOutline(ZAMPrepressElement& element, const ZAMPrepressClipRegion::Outline& outline,
                             ZAMPrepressTree& tree) {
    ZAMPrepressElement* const covering = ZAMPrepressFindCovering(element, outline);
    if (covering == nullptr || covering->Is("image") ||
        !ZAMAllocationBudget::Spend(outline.path.segments.size() / kSegmentsOfElement)) {
        return false;
    }
    const ZAMPrepressPath path = ZAMPrepressMapPath(outline.path, FindLeaf(element).MapFrom(outline));
    SetShape(*covering, tree.Keep(path.ToData()), outline.isEvenOdd);
    return true;
}
