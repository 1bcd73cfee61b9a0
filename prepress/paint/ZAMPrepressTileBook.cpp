// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressTileBook.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/paint/ZAMPrepressBase64.h"
#include "prepress/paint/ZAMPrepressSolidPaint.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kFewestPixels = 8 * 8;
// All drawings of tiles together: what takes some seconds to draw.
constexpr std::size_t kMostElements = 300'000;

// The only child element; null when there are none or several.
const ZAMPrepressElement* FindOnlyChild(const ZAMPrepressElement& element) {
    const ZAMPrepressElement* found = nullptr;
    for (const ZAMPrepressElement* child : element.children) {
        if (!child->IsText()) {
            if (found != nullptr) {
                return nullptr;
            }
            found = child;
        }
    }
    return found;
}

} // namespace

void ZAMPrepressTileBook::Fill(ZAMPrepressElement& leaf, ZAMPrepressTile tile) {
    const auto [found, isNew] = _Numbers.try_emplace(tile.key, _Entries.size());
    if (isNew) {
        _Entries.push_back({std::move(tile), {&leaf}});
        return;
    }
    Entry& entry = _Entries[found->second];
    entry.tile.pixels = entry.tile.pixels.UnitedWith(tile.pixels);
    entry.leaves.push_back(&leaf);
}

void ZAMPrepressTileBook::Keep(ZAMPrepressElement& definition) {
    if (_ById.try_emplace(definition.Get("id"), &definition).second) {
        _Definitions.push_back(&definition);
    }
}

ZAMPrepressElement* ZAMPrepressTileBook::Find(std::string_view id) const {
    const auto found = _ById.find(id);
    return found == _ById.end() ? nullptr : found->second;
}

void ZAMPrepressTileBook::Close() {
    const std::size_t most = FindMostPixels();
    for (const Entry& entry : _Entries) {
        Draw(entry, entry.tile.pixels.Within(most));
    }
    _Entries.clear();
    _Numbers.clear();
}

// How many pixels each tile may have: what the small ones do not need is left to the others.
std::size_t ZAMPrepressTileBook::FindMostPixels() const {
    std::vector<std::size_t> counts;
    counts.reserve(_Entries.size());
    for (const Entry& entry : _Entries) {
        counts.push_back(entry.tile.pixels.GetCount());
    }
    std::ranges::sort(counts);
    std::size_t pixelsLeft = ZAMLimits::kPaintPixels;
    std::size_t tilesLeft = counts.size();
    for (const std::size_t count : counts) {
        const std::size_t share = std::max(kFewestPixels, pixelsLeft / tilesLeft);
        if (count > share) {
            return share;
        }
        pixelsLeft -= std::min(count, pixelsLeft);
        --tilesLeft;
    }
    return ZAMLimits::kPaintPixels;
}

// To find out that there are too many costs something as well, so that nothing is drawn after that.
bool ZAMPrepressTileBook::Spend(std::size_t elements) {
    _Spent = std::min(kMostElements, _Spent + std::min(elements, kMostElements));
    return _Spent < kMostElements;
}

void ZAMPrepressTileBook::Draw(const Entry& entry, const ZAMPrepressPixels& pixels) {
    const std::string png = entry.tile.draw(pixels);
    if (png.empty()) {
        for (ZAMPrepressElement* leaf : entry.leaves) {
            ZAMPrepressPaintSolid(_Tree, *leaf, "fill", entry.tile.mean);
        }
        return;
    }
    ZAMPrepressElement& definition = MakeDefinition(entry.tile.area, png);
    const std::string_view fill = _Tree.Keep("url(#" + std::string(definition.Get("id")) + ")");
    Keep(definition);
    for (ZAMPrepressElement* leaf : entry.leaves) {
        leaf->Set("fill", fill);
    }
}

ZAMPrepressElement& ZAMPrepressTileBook::MakeDefinition(const ZAMMathBox2D& area, std::string_view png) {
    const auto number = [&](double value) { return _Tree.Keep(ZAMPrepressNumberText(value)); };
    std::string data = "data:image/png;base64,";
    ZAMPrepressAddBase64(png, data);
    const std::string_view width = number(area.Width());
    const std::string_view height = number(area.Height());

    ZAMPrepressElement& image = _Tree.NewElement("image");
    image.attributes = {{"width", width},
                        {"height", height},
                        {"preserveAspectRatio", "none"},
                        {"xlink:href", _Tree.Keep(std::move(data))}};
    ZAMPrepressElement& pattern = _Tree.NewElement("pattern");
    pattern.attributes = {{"id", _Ids.NewId("tile-")},
                          {"patternUnits", "userSpaceOnUse"},
                          {"x", number(area.xMin)},
                          {"y", number(area.yMin)},
                          {"width", width},
                          {"height", height}};
    ZAMPrepressTree::Append(pattern, image);
    return pattern;
}

// Images are placed already: they fill their rectangle.
bool ZAMPrepressIsBitmapTile(const ZAMPrepressElement& pattern) {
    if (!pattern.Is("pattern") || pattern.Get("patternUnits") != "userSpaceOnUse" || pattern.Has("viewBox") ||
        pattern.Has("patternTransform") || pattern.Has("xlink:href") ||
        pattern.Get("patternContentUnits") == "objectBoundingBox") {
        return false;
    }
    const ZAMPrepressElement* const image = FindOnlyChild(pattern);
    return image != nullptr && image->Is("image") && !image->Has("transform") && !image->Has("clip-path") &&
           !image->Has("fill-opacity") && ZAMPrepressNumberOr(*image, "x", 0.0) == 0.0 &&
           ZAMPrepressNumberOr(*image, "y", 0.0) == 0.0 && image->Get("width") == pattern.Get("width") &&
           image->Get("height") == pattern.Get("height");
}
