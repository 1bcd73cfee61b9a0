// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressLeafPainter.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/geometry/ZAMPrepressViewport.h"
#include "prepress/paint/ZAMPrepressLeafSpace.h"
#include "prepress/paint/ZAMPrepressSolidPaint.h"
#include "prepress/paint/ZAMPrepressStroke.h"
#include "prepress/paint/ZAMPrepressTextBox.h"
#include "prepress/paint/ZAMPrepressTileArea.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr ZAMMathBox2D kUnitBox{0.0, 0.0, 1.0, 1.0};
constexpr std::string_view kNone = "none";

constexpr double kStrokeTolerance = 0.04; // in user units of the drawing: finer than print
constexpr std::size_t kMostVerticesOfStroke = 50'000;

// What to paint with where the server of a paint paints nothing: the colour behind its address.
std::string_view FallbackOf(std::string_view paint) {
    const auto end = paint.find(") ");
    return end == std::string_view::npos ? kNone : paint.substr(end + 2);
}

} // namespace

ZAMPrepressLeafPainter::ZAMPrepressLeafPainter(ZAMPrepressTree& tree, ZAMPrepressIds& ids, ZAMPrepressTileBook& book,
                                               const ZAMPrepressElement& drawing)
    : _Tree(tree), _Ids(ids), _Book(book), _Viewport(ZAMPrepressViewportSize::OfRoot(drawing)) {
    const auto viewBox = ZAMPrepressReadViewBox(drawing.Get("viewBox"));
    if (_Viewport.width > 0.0 && _Viewport.height > 0.0) {
        const ZAMMathPoint2D corner = viewBox ? ZAMMathPoint2D{(*viewBox)[0], (*viewBox)[1]} : ZAMMathPoint2D{};
        _Shown = {corner.x, corner.y, corner.x + _Viewport.width, corner.y + _Viewport.height};
    }
}

void ZAMPrepressLeafPainter::PaintBelow(ZAMPrepressElement& element, const ZAMMathAffine2D& toDrawing) {
    // A leaf that becomes a group has nothing in it to be painted again, so the children are those of now.
    const auto children = element.children;
    for (ZAMPrepressElement* child : children) {
        if (ZAMPrepressIsDrawn(child->name)) {
            const auto transform = ZAMPrepressReadTransform(child->Get("transform"));
            const ZAMMathAffine2D below = transform ? toDrawing * *transform : toDrawing;
            PaintBelow(*child, below);
            Paint(*child, below);
        }
    }
}

void ZAMPrepressLeafPainter::Paint(ZAMPrepressElement& leaf, const ZAMMathAffine2D& toDrawing) {
    ZAMPrepressElement* filled = &leaf;
    if (ZAMPrepressElement* const server = _Ids.FindUrl(leaf.Get("stroke"))) {
        filled = &PaintStroke(leaf, *server, toDrawing);
    }
    if (ZAMPrepressElement* const server = _Ids.FindUrl(filled->Get("fill"))) {
        const auto path = ZAMPrepressPath::Of(*filled);
        const ZAMMathBox2D box = GetBox(*filled, path ? &*path : nullptr);
        PaintFill({filled, path ? &*path : nullptr, box, box, toDrawing}, *server);
    }
}

// The stroke becomes a shape of its own, or has one colour where that would be too much. Gives what has the fill then.
ZAMPrepressElement& ZAMPrepressLeafPainter::PaintStroke(ZAMPrepressElement& leaf, ZAMPrepressElement& server,
                                                        const ZAMMathAffine2D& toDrawing) {
    const auto path = ZAMPrepressPath::Of(leaf);
    const ZAMMathBox2D box = GetBox(leaf, path ? &*path : nullptr);
    const auto mean = FindMean(server, box);
    if (!mean) {
        leaf.Set("stroke", FallbackOf(leaf.Get("stroke")));
        return leaf;
    }
    const double tolerance = kStrokeTolerance / ZAMPrepressGetScale(toDrawing);
    const auto outline =
        path && std::isnormal(tolerance)
            ? ZAMPrepressStroke::Of(leaf).GetOutline(*path, tolerance, std::min(kMostVerticesOfStroke, _StrokeVertices))
            : std::nullopt;
    if (!outline) {
        ZAMPrepressPaintSolid(_Tree, leaf, "stroke", *mean);
        return leaf;
    }
    _StrokeVertices -= std::min(_StrokeVertices, outline->segments.size());
    const auto [fill, stroke] = ZAMPrepressSplitStroke(_Tree, leaf, *outline, leaf.Get("stroke"));
    PaintFill({&stroke, &*outline, box, outline->GetBox(), toDrawing}, server);
    return fill;
}

// The leaf shows all of its box still.
void ZAMPrepressLeafPainter::PaintFill(const ZAMPrepressFilledLeaf& leaf, ZAMPrepressElement& server) {
    if (ZAMPrepressIsBitmapTile(server)) {
        return _Book.Keep(server);
    }
    ZAMPrepressElement& element = *leaf.element;
    const std::string_view fallback = FallbackOf(element.Get("fill"));
    element.Set("fill", kNone);
    if (leaf.box.IsEmpty()) {
        // A text that cannot be measured here may be drawn all the same.
        if (const auto mean = FindMean(server, kUnitBox); mean && element.Is("text")) {
            ZAMPrepressPaintSolid(_Tree, element, "fill", *mean);
        }
        return;
    }
    ZAMPrepressFilledLeaf shown = leaf;
    shown.shown = GetShown(leaf.shown, leaf.toDrawing);
    if (!shown.shown.IsEmpty() && !Fill(server, shown)) {
        element.Set("fill", fallback);
    }
}

ZAMMathBox2D ZAMPrepressLeafPainter::GetBox(const ZAMPrepressElement& leaf, const ZAMPrepressPath* path) {
    if (path != nullptr) {
        return path->GetBox();
    }
    return leaf.Is("text") ? ZAMPrepressGetTextBox(leaf, _Fonts) : ZAMMathBox2D();
}

// Of a box, the part that is within the drawing. All of what a pattern is made of may be seen somewhere.
ZAMMathBox2D ZAMPrepressLeafPainter::GetShown(const ZAMMathBox2D& box, const ZAMMathAffine2D& toDrawing) const {
    if (!_OpenContents.empty() || _Shown.IsEmpty() || !toDrawing.Linear().IsInvertible()) {
        return box;
    }
    return box.Intersection(ZAMPrepressMapBox(_Shown, ZAMPrepressInverse(toDrawing)));
}

// False, and nothing done, when the server paints nothing.
bool ZAMPrepressLeafPainter::Fill(ZAMPrepressElement& server, const ZAMPrepressFilledLeaf& leaf) {
    if (!ZAMPrepressServer::IsGradient(server)) {
        return FillWithPattern(server, leaf);
    }
    const ZAMPrepressGradientFill* const gradient = FindGradient(server);
    if (gradient == nullptr || !gradient->Paints(leaf.box)) {
        return false;
    }
    gradient->Fill(_Tree, _Book, leaf);
    return true;
}

bool ZAMPrepressLeafPainter::FillWithPattern(ZAMPrepressElement& server, const ZAMPrepressFilledLeaf& leaf) {
    const auto pattern = ZAMPrepressVectorPattern::Read(ZAMPrepressServer(server, _Ids, _Viewport), leaf.box);
    if (!pattern || _OpenContents.size() >= ZAMLimits::kPatternDepth ||
        std::ranges::find(_OpenContents, pattern->content) != _OpenContents.end()) {
        return false;
    }
    if (_PaintedContents.insert(pattern->content).second) {
        _OpenContents.push_back(pattern->content);
        PaintBelow(*pattern->content, leaf.toDrawing * pattern->toLeaf * pattern->toTile);
        _OpenContents.pop_back();
    }
    ZAMPrepressFillWithPattern({_Tree, _Ids, _Book}, *pattern, GetMean(*pattern), leaf);
    return true;
}

ZAMPrepressPremultiplied ZAMPrepressLeafPainter::GetMean(const ZAMPrepressVectorPattern& pattern) {
    const auto [sum, isNew] = _ContentSums.try_emplace(pattern.content);
    if (isNew) {
        sum->second = ZAMPrepressVectorPattern::SumPaints(*pattern.content);
    }
    return pattern.EstimateMean(sum->second);
}

// Nothing when the server paints nothing in the box.
std::optional<ZAMPrepressPremultiplied> ZAMPrepressLeafPainter::FindMean(ZAMPrepressElement& server,
                                                                         const ZAMMathBox2D& box) {
    if (!ZAMPrepressServer::IsGradient(server)) {
        const auto pattern = ZAMPrepressVectorPattern::Read(ZAMPrepressServer(server, _Ids, _Viewport), box);
        return pattern ? std::optional(GetMean(*pattern)) : std::nullopt;
    }
    const ZAMPrepressGradientFill* const gradient = FindGradient(server);
    return gradient != nullptr && gradient->Paints(box) ? std::optional(gradient->GetMean()) : std::nullopt;
}

// Null when it paints nothing.
const ZAMPrepressGradientFill* ZAMPrepressLeafPainter::FindGradient(ZAMPrepressElement& server) {
    const auto [place, isNew] = _Gradients.try_emplace(&server);
    if (isNew) {
        if (const auto gradient = ZAMPrepressGradient::Read(ZAMPrepressServer(server, _Ids, _Viewport))) {
            place->second.emplace(*gradient, _Ramps.Find(*gradient->stops, gradient->spread));
        }
    }
    return place->second ? &*place->second : nullptr;
}
