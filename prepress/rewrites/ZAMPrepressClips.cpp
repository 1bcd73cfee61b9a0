// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressClips.h"

#include "prepress/document/ZAMPrepressClipPaths.h"
#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/document/ZAMPrepressSearch.h"
#include "prepress/geometry/ZAMPrepressDrawnBox.h"
#include "prepress/rewrites/ZAMPrepressClipOutline.h"
#include "prepress/rewrites/ZAMPrepressClipRegion.h"
#include "prepress/rewrites/ZAMPrepressSymbols.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::string_view kClipPath = "clip-path";

bool IsWithin(const ZAMMathBox2D& inner, const ZAMMathBox2D& outer) {
    return inner.IsEmpty() || inner.Intersection(outer) == inner;
}

// Definitions that nothing but the interpreter could still refer to: patterns of pictures.
bool IsKeptDefinition(const ZAMPrepressElement& element) {
    const auto isPicture = [](const ZAMPrepressElement* child) { return child->Is("image"); };
    return element.Is("pattern") && std::ranges::any_of(element.children, isPicture) &&
           std::ranges::all_of(element.children,
                               [&](const auto* child) { return child->IsText() || isPicture(child); });
}

bool IsDefinition(const ZAMPrepressElement& element) {
    constexpr std::string_view kNames[] = {"clipPath", "filter",  "linearGradient", "marker",
                                           "mask",     "pattern", "radialGradient", "symbol"};
    return std::ranges::find(kNames, element.name) != std::end(kNames);
}

void RemoveDefinitions(ZAMPrepressElement& element) {
    const bool isDefs = element.Is("defs");
    std::erase_if(element.children, [isDefs](const ZAMPrepressElement* child) {
        return (isDefs || IsDefinition(*child)) && !IsKeptDefinition(*child);
    });
    std::ranges::for_each(element.children, [](ZAMPrepressElement* child) { RemoveDefinitions(*child); });
    std::erase_if(element.children,
                  [](const ZAMPrepressElement* child) { return child->Is("defs") && child->children.empty(); });
}

class Clipping {
public:
    explicit Clipping(ZAMPrepressTree& tree) : _Tree(tree), _Ids(tree) {}

    /// False when nothing is left of the element.
    bool Clip(ZAMPrepressElement*& element, bool isInSymbol);

private:
    [[nodiscard]] bool NeedsSymbol(const ZAMPrepressElement& element, const ZAMMathBox2D& box);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds _Ids;
    ZAMPrepressClipRegion _Regions{_Ids};
    ZAMPrepressDrawnBoxes _Drawn;
    ZAMPrepressSymbols _Symbols{_Tree, _Ids};
};

// Content that does not reach beyond the box needs no clipping.
bool Clipping::NeedsSymbol(const ZAMPrepressElement& element, const ZAMMathBox2D& box) {
    if (ZAMPrepressIsContainer(element.name)) {
        const auto drawn = _Drawn.OfContent(element);
        return !drawn || !IsWithin(*drawn, box);
    }
    ZAMPrepressElement leaf = element; // as the content of a group in its own coordinates
    leaf.Remove("transform");
    ZAMPrepressElement group;
    group.children = {&leaf};
    const auto drawn = ZAMPrepressDrawnBoxes().OfContent(group);
    return !drawn || !IsWithin(*drawn, box);
}

bool Clipping::Clip(ZAMPrepressElement*& element, bool isInSymbol) {
    const auto outline = _Regions.OutlineFor(*element);
    const bool isCut = outline && ZAMPrepressCutToOutline(*element, *outline, _Tree);
    const auto box = isCut ? std::nullopt : _Regions.BoxFor(*element);
    element->Remove(kClipPath);
    if (box && !(box->xMin < box->xMax && box->yMin < box->yMax)) {
        return false;
    }
    const bool isSymbol = box && NeedsSymbol(*element, *box);
    std::erase_if(element->children, [&](ZAMPrepressElement*& child) {
        return ZAMPrepressIsDrawn(child->name) && !Clip(child, isInSymbol || isSymbol);
    });
    if ((isInSymbol || isSymbol) && !ZAMPrepressIsContainer(element->name)) {
        _Symbols.CompleteLeaf(*element);
    }
    if (isSymbol) {
        element = ZAMPrepressIsContainer(element->name) ? element : &ZAMPrepressWrap(*element, _Tree);
        _Symbols.PutContentIntoSymbol(*element, *box);
    }
    return true;
}

} // namespace

bool ZAMPrepressClips::Concerns(const ZAMLightXmlElementItf& element) {
    static constexpr ZAMLightXmlName kName(kClipPath);
    return !element.GetAttribute(kName).empty();
}

void ZAMPrepressClips::Rewrite(ZAMPrepressTree& tree) {
    if (!ZAMPrepressHasAny(tree.GetRoot(), [](const auto& element) { return element.Has(kClipPath); })) {
        RemoveDefinitions(tree.GetRoot());
        return;
    }
    Clipping clipping(tree); // knows the definitions, which are then taken out of the tree
    RemoveDefinitions(tree.GetRoot());
    ZAMPrepressElement* root = &tree.GetRoot();
    if (!clipping.Clip(root, false)) {
        tree.GetRoot().children.clear();
    }
}
