// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressMarkerShape.h"

#include "framework/mathematics/ZAMMathConstants.h"
#include "prepress/geometry/ZAMPrepressDirection.h"
#include "prepress/geometry/ZAMPrepressScanner.h"
#include "prepress/geometry/ZAMPrepressViewport.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double kSide = 3.0; // of a marker that gives none

struct AngleUnit {
    std::string_view name;
    double degrees;
};
constexpr AngleUnit kAngleUnits[] = {
    {"", 1.0}, {"deg", 1.0}, {"grad", 0.9}, {"rad", 1.0 / ZAMDegreeToRadian}, {"turn", 360.0}};

double Length(std::string_view text, double whole, double otherwise) {
    return ZAMPrepressReadLength(text, {.whole = whole}).value_or(otherwise);
}

// SVG 2 lets the reference point be said in words, too.
double Reference(std::string_view text, double low, double high) {
    if (text == "left" || text == "top") {
        return low;
    }
    if (text == "center") {
        return (low + high) / 2.0;
    }
    return text == "right" || text == "bottom" ? high : Length(text, high - low, 0.0);
}

} // namespace

std::optional<ZAMPrepressMarkerShape> ZAMPrepressMarkerShape::Read(const ZAMPrepressElement& marker,
                                                                   const ZAMPrepressViewportSize& viewport) {
    const ZAMMathBox2D box{0.0, 0.0, Length(marker.Get("markerWidth"), viewport.width, kSide),
                           Length(marker.Get("markerHeight"), viewport.height, kSide)};
    const auto viewBox = ZAMPrepressReadViewBox(marker.Get("viewBox"));
    const ZAMMathBox2D content = viewBox ? ZAMPrepressToBox(*viewBox) : box;
    if (!ZAMPrepressHasArea(box) || !ZAMPrepressHasArea(content)) {
        return std::nullopt;
    }
    ZAMPrepressMarkerShape shape;
    shape._ScalesWithStroke = marker.Get("markerUnits") != "userSpaceOnUse";
    shape.ReadFrame(marker, box, content);
    shape.ReadOrientation(marker.Get("orient"));
    return shape;
}

void ZAMPrepressMarkerShape::ReadFrame(const ZAMPrepressElement& marker, const ZAMMathBox2D& viewport,
                                       const ZAMMathBox2D& content) {
    _Frame = ZAMPrepressAspect::Parse(marker.Get("preserveAspectRatio")).Map(content, viewport);
    const std::string_view overflow = marker.Get("overflow");
    if (overflow != "visible" && overflow != "auto") {
        _Clip = ZAMPrepressUnmap(_Frame, viewport);
    }
    const ZAMMathPoint2D reference =
        _Frame.Apply(ZAMMathPoint2D{Reference(marker.Get("refX"), content.xMin, content.xMax),
                                    Reference(marker.Get("refY"), content.yMin, content.yMax)});
    _Frame.e -= reference.x;
    _Frame.f -= reference.y;
}

void ZAMPrepressMarkerShape::ReadOrientation(std::string_view text) {
    ZAMPrepressScanner scanner(text);
    scanner.SkipSpace();
    _IsReversedAtStart = scanner.GetRest().starts_with("auto-start-reverse");
    _IsAutomatic = scanner.GetRest().starts_with("auto");
    const double angle = ZAMPrepressNumber(scanner.TakeNumber());
    const auto* const unit = std::ranges::find(kAngleUnits, scanner.TakeWord(), &AngleUnit::name);
    if (unit != std::end(kAngleUnits) && std::isfinite(angle)) {
        _Direction = ZAMPrepressDirection(angle * unit->degrees);
    }
}

ZAMMathAffine2D ZAMPrepressMarkerShape::GetMap(const ZAMPrepressVertex& vertex, double strokeWidth,
                                               bool isStart) const {
    ZAMMathVector2D direction = _IsAutomatic ? vertex.direction : _Direction;
    if (isStart && _IsReversedAtStart) {
        direction = {-direction.x, -direction.y};
    }
    const double scale = _ScalesWithStroke ? strokeWidth : 1.0;
    const double x = direction.x * scale;
    const double y = direction.y * scale;
    return ZAMMathAffine2D{x, y, -y, x, vertex.point.x, vertex.point.y} * _Frame;
}
