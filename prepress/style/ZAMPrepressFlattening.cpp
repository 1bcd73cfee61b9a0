// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressFlattening.h"

#include "prepress/geometry/ZAMPrepressTransform.h"
#include "prepress/style/ZAMPrepressFontValues.h"
#include "prepress/style/ZAMPrepressLeafLengths.h"
#include "prepress/style/ZAMPrepressPaintOrder.h"

#include <algorithm>
#include <cmath>

namespace {

using Element = ZAMPrepressElement;
using Property = ZAMPrepressProperty;
using Style = ZAMPrepressComputedStyle;
using Use = ZAMPrepressUse;

constexpr std::string_view kLeaves[] = {"circle", "ellipse", "image", "line", "path", "polygon", "polyline", "rect"};
constexpr std::string_view kTexts[] = {"altGlyph", "text", "textPath", "tref", "tspan"};
constexpr std::string_view kDefinitions[] = {"clipPath", "filter",  "linearGradient", "marker",
                                             "mask",     "pattern", "radialGradient", "symbol"};

template <std::size_t kCount> bool IsOneOf(const Element& element, const std::string_view (&names)[kCount]) {
    return std::ranges::find(names, element.name) != std::end(names);
}

// Attributes that say nothing any more once styles are computed.
bool IsSpent(const Element::Attribute& attribute) {
    const ZAMPrepressPropertyRow* const row = ZAMPrepressFindProperty(attribute.name);
    return row == nullptr ? attribute.name == "marker" || attribute.name == "font" : row->use != Use::Sheet;
}

void WriteValues(Element& element, const Style& style, Use use) {
    for (const ZAMPrepressPropertyRow& row : ZAMPrepressGetProperties()) {
        if (row.use == use && !style.Is(row.property, row.initial)) {
            element.Set(row.name, style.Get(row.property));
        }
    }
}

// By how much lengths grow on the whole.
double GetScale(const ZAMMathAffine2D& map) {
    return std::sqrt(std::abs(map.a * map.d - map.b * map.c));
}

} // namespace

ZAMPrepressFlattening::ZAMPrepressFlattening(ZAMPrepressTree& tree) : _Tree(tree), _Computer(tree), _Paint(tree) {}

void ZAMPrepressFlattening::Flatten() {
    Elements kept;
    Visit(_Tree.GetRoot(), {}, {}, kept);
}

ZAMPrepressFlattening::Role ZAMPrepressFlattening::GetRole(const Element& element, const Scope& scope) {
    if (IsOneOf(element, kLeaves)) {
        return Role::Leaf;
    }
    if (IsOneOf(element, kTexts) || (scope.isInText && element.Is("a"))) {
        return Role::Text;
    }
    return IsOneOf(element, kDefinitions) ? Role::Definition : element.Is("stop") ? Role::Stop : Role::Other;
}

void ZAMPrepressFlattening::Visit(Element& element, const Style& parent, const Scope& outer, Elements& kept) {
    if (element.IsText()) {
        kept.push_back(&element);
        return;
    }
    const Role role = GetRole(element, outer);
    const Style style(parent, element, _Computer);
    const Scope scope = MakeScope(element, role, style, outer);
    std::erase_if(element.attributes, IsSpent);
    if (element.Is("text")) {
        _HasVisibleText = false;
    }
    VisitChildren(element, style, scope);
    Write(element, role, style, scope);
    if (scope.isHidden) {
        KeepHidden(element, role, !outer.isHidden, scope, kept);
    } else {
        Keep(element, role, style, scope, kept);
    }
}

void ZAMPrepressFlattening::VisitChildren(Element& element, const Style& style, const Scope& scope) {
    Elements kept;
    for (Element* child : element.children) {
        Visit(*child, style, scope, kept);
    }
    element.children.assign(kept.begin(), kept.end());
    for (Element* child : element.children) {
        child->parent = &element;
    }
}

ZAMPrepressFlattening::Scope ZAMPrepressFlattening::MakeScope(const Element& element, Role role, const Style& style,
                                                              const Scope& outer) {
    Scope scope = role == Role::Definition ? Scope() : outer;
    if (role == Role::Definition) {
        scope.paint.isInMarker = element.Is("marker");
        scope.paint.isInClip = element.Is("clipPath");
    } else {
        scope.isHidden = outer.isHidden || style.Is(Property::Display, "none");
    }
    if (!outer.isInText) { // a group's opacity is none of parts of texts
        scope.paint.opacity *= style.GetNumber(Property::Opacity);
    }
    if (const auto transform = ZAMPrepressReadTransform(element.Get("transform"))) {
        scope.map = scope.map * *transform;
        scope.paint.strokeScale = GetScale(scope.map);
    }
    if (role == Role::Text) {
        scope.isInText = true;
        std::string lines(outer.decoration);
        lines.append(" ").append(style.Get(Property::TextDecoration));
        scope.decoration = _Tree.Keep(*ZAMPrepressValues::ComputeDecoration(lines, {}));
    }
    return scope;
}

void ZAMPrepressFlattening::Write(Element& element, Role role, const Style& style, const Scope& scope) {
    WriteValues(element, style, Use::Bearer);
    if (role == Role::Stop) {
        _Paint.WriteStop(element, style);
    } else if (role == Role::Leaf) {
        ZAMPrepressResolveLengths(element, style.GetNumber(Property::FontSize), _Computer.GetViewport(), _Tree);
        _Paint.Write(element, style, scope.paint);
    } else if (role == Role::Text) {
        ZAMPrepressResolveLengths(element, style.GetNumber(Property::FontSize), _Computer.GetViewport(), _Tree);
        WriteText(element, style, scope);
    }
}

// Text that is not visible takes its room: it is there without paint.
void ZAMPrepressFlattening::WriteText(Element& element, const Style& style, Scope scope) {
    WriteValues(element, style, Use::Text);
    const bool isVisible = style.Is(Property::Visibility, "visible");
    _HasVisibleText = _HasVisibleText || isVisible;
    scope.paint.opacity = isVisible ? scope.paint.opacity : 0.0;
    _Paint.Write(element, style, scope.paint);
    const std::string_view lines = isVisible ? scope.decoration : "none";
    if (lines == "none") {
        element.Remove("text-decoration");
    } else {
        element.Set("text-decoration", lines);
    }
}

void ZAMPrepressFlattening::Keep(Element& element, Role role, const Style& style, const Scope& scope, Elements& kept) {
    if (role == Role::Leaf && !style.Is(Property::Visibility, "visible")) {
        KeepPath(element, scope, kept);
        return;
    }
    if (element.Is("text") && !_HasVisibleText) {
        return;
    }
    if ((role == Role::Leaf || element.Is("text")) && style.Is(Property::PaintOrder, "stroke")) {
        if (Element* const outline = ZAMPrepressSplitStroke(element, _Tree)) {
            kept.push_back(outline);
        }
    }
    kept.push_back(&element);
}

void ZAMPrepressFlattening::KeepHidden(Element& element, Role role, bool isOutermost, const Scope& scope,
                                       Elements& kept) {
    if (&element == &_Tree.GetRoot()) {
        return;
    }
    const bool isPath = element.Is("path") && element.Has("id");
    if (role == Role::Leaf && isOutermost) {
        KeepPath(element, scope, kept);
    } else if (role == Role::Stop || isPath) {
        kept.push_back(&element);
    } else if (role == Role::Other) {
        std::erase_if(element.children, [](const Element* child) { return child->IsText(); });
        if (element.children.empty()) {
            return;
        }
        if (isOutermost) {
            element.name = "defs";
            element.attributes.clear();
        }
        kept.push_back(&element);
    }
}

// Text may follow a path that is not to be seen.
void ZAMPrepressFlattening::KeepPath(Element& element, const Scope& scope, Elements& kept) {
    if (!element.Is("path") || !element.Has("id") || scope.paint.isInClip) {
        return;
    }
    Element& definitions = _Tree.NewElement("defs");
    ZAMPrepressTree::Append(definitions, element);
    kept.push_back(&definitions);
}
