// SPDX-License-Identifier: MIT
// The outlines of the basic shapes (SVG 1.1, 9).
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressPath.h"
#include "prepress/geometry/ZAMPrepressPathBuilder.h"
#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>

namespace {

double Number(const ZAMPrepressElement& element, std::string_view attribute) {
    return ZAMPrepressNumberOr(element, attribute, 0.0);
}

// A radius that is not given, or is negative, is the other one; both are at most half the side.
std::optional<double> Radius(const ZAMPrepressElement& element, std::string_view attribute) {
    const auto radius = ZAMPrepressReadNumber(element.Get(attribute));
    return radius && *radius >= 0.0 ? radius : std::nullopt;
}

void AddRoundedRectangle(const ZAMMathBox2D& box, double rx, double ry, ZAMPrepressPathBuilder& builder) {
    const auto [topLeft, topRight, bottomRight, bottomLeft] = box.Corners();
    builder.MoveTo({box.xMin + rx, box.yMin});
    builder.LineTo({box.xMax - rx, box.yMin});
    builder.QuarterTo(topRight, {box.xMax, box.yMin + ry});
    builder.LineTo({box.xMax, box.yMax - ry});
    builder.QuarterTo(bottomRight, {box.xMax - rx, box.yMax});
    builder.LineTo({box.xMin + rx, box.yMax});
    builder.QuarterTo(bottomLeft, {box.xMin, box.yMax - ry});
    builder.LineTo({box.xMin, box.yMin + ry});
    builder.QuarterTo(topLeft, {box.xMin + rx, box.yMin});
    builder.ClosePath();
}

void AddSharpRectangle(const ZAMMathBox2D& box, ZAMPrepressPathBuilder& builder) {
    const auto corners = box.Corners();
    builder.MoveTo(corners[0]);
    std::for_each(corners.begin() + 1, corners.end(), [&](const auto& corner) { builder.LineTo(corner); });
    builder.ClosePath();
}

void AddRectangle(const ZAMPrepressElement& element, ZAMPrepressPathBuilder& builder) {
    const double x = Number(element, "x");
    const double y = Number(element, "y");
    const double width = Number(element, "width");
    const double height = Number(element, "height");
    if (!(width > 0.0 && height > 0.0)) {
        return;
    }
    const auto rx = Radius(element, "rx");
    const auto ry = Radius(element, "ry");
    const double xRadius = std::min(rx.value_or(ry.value_or(0.0)), width / 2.0);
    const double yRadius = std::min(ry.value_or(rx.value_or(0.0)), height / 2.0);
    const ZAMMathBox2D box{x, y, x + width, y + height};
    if (xRadius > 0.0 && yRadius > 0.0) {
        AddRoundedRectangle(box, xRadius, yRadius, builder);
    } else {
        AddSharpRectangle(box, builder);
    }
}

void AddCircle(const ZAMPrepressElement& element, ZAMPrepressPathBuilder& builder) {
    const double radius = Number(element, "r");
    builder.Ellipse({Number(element, "cx"), Number(element, "cy")}, radius, radius);
}

void AddEllipse(const ZAMPrepressElement& element, ZAMPrepressPathBuilder& builder) {
    const auto rx = Radius(element, "rx");
    const auto ry = Radius(element, "ry");
    builder.Ellipse({Number(element, "cx"), Number(element, "cy")}, rx.value_or(ry.value_or(0.0)),
                    ry.value_or(rx.value_or(0.0)));
}

void AddLine(const ZAMPrepressElement& element, ZAMPrepressPathBuilder& builder) {
    builder.MoveTo({Number(element, "x1"), Number(element, "y1")});
    builder.LineTo({Number(element, "x2"), Number(element, "y2")});
}

// Up to the first error; a coordinate without its partner is one.
void AddPolyline(const ZAMPrepressElement& element, ZAMPrepressPathBuilder& builder) {
    ZAMPrepressScanner scanner(element.Get("points"));
    scanner.SkipSpace();
    for (bool first = true;; first = false) {
        const std::string_view x = scanner.TakeNumber();
        scanner.SkipSeparator();
        const std::string_view y = scanner.TakeNumber();
        scanner.SkipSeparator();
        if (y.empty()) {
            return;
        }
        const ZAMMathPoint2D point{ZAMPrepressNumber(x), ZAMPrepressNumber(y)};
        first ? builder.MoveTo(point) : builder.LineTo(point);
    }
}

void AddPolygon(const ZAMPrepressElement& element, ZAMPrepressPathBuilder& builder) {
    AddPolyline(element, builder);
    if (!builder.IsEmpty()) {
        builder.ClosePath();
    }
}

struct Shape {
    std::string_view name;
    void (*add)(const ZAMPrepressElement& element, ZAMPrepressPathBuilder& builder);
};

constexpr Shape kShapes[] = {
    {"rect", AddRectangle}, {"circle", AddCircle},     {"ellipse", AddEllipse},
    {"line", AddLine},      {"polyline", AddPolyline}, {"polygon", AddPolygon},
};

} // namespace

std::optional<ZAMPrepressPath> ZAMPrepressPath::Of(const ZAMPrepressElement& element) {
    if (element.Is("path")) {
        return Parse(element.Get("d"));
    }
    const auto* const shape = std::ranges::find(kShapes, element.name, &Shape::name);
    if (shape == std::end(kShapes)) {
        return std::nullopt;
    }
    ZAMPrepressPath path;
    ZAMPrepressPathBuilder builder(path);
    shape->add(element, builder);
    return path;
}
