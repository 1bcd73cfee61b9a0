// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressVectorPattern.h"

#include "prepress/geometry/ZAMPrepressPath.h"
#include "prepress/geometry/ZAMPrepressViewport.h"
#include "prepress/paint/ZAMPrepressSolidPaint.h"

#include <algorithm>
#include <cmath>

namespace {

using Percentage = ZAMPrepressServer::Percentage;

ZAMPrepressElement* FindContent(const ZAMPrepressServer& server) {
    for (ZAMPrepressElement* element : server.GetElements()) {
        if (std::ranges::any_of(element->children, [](const auto* child) { return !child->IsText(); })) {
            return element;
        }
    }
    return nullptr;
}

// The tile in the units of the leaf, before the pattern's transform.
ZAMMathBox2D ReadTile(const ZAMPrepressServer& server, const ZAMMathBox2D& box) {
    const bool isOfBox = server.IsOfBox("patternUnits", true);
    const auto read = [&](std::string_view name, Percentage percentage) {
        return server.GetLength(name, percentage, isOfBox, "0");
    };
    const ZAMMathVector2D unit = isOfBox ? ZAMMathVector2D{box.Width(), box.Height()} : ZAMMathVector2D{1.0, 1.0};
    const ZAMMathPoint2D corner = isOfBox ? ZAMMathPoint2D{box.xMin, box.yMin} : ZAMMathPoint2D{};
    const double x = corner.x + unit.x * read("x", Percentage::OfWidth);
    const double y = corner.y + unit.y * read("y", Percentage::OfHeight);
    return {x, y, x + unit.x * read("width", Percentage::OfWidth), y + unit.y * read("height", Percentage::OfHeight)};
}

// Nothing for a viewBox without an area, which shows nothing.
std::optional<ZAMMathAffine2D> ReadToTile(const ZAMPrepressServer& server, const ZAMMathBox2D& box,
                                          const ZAMMathBox2D& tile) {
    if (const auto numbers = ZAMPrepressReadViewBox(server.Get("viewBox"))) {
        const auto [x, y, width, height] = *numbers;
        const ZAMMathBox2D viewBox{x, y, x + width, y + height};
        const auto aspect = ZAMPrepressAspect::Parse(server.Get("preserveAspectRatio"));
        return ZAMPrepressHasArea(viewBox) ? std::optional(aspect.Map(viewBox, tile)) : std::nullopt;
    }
    if (server.IsOfBox("patternContentUnits", false)) {
        return ZAMMathAffine2D{box.Width(), 0.0, 0.0, box.Height(), 0.0, 0.0};
    }
    return ZAMMathAffine2D{};
}

void AddPaints(const ZAMPrepressElement& element, ZAMPrepressPremultiplied& sum) {
    const auto add = [&](std::string_view property, double area) {
        const ZAMPrepressPremultiplied paint = ZAMPrepressReadSolid(element, property);
        for (std::size_t i = 0; i < sum.size(); ++i) {
            sum.at(i) += paint.at(i) * area;
        }
    };
    if (const auto path = ZAMPrepressPath::Of(element)) {
        const ZAMMathBox2D box = path->GetBox();
        if (!box.IsEmpty()) {
            add("fill", box.Width() * box.Height());
            add("stroke", std::hypot(box.Width(), box.Height()) * ZAMPrepressNumberOr(element, "stroke-width", 1.0));
        }
    }
    for (const ZAMPrepressElement* child : element.children) {
        AddPaints(*child, sum);
    }
}

} // namespace

std::optional<ZAMPrepressVectorPattern> ZAMPrepressVectorPattern::Read(const ZAMPrepressServer& server,
                                                                       const ZAMMathBox2D& box) {
    const auto transform = server.GetTransform("patternTransform");
    const ZAMMathBox2D tile = ReadTile(server, box);
    if (!transform || !ZAMPrepressHasArea(tile)) {
        return std::nullopt;
    }
    ZAMPrepressVectorPattern pattern;
    pattern.content = FindContent(server);
    pattern.toLeaf = *transform * ZAMMathAffine2D{1.0, 0.0, 0.0, 1.0, tile.xMin, tile.yMin};
    pattern.width = tile.Width();
    pattern.height = tile.Height();
    const auto toTile = ReadToTile(server, box, {0.0, 0.0, pattern.width, pattern.height});
    if (pattern.content == nullptr || !toTile || !toTile->Linear().IsInvertible()) {
        return std::nullopt;
    }
    pattern.toTile = *toTile;
    return pattern;
}

ZAMPrepressPremultiplied ZAMPrepressVectorPattern::SumPaints(const ZAMPrepressElement& content) {
    ZAMPrepressPremultiplied sum{};
    AddPaints(content, sum);
    return sum;
}

ZAMPrepressPremultiplied ZAMPrepressVectorPattern::EstimateMean(ZAMPrepressPremultiplied sum) const {
    const double area = width * height / std::abs(toTile.Linear().Determinant());
    // Where leaves cover more than there is they cover each other.
    const double whole = std::max(area, sum[3]);
    for (double& channel : sum) {
        channel /= whole;
    }
    return sum;
}
