// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressSymbols.h"

#include "prepress/document/ZAMPrepressSearch.h"
#include "prepress/geometry/ZAMPrepressTransformText.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace {

constexpr std::string_view kEvenOdd = "fill-rule:evenodd";

// A clipping path's rule can become that of what it clips.
bool IsEvenOdd(const ZAMPrepressElement& element) {
    return element.Get("style") == kEvenOdd || element.Get("clip-rule") == "evenodd";
}

// In a symbol opacities do not start from 255 but from the mark of an opacity that is not set, which must not be the
// result either.
double OpacityInSymbol(double opacity) {
    constexpr double kOpaque = 255.0;
    constexpr double kNotSet = 200.0;
    const double byte = std::ceil(static_cast<double>(static_cast<float>(kOpaque) * static_cast<float>(opacity)));
    return byte <= 0.0 ? 0.0 : ((byte == kNotSet ? kNotSet + 1.0 : byte) - 0.5) / kNotSet;
}

// The interpreter looks at hundredths.
constexpr double kNear = 0.02;

bool IsNear(const ZAMMathBox2D& box, const ZAMPrepressViewportSize& page) {
    return std::abs(box.xMin) < kNear && std::abs(box.yMin) < kNear && std::abs(box.Width() - page.width) < kNear &&
           std::abs(box.Height() - page.height) < kNear;
}

// A symbol with the very box of the page would have no size.
ZAMMathBox2D Distinct(const ZAMMathBox2D& box, const std::vector<ZAMPrepressViewportSize>& pages) {
    const bool isPage = std::ranges::any_of(pages, [&](const auto& page) { return IsNear(box, page); });
    return isPage ? ZAMMathBox2D{box.xMin, box.yMin, box.xMax + 2.0 * kNear, box.yMax} : box;
}

std::string BoxText(const ZAMMathBox2D& box) {
    std::string text = ZAMPrepressNumberText(box.xMin);
    for (const double number : {box.yMin, box.Width(), box.Height()}) {
        text += ' ';
        ZAMPrepressAppendNumber(text, number);
    }
    return text;
}

} // namespace

ZAMPrepressSymbols::ZAMPrepressSymbols(ZAMPrepressTree& tree, ZAMPrepressIds& ids)
    : _Tree(tree), _Ids(ids), _HasEvenOdd(ZAMPrepressHasAny(tree.GetRoot(), IsEvenOdd)) {
    for (const ZAMPrepressElement* drawing : tree.GetDrawings()) {
        _Pages.push_back(ZAMPrepressViewportSize::OfRoot(*drawing));
    }
}

// The interpreter puts the upper left corner of the symbol's box into the origin.
void ZAMPrepressSymbols::PutContentIntoSymbol(ZAMPrepressElement& group, const ZAMMathBox2D& box) {
    const std::string_view id = _Ids.NewId("clip-");
    ZAMPrepressElement& symbol = _Tree.NewElement("symbol");
    symbol.attributes = {{"id", id}, {"viewBox", _Tree.Keep(BoxText(Distinct(box, _Pages)))}};
    ZAMPrepressElement& use = _Tree.NewElement("use");
    use.attributes = {{"xlink:href", _Tree.Keep('#' + std::string(id))},
                      {"transform", _Tree.Keep(ZAMPrepressTransformText({1.0, 0.0, 0.0, 1.0, box.xMin, box.yMin}))}};
    if (_HasEvenOdd) {
        use.Set("style", kEvenOdd);
    }
    for (ZAMPrepressElement* child : std::exchange(group.children, {})) {
        ZAMPrepressTree::Append(child->Is("title") || child->Is("desc") ? group : symbol, *child);
    }
    ZAMPrepressTree::Append(group, symbol);
    ZAMPrepressTree::Append(group, use);
}

// In a symbol a stroke alone would switch the fill off, and the even-odd rule is the mark of a rule that is not set.
void ZAMPrepressSymbols::CompleteLeaf(ZAMPrepressElement& leaf) {
    if (leaf.Has("stroke") && !leaf.Has("fill")) {
        leaf.Set("fill", "#000000");
    }
    for (const std::string_view attribute : {"fill-opacity", "stroke-opacity"}) {
        if (leaf.Has(attribute)) {
            const double opacity = ZAMPrepressNumberOr(leaf, attribute, 1.0);
            leaf.Set(attribute, _Tree.Keep(ZAMPrepressNumberText(OpacityInSymbol(opacity))));
        }
    }
    if (_HasEvenOdd && !leaf.Has("style")) {
        leaf.Set("style", "fill-rule:nonzero");
    }
}
