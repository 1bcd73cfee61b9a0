// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressPaintOrder.h"

#include <algorithm>

namespace {

using Element = ZAMPrepressElement;

// Whether the element or one in it has both fill and outline.
bool HasBoth(const Element& element) {
    return (element.Has("stroke") && element.Get("fill") != "none") ||
           std::ranges::any_of(element.children, [](const Element* child) { return HasBoth(*child); });
}

void RemoveStroke(Element& element) {
    std::erase_if(element.attributes, [](const Element::Attribute& attribute) {
        return attribute.name.starts_with("stroke") && attribute.name != "stroke-width"; // which sizes markers
    });
    for (Element* child : element.children) {
        RemoveStroke(*child);
    }
}

// What is drawn, or referred to, once is left to the other element.
void RemoveFill(Element& element) {
    if (element.IsText()) {
        return;
    }
    element.Set("fill", "none");
    for (const std::string_view name : {"id", "marker-start", "marker-mid", "marker-end", "text-decoration"}) {
        element.Remove(name);
    }
    for (Element* child : element.children) {
        RemoveFill(*child);
    }
}

} // namespace

Element* ZAMPrepressSplitStroke(Element& element, ZAMPrepressTree& tree) {
    Element* const outline = HasBoth(element) ? tree.Copy(element) : nullptr;
    if (outline != nullptr) {
        RemoveFill(*outline);
        RemoveStroke(element);
    }
    return outline;
}
