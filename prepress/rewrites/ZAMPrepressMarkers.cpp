// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressMarkers.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/geometry/ZAMPrepressDrawnBox.h"
#include "prepress/rewrites/ZAMPrepressMarkerCopies.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <vector>

namespace {

constexpr std::string_view kMarker = "marker";

enum Place : std::uint8_t { kStart, kMiddle, kEnd, kPlaces };
constexpr std::array<std::string_view, kPlaces> kProperties{"marker-start", "marker-mid", "marker-end"};
constexpr std::string_view kShapes[] = {"path", "line", "polyline", "polygon"};
// What a group of markers has in common with the shape that they stand on.
constexpr std::string_view kShared[] = {"transform", "clip-path", "mask", "filter"};

using Marker = ZAMPrepressMarker;
using Markers = std::array<Marker*, kPlaces>; // null where there is none

bool HasMarkers(const ZAMPrepressElement& shape) {
    return std::ranges::any_of(kProperties, [&](std::string_view property) { return shape.Has(property); });
}

// Whether there is anything to be done in the element.
bool KnowsMarkers(const ZAMPrepressElement& element) {
    return element.Is(kMarker) || HasMarkers(element) ||
           std::ranges::any_of(element.children, [](const ZAMPrepressElement* child) { return KnowsMarkers(*child); });
}

bool HasDefinitions(const ZAMPrepressElement& element) {
    return std::ranges::any_of(element.children, [](const ZAMPrepressElement* child) {
        return !child->IsText() && (!ZAMPrepressIsDrawn(child->name) || HasDefinitions(*child));
    });
}

bool FitsIn(const ZAMPrepressElement& content, const ZAMMathBox2D& clip) {
    const auto box = ZAMPrepressDrawnBoxes().OfContent(content);
    return box && (box->IsEmpty() || (box->xMin >= clip.xMin && box->yMin >= clip.yMin && box->xMax <= clip.xMax &&
                                      box->yMax <= clip.yMax));
}

class Drawing {
public:
    explicit Drawing(ZAMPrepressTree& tree)
        : _Tree(tree), _Ids(tree), _Copies(tree, _Ids), _Viewport(ZAMPrepressViewportSize::OfRoot(tree.GetRoot())) {}

    void RewriteChildren(ZAMPrepressElement& element);

private:
    // The group of the shape's markers, null when it has none.
    ZAMPrepressElement* RewriteShape(ZAMPrepressElement& shape);
    void AddInstances(const ZAMPrepressElement& shape, const Markers& markers, ZAMPrepressElement& group);
    Markers TakeMarkers(ZAMPrepressElement& shape);
    Marker* FindMarker(std::string_view reference);
    Marker* ReadMarker(ZAMPrepressElement& element);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds _Ids;
    ZAMPrepressMarkerCopies _Copies;
    ZAMPrepressViewportSize _Viewport;
    std::unordered_map<const ZAMPrepressElement*, std::unique_ptr<Marker>> _Markers; // null while it is read
    int _Level = 0;                                                                  // of markers on markers
};

// A marker that holds definitions stays as their home; its content is not drawn there.
void Drawing::RewriteChildren(ZAMPrepressElement& element) {
    std::vector<ZAMPrepressElement*> children;
    children.reserve(element.children.size());
    bool isChanged = false;
    for (ZAMPrepressElement* child : element.children) {
        if (child->Is(kMarker)) {
            ReadMarker(*child);
            if (!HasDefinitions(*child)) {
                isChanged = true;
                continue;
            }
        } else {
            RewriteChildren(*child);
        }
        children.push_back(child);
        if (ZAMPrepressElement* const group = RewriteShape(*child)) {
            group->parent = &element;
            children.push_back(group);
            isChanged = true;
        }
    }
    if (isChanged) {
        element.children.assign(children.begin(), children.end());
    }
}

Markers Drawing::TakeMarkers(ZAMPrepressElement& shape) {
    Markers markers{};
    for (std::size_t place = 0; place < kPlaces; ++place) {
        if (const auto reference = shape.Find(kProperties[place])) {
            markers[place] = FindMarker(*reference);
            shape.Remove(kProperties[place]);
        }
    }
    return markers;
}

ZAMPrepressElement* Drawing::RewriteShape(ZAMPrepressElement& shape) {
    if (!HasMarkers(shape)) {
        return nullptr;
    }
    ZAMPrepressElement& group = _Tree.NewElement("g");
    const Markers markers = TakeMarkers(shape);
    if (std::ranges::find(kShapes, shape.name) != std::end(kShapes)) {
        AddInstances(shape, markers, group);
    }
    shape.Remove("opacity");
    for (const std::string_view attribute : kShared) {
        if (const auto value = shape.Find(attribute)) {
            group.Set(attribute, *value);
        }
    }
    return group.children.empty() ? nullptr : &group;
}

void Drawing::AddInstances(const ZAMPrepressElement& shape, const Markers& markers, ZAMPrepressElement& group) {
    const auto path = ZAMPrepressPath::Of(shape);
    const auto vertices = path ? ZAMPrepressGetVertices(*path) : std::vector<ZAMPrepressVertex>();
    const double strokeWidth = ZAMPrepressNumberOr(shape, "stroke-width", 1.0);
    const auto paint = ZAMPrepressMarkedPaint::Of(shape);
    const auto add = [&](Place place, const ZAMPrepressVertex& vertex) {
        Marker* const marker = markers.at(place);
        if (marker == nullptr) {
            return;
        }
        const ZAMMathAffine2D map = marker->shape.GetMap(vertex, strokeWidth, place == kStart);
        if (ZAMPrepressElement* const instance = _Copies.Make(*marker, map, paint)) {
            ZAMPrepressTree::Append(group, *instance);
        }
    };
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const bool isFirst = i == 0;
        const bool isLast = i + 1 == vertices.size();
        if (isFirst) {
            add(kStart, vertices[i]);
        }
        if (!isFirst && !isLast) {
            add(kMiddle, vertices[i]);
        }
        if (isLast) {
            add(kEnd, vertices[i]);
        }
    }
}

Marker* Drawing::FindMarker(std::string_view reference) {
    ZAMPrepressElement* const element = _Ids.FindUrl(reference);
    return element == nullptr ? nullptr : ReadMarker(*element);
}

// A marker may have shapes with markers. One that comes back to itself is not drawn there.
Marker* Drawing::ReadMarker(ZAMPrepressElement& element) {
    if (!element.Is(kMarker) || _Level == ZAMLimits::kMarkerDepth) {
        return nullptr;
    }
    const auto [known, isNew] = _Markers.try_emplace(&element);
    if (!isNew) {
        return known->second.get();
    }
    const auto shape = ZAMPrepressMarkerShape::Read(element, _Viewport);
    ++_Level;
    RewriteChildren(element);
    --_Level;
    if (!shape || element.children.empty()) {
        return nullptr;
    }
    const bool isClipped = shape->GetClip() && !FitsIn(element, *shape->GetClip());
    auto& marker = _Markers[&element];
    marker = std::make_unique<Marker>(Marker{*shape, &element, {}, isClipped});
    return marker.get();
}

} // namespace

// Without a marker element no property can refer to one.
bool ZAMPrepressMarkers::Concerns(const ZAMLightXmlElementItf& element) {
    return element.GetName() == kMarker;
}

void ZAMPrepressMarkers::Rewrite(ZAMPrepressTree& tree) {
    if (KnowsMarkers(tree.GetRoot())) {
        Drawing(tree).RewriteChildren(tree.GetRoot());
    }
}
