// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressClipRegion.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/geometry/ZAMPrepressGeometryBox.h"
#include "prepress/paint/ZAMPrepressLeafSpace.h"
#include "prepress/rewrites/ZAMPrepressClipOutline.h"

#include <utility>

namespace {

constexpr ZAMMathBox2D kNothing{0.0, 0.0, 0.0, 0.0};

std::optional<ZAMMathBox2D> BoxOf(const ZAMPrepressElement& element, const ZAMMathAffine2D& map) {
    ZAMMathBox2D box;
    if (!ZAMPrepressAddGeometry(box, element, map)) {
        return std::nullopt;
    }
    return box.IsEmpty() ? kNothing : box;
}

// From the coordinates of a clipping path to those of what it clips. Nothing when the latter cannot be measured.
std::optional<ZAMMathAffine2D> UnitsOf(const ZAMPrepressElement& path, const ZAMPrepressElement& clipped) {
    if (path.Get("clipPathUnits") != "objectBoundingBox") {
        return ZAMMathAffine2D();
    }
    const auto box = BoxOf(clipped, {});
    return box ? std::optional(ZAMMathAffine2D{box->Width(), 0.0, 0.0, box->Height(), box->xMin, box->yMin})
               : std::nullopt;
}

const ZAMPrepressElement* FindPath(const ZAMPrepressIds& ids, const ZAMPrepressElement& bearer) {
    const ZAMPrepressElement* const path = ids.FindUrl(bearer.Get("clip-path"));
    return path != nullptr && path->Is("clipPath") ? path : nullptr;
}

} // namespace

const ZAMPrepressClipRegion::Clip& ZAMPrepressClipRegion::Read(const ZAMPrepressElement& path) {
    const auto [found, isNew] = _Clips.try_emplace(&path);
    Clip& clip = found->second;
    if (!isNew) {
        return clip;
    }
    ZAMMathAffine2D map = ZAMPrepressReadTransform(path.Get("transform")).value_or(ZAMMathAffine2D());
    clip.box = BoxOf(path, map);
    const ZAMPrepressElement* const leaf = path.Has("clip-path") ? nullptr : ZAMPrepressFindOnlyLeaf(path, map);
    auto outline = leaf == nullptr ? std::nullopt : ZAMPrepressPath::Of(*leaf);
    if (outline && !outline->segments.empty()) {
        outline = ZAMPrepressMapPath(*std::move(outline), map);
        if (!ZAMPrepressIsUprightRectangle(*outline)) {
            clip.outline = std::move(outline);
            clip.isEvenOdd = leaf->Get("clip-rule") == "evenodd";
        }
    }
    return clip;
}

// A clipping path's own clipping path is in the same coordinates.
std::optional<ZAMMathBox2D> ZAMPrepressClipRegion::BoxFor(const ZAMPrepressElement& bearer,
                                                          const ZAMPrepressElement& clipped, int depth) {
    const ZAMPrepressElement* const path = FindPath(_Ids, bearer);
    const auto units = path == nullptr || depth == ZAMLimits::kClipDepth ? std::nullopt : UnitsOf(*path, clipped);
    if (!units) {
        return std::nullopt;
    }
    const auto& box = Read(*path).box;
    const auto own = box ? std::optional(units->Apply(*box)) : std::nullopt;
    const auto further = BoxFor(*path, clipped, depth + 1);
    return own && further ? own->Intersection(*further) : own ? own : further;
}

std::optional<ZAMPrepressClipRegion::Outline> ZAMPrepressClipRegion::OutlineFor(const ZAMPrepressElement& element) {
    const ZAMPrepressElement* const path = FindPath(_Ids, element);
    const Clip* const clip = path == nullptr ? nullptr : &Read(*path);
    const auto units = clip == nullptr || !clip->outline ? std::nullopt : UnitsOf(*path, element);
    return units ? std::optional(Outline{*clip->outline, *clip->box, clip->isEvenOdd, *units}) : std::nullopt;
}
