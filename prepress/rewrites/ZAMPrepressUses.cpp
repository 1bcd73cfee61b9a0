// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressUses.h"

#include "framework/base/ZAMLimits.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressTransformText.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <unordered_set>

namespace {

constexpr std::string_view kUse = "use";
constexpr std::string_view kSymbol = "symbol";
constexpr std::string_view kSvg = "svg";
constexpr std::string_view kReference = "xlink:href";

// What definitions hold is drawn where it is used, but for these, whose content is drawn through properties.
constexpr std::string_view kDrawnThroughProperties[] = {"clipPath", "marker", "mask", "pattern"};

bool IsDefinition(const ZAMPrepressElement& element) {
    return element.Is("defs") || element.Is(kSymbol);
}

bool IsDrawnThroughProperties(const ZAMPrepressElement& element) {
    return std::ranges::find(kDrawnThroughProperties, element.name) != std::end(kDrawnThroughProperties);
}

void RemoveIds(ZAMPrepressElement& element) {
    element.Remove("id");
    std::ranges::for_each(element.children, [](ZAMPrepressElement* child) { RemoveIds(*child); });
}

// The viewport that a symbol or svg element makes takes its size from the use, as far as that gives one.
void SetViewport(const ZAMPrepressElement& use, ZAMPrepressElement& instance) {
    if (instance.Is(kSymbol)) {
        instance.name = kSvg;
    }
    if (!instance.Is(kSvg)) {
        return;
    }
    for (const std::string_view side : {"width", "height"}) {
        if (const auto length = use.Find(side)) {
            instance.Set(side, *length);
        }
    }
}

// Nothing for a place that depends on the viewport.
std::optional<double> ReadPlace(const ZAMPrepressElement& use, std::string_view attribute) {
    const std::string_view text = use.Get(attribute);
    return text.ends_with('%') ? std::nullopt : std::optional(ZAMPrepressReadLength(text).value_or(0.0));
}

class Expansion {
public:
    explicit Expansion(ZAMPrepressTree& tree) : _Tree(tree), _Ids(tree) {}

    void Expand(ZAMPrepressElement& element, int depth, bool isDrawn);

private:
    void ExpandUse(ZAMPrepressElement& use, int depth);
    [[nodiscard]] const ZAMPrepressElement* FindTarget(const ZAMPrepressElement& use) const;
    int Place(ZAMPrepressElement& use, ZAMPrepressElement& instance);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds _Ids;
    std::unordered_set<const ZAMPrepressElement*> _Open; // on the way to here, the originals of copies included
};

void Expansion::Expand(ZAMPrepressElement& element, int depth, bool isDrawn) {
    if (depth >= ZAMLimits::kUseDepth) {
        element.children.clear();
        return;
    }
    isDrawn = (isDrawn && !IsDefinition(element)) || IsDrawnThroughProperties(element);
    const bool isOpened = _Open.insert(&element).second;
    if (isDrawn && element.Is(kUse)) {
        ExpandUse(element, depth);
    } else {
        for (ZAMPrepressElement* child : element.children) {
            Expand(*child, depth + 1, isDrawn);
        }
    }
    if (isOpened) {
        _Open.erase(&element);
    }
}

// Null when there is none that could be drawn here.
const ZAMPrepressElement* Expansion::FindTarget(const ZAMPrepressElement& use) const {
    const ZAMPrepressElement* const target = _Ids.FindLink(use.Get(kReference));
    const bool isPossible =
        target != nullptr && !_Open.contains(target) && (target->Is(kSymbol) || ZAMPrepressIsDrawn(target->name));
    return isPossible ? target : nullptr;
}

// The use itself becomes the group, so that what inherits from it goes on to do so.
void Expansion::ExpandUse(ZAMPrepressElement& use, int depth) {
    const ZAMPrepressElement* const target = FindTarget(use);
    ZAMPrepressElement* const instance = target == nullptr ? nullptr : _Tree.Copy(*target);
    std::erase_if(use.children,
                  [](const ZAMPrepressElement* child) { return !child->Is("title") && !child->Is("desc"); });
    if (instance != nullptr) {
        RemoveIds(*instance);
        const int levels = Place(use, *instance);
        _Open.insert(target);
        Expand(*instance, depth + levels, true);
        _Open.erase(target);
    }
    use.name = "g";
    for (const std::string_view attribute : {std::string_view("x"), std::string_view("y"), std::string_view("width"),
                                             std::string_view("height"), kReference}) {
        use.Remove(attribute);
    }
}

// The place is part of the use's transform. One that depends on the viewport is that of an svg element of its own.
// Gives how many levels below the use the instance stands.
int Expansion::Place(ZAMPrepressElement& use, ZAMPrepressElement& instance) {
    SetViewport(use, instance);
    const auto x = ReadPlace(use, "x");
    const auto y = ReadPlace(use, "y");
    if (!x || !y) {
        ZAMPrepressElement& viewport = _Tree.NewElement(kSvg);
        viewport.attributes = {{"x", use.Get("x")}, {"y", use.Get("y")}, {"overflow", "visible"}};
        ZAMPrepressTree::Append(viewport, instance);
        ZAMPrepressTree::Append(use, viewport);
        return 2;
    }
    ZAMPrepressTree::Append(use, instance);
    ZAMPrepressAddTransform(use, {1.0, 0.0, 0.0, 1.0, *x, *y}, _Tree);
    return 1;
}

} // namespace

bool ZAMPrepressUses::Concerns(const ZAMLightXmlElementItf& element) {
    return element.GetName() == kUse;
}

void ZAMPrepressUses::Rewrite(ZAMPrepressTree& tree) {
    Expansion(tree).Expand(tree.GetRoot(), 0, true);
}
