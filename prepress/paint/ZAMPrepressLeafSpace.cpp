// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressLeafSpace.h"

#include "prepress/geometry/ZAMPrepressTransformText.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

using Attribute = ZAMPrepressElement::Attribute;
using Names = std::span<const std::string_view>;

// What stays where the leaf was, whatever becomes of its geometry.
constexpr std::string_view kOuter[] = {"id", "transform", "clip-path", "mask", "filter"};
constexpr std::string_view kFill[] = {"fill", "fill-opacity", "style"};
constexpr std::string_view kGeometry[] = {"d",  "points", "x", "y",  "width", "height", "rx", "ry",
                                          "cx", "cy",     "r", "x1", "y1",    "x2",     "y2"};

bool IsOneOf(Names names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

bool HasStroke(const ZAMPrepressElement& leaf) {
    const std::string_view stroke = leaf.Get("stroke");
    return !stroke.empty() && stroke != "none";
}

bool IsOfStroke(const Attribute& attribute) {
    return attribute.name.starts_with("stroke");
}

void AddTransform(ZAMPrepressTree& tree, ZAMPrepressElement& element, const ZAMMathAffine2D& inner) {
    const auto outer = ZAMPrepressReadTransform(element.Get("transform"));
    element.Set("transform", tree.Keep(ZAMPrepressTransformText(outer ? *outer * inner : inner)));
}

} // namespace

ZAMMathAffine2D ZAMPrepressInverse(const ZAMMathAffine2D& map) {
    const double determinant = map.Linear().Determinant();
    const ZAMMathAffine2D linear{
        map.d / determinant, -map.b / determinant, -map.c / determinant, map.a / determinant, 0.0, 0.0};
    const ZAMMathPoint2D origin = linear.Apply(ZAMMathPoint2D{map.e, map.f});
    return {linear.a, linear.b, linear.c, linear.d, -origin.x, -origin.y};
}

double ZAMPrepressGetScale(const ZAMMathAffine2D& map) {
    return std::max(std::hypot(map.a, map.b), std::hypot(map.c, map.d));
}

ZAMPrepressPath ZAMPrepressMapPath(ZAMPrepressPath path, const ZAMMathAffine2D& map) {
    for (ZAMPrepressPath::Segment& segment : path.segments) {
        segment.control1 = map.Apply(segment.control1);
        segment.control2 = map.Apply(segment.control2);
        segment.end = map.Apply(segment.end);
    }
    return path;
}

ZAMPrepressElement& ZAMPrepressMoveLeaf(ZAMPrepressTree& tree, ZAMPrepressElement& leaf, const ZAMPrepressPath& path,
                                        const ZAMMathAffine2D& toLeaf) {
    const std::string_view data = tree.Keep(path.ToData());
    const auto isClip = [](const Attribute& each) { return each.name != "id" && IsOneOf(kOuter, each.name); };
    const bool isClipped = std::ranges::any_of(
        leaf.attributes, [&](const Attribute& each) { return each.name != "transform" && isClip(each); });
    if (!HasStroke(leaf) && !isClipped) {
        std::erase_if(leaf.attributes, [](const Attribute& each) { return IsOneOf(kGeometry, each.name); });
        leaf.name = "path";
        leaf.Set("d", data);
        AddTransform(tree, leaf, toLeaf);
        return leaf;
    }
    ZAMPrepressElement& fill = tree.NewElement("path");
    fill.attributes = leaf.attributes;
    std::erase_if(fill.attributes, [](const Attribute& each) { return !IsOneOf(kFill, each.name); });
    fill.Set("d", data);
    AddTransform(tree, fill, toLeaf);
    fill.parent = &leaf;

    std::vector<ZAMPrepressElement*> parts = {&fill};
    if (HasStroke(leaf)) {
        ZAMPrepressElement& stroke = tree.NewElement(leaf.name);
        stroke.attributes = leaf.attributes;
        std::erase_if(stroke.attributes, [](const Attribute& each) { return IsOneOf(kOuter, each.name); });
        stroke.Set("fill", "none");
        stroke.parent = &leaf;
        parts.push_back(&stroke);
    }
    leaf.name = "g";
    std::erase_if(leaf.attributes, [](const Attribute& each) { return !IsOneOf(kOuter, each.name); });
    leaf.children.insert(leaf.children.begin(), parts.begin(), parts.end());
    return fill;
}

ZAMPrepressSplitLeaf ZAMPrepressSplitStroke(ZAMPrepressTree& tree, ZAMPrepressElement& leaf,
                                            const ZAMPrepressPath& outline, std::string_view paint) {
    const bool isFilled = !leaf.Is("line") && leaf.Get("fill") != "none";
    const auto opacity = leaf.Find("stroke-opacity");
    ZAMPrepressElement& stroke = isFilled ? tree.NewElement("path") : leaf;
    std::erase_if(leaf.attributes, IsOfStroke);
    if (isFilled) {
        ZAMPrepressElement& fill = tree.NewElement(leaf.name);
        fill.attributes = leaf.attributes;
        std::erase_if(fill.attributes, [](const Attribute& each) { return IsOneOf(kOuter, each.name); });
        std::erase_if(leaf.attributes, [](const Attribute& each) { return !IsOneOf(kOuter, each.name); });
        leaf.name = "g";
        fill.parent = stroke.parent = &leaf;
        leaf.children.insert(leaf.children.begin(), {&fill, &stroke});
    } else {
        std::erase_if(leaf.attributes,
                      [](const Attribute& each) { return IsOneOf(kGeometry, each.name) || IsOneOf(kFill, each.name); });
        leaf.name = "path";
    }
    stroke.Set("d", tree.Keep(outline.ToData()));
    stroke.Set("fill", paint);
    if (opacity) {
        stroke.Set("fill-opacity", *opacity);
    }
    return {isFilled ? *leaf.children.front() : stroke, stroke};
}
