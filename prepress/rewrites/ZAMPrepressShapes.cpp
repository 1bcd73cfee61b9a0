// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressShapes.h"

#include "framework/base/ZAMNumberReading.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <algorithm>
#include <string>

namespace {

// Closed shapes bear no markers, paths do.
constexpr std::string_view kNotOfPaths[] = {"x",  "y",  "width",        "height",     "cx",        "cy",
                                            "rx", "ry", "marker-start", "marker-mid", "marker-end"};

constexpr ZAMLightXmlName kWidth("width");
constexpr ZAMLightXmlName kHeight("height");
constexpr ZAMLightXmlName kR("r");
constexpr ZAMLightXmlName kRx("rx");
constexpr ZAMLightXmlName kRy("ry");
constexpr ZAMLightXmlName kFill("fill");

bool HasNoLength(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& attribute) {
    double length = 0.0;
    return ZAMReadDouble(element.GetAttribute(attribute), length) != 1 || !(length > 0.0);
}

// Whether the interpreter would draw another shape, units aside.
bool ConcernsRectangle(const ZAMLightXmlElementItf& element) {
    return !element.GetAttribute(kRx).empty() || !element.GetAttribute(kRy).empty() || HasNoLength(element, kWidth) ||
           HasNoLength(element, kHeight);
}
bool ConcernsCircle(const ZAMLightXmlElementItf& element) {
    return HasNoLength(element, kR);
}
bool ConcernsEllipse(const ZAMLightXmlElementItf& element) {
    return HasNoLength(element, kRx) || HasNoLength(element, kRy);
}
bool ConcernsPolyline(const ZAMLightXmlElementItf& element) {
    return element.GetAttribute(kFill) != "none";
}

void MakePath(ZAMPrepressElement& element, std::string_view data) {
    element.name = "path";
    element.Set("d", data);
}

bool IsRound(const ZAMPrepressPath& path) {
    return std::ranges::find(path.segments, ZAMPrepressPath::Verb::CubicTo, &ZAMPrepressPath::Segment::verb) !=
           path.segments.end();
}

// Most are: their outlines need not be known.
bool IsPlain(const ZAMPrepressElement& element) {
    const auto isPositive = [&](std::string_view attribute) {
        return ZAMPrepressNumberOr(element, attribute, 0.0) > 0.0;
    };
    return element.Is("rect") ? isPositive("width") && isPositive("height") && !element.Has("rx") && !element.Has("ry")
                              : element.Is("circle") && isPositive("r");
}

// A closed shape without a size is not drawn. The interpreter knows no round corners, and no radius that stands for
// both.
bool RewriteClosed(ZAMPrepressTree& tree, ZAMPrepressElement& element) {
    if (IsPlain(element)) {
        return true;
    }
    const auto path = ZAMPrepressPath::Of(element);
    if (!path || path->segments.empty()) {
        return false;
    }
    const bool oneRadius = element.Is("ellipse") && element.Has("rx") != element.Has("ry");
    if (oneRadius || (element.Is("rect") && IsRound(*path))) {
        MakePath(element, tree.Keep(path->ToData()));
        std::ranges::for_each(kNotOfPaths, [&](std::string_view attribute) { element.Remove(attribute); });
    }
    return true;
}

// The interpreter's polylines are never filled. Points are path data but for the letter.
bool RewritePolyline(ZAMPrepressTree& tree, ZAMPrepressElement& element) {
    if (element.Get("fill") != "none") {
        MakePath(element, tree.Keep(std::string("M").append(element.Get("points"))));
        element.Remove("points");
    }
    return true;
}

struct Shape {
    std::string_view name;
    bool (*concerns)(const ZAMLightXmlElementItf& element);
    bool (*rewrite)(ZAMPrepressTree& tree, ZAMPrepressElement& element); ///< false when nothing is there to draw
};

constexpr Shape kShapes[] = {
    {"rect", ConcernsRectangle, RewriteClosed},
    {"circle", ConcernsCircle, RewriteClosed},
    {"ellipse", ConcernsEllipse, RewriteClosed},
    {"polyline", ConcernsPolyline, RewritePolyline},
};

const Shape* FindShape(std::string_view name) {
    const auto* const shape = std::ranges::find(kShapes, name, &Shape::name);
    return shape != std::end(kShapes) ? shape : nullptr;
}

void RewriteChildren(ZAMPrepressTree& tree, ZAMPrepressElement& element) {
    std::erase_if(element.children, [&tree](ZAMPrepressElement* child) {
        if (const Shape* const shape = FindShape(child->name)) {
            return !shape->rewrite(tree, *child);
        }
        RewriteChildren(tree, *child);
        return false;
    });
}

} // namespace

bool ZAMPrepressShapes::Concerns(const ZAMLightXmlElementItf& element) {
    const Shape* const shape = FindShape(element.GetName());
    return shape != nullptr && shape->concerns(element);
}

void ZAMPrepressShapes::Rewrite(ZAMPrepressTree& tree) {
    RewriteChildren(tree, tree.GetRoot());
}
