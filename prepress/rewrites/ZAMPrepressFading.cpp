// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressFading.h"

#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/document/ZAMPrepressSearch.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/paint/ZAMPrepressDataReference.h"
#include "prepress/paint/ZAMPrepressPictureFile.h"
#include "prepress/paint/ZAMPrepressPictureHeader.h"
#include "prepress/rewrites/ZAMPrepressClipOutline.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

constexpr std::string_view kReference = "xlink:href";

class Rewriter {
public:
    explicit Rewriter(ZAMPrepressTree& tree) : _Tree(tree), _Ids(tree) {}

    void RewriteChildren(ZAMPrepressElement& element);

private:
    void FindCut(ZAMPrepressElement& element);
    [[nodiscard]] bool IsReadable(const ZAMPrepressElement& image);
    ZAMPrepressElement& Replace(ZAMPrepressElement& image);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds _Ids;
    ZAMPrepressClipRegion _Clips{_Ids};
    std::unordered_set<const ZAMPrepressElement*> _Cut;   // what covers the shape that clips it
    std::unordered_map<std::string_view, bool> _Readable; // by reference
};

bool IsFaded(const ZAMPrepressElement& element) {
    return ZAMPrepressNumberOr(element, "fill-opacity", 1.0) < 1.0;
}

void Rewriter::FindCut(ZAMPrepressElement& element) {
    if (const auto outline = _Clips.OutlineFor(element)) {
        _Cut.insert(ZAMPrepressFindCovering(element, *outline));
    }
}

// A fill without a picture would show its colour, where an image shows nothing.
bool Rewriter::IsReadable(const ZAMPrepressElement& image) {
    const std::string_view reference = image.Get(kReference);
    const auto [known, isNew] = _Readable.try_emplace(reference, false);
    if (isNew && ZAMPrepressIsDataReference(reference)) {
        const auto bytes = ZAMPrepressReadDataReference(reference);
        known->second = bytes && ZAMPrepressPictureHeader::Read(*bytes).width > 0.0;
    } else if (isNew) {
        const auto file = ZAMPrepressPictureFile::Find(reference, _Tree.GetPath());
        known->second = file && ZAMPrepressPictureHeader::Read(file->bytes).width > 0.0;
    }
    return known->second;
}

// The images of patterns are as they should be.
void Rewriter::RewriteChildren(ZAMPrepressElement& element) {
    std::vector<ZAMPrepressElement*> children;
    for (ZAMPrepressElement* child : element.children) {
        if (child->Has("clip-path")) {
            FindCut(*child);
        }
        if (child->Is("image") && (IsFaded(*child) || _Cut.contains(child)) && IsReadable(*child)) {
            children.push_back(&Replace(*child));
        } else if (!child->Is("pattern")) {
            RewriteChildren(*child);
        }
        children.push_back(child);
    }
    if (children.size() != element.children.size()) {
        element.children.assign(children.begin(), children.end());
    }
}

// The image becomes the rectangle, which keeps what else is said of it. Twice as large a tile keeps the picture's
// opposite edges apart.
ZAMPrepressElement& Rewriter::Replace(ZAMPrepressElement& image) {
    const std::string_view id = _Ids.NewId("faded-");
    const auto doubled = [&](std::string_view side) {
        return _Tree.Keep(ZAMPrepressNumberText(2.0 * ZAMPrepressNumberOr(image, side, 0.0)));
    };
    ZAMPrepressElement& picture = _Tree.NewElement("image");
    picture.attributes = {{"width", image.Get("width")},
                          {"height", image.Get("height")},
                          {"preserveAspectRatio", "none"},
                          {kReference, image.Get(kReference)}};
    ZAMPrepressElement& pattern = _Tree.NewElement("pattern");
    pattern.attributes = {{"id", id},
                          {"patternUnits", "userSpaceOnUse"},
                          {"x", image.Get("x")},
                          {"y", image.Get("y")},
                          {"width", doubled("width")},
                          {"height", doubled("height")}};
    ZAMPrepressTree::Append(pattern, picture);
    pattern.parent = image.parent;
    image.name = "rect";
    image.Remove(kReference);
    image.Set("fill", _Tree.Keep("url(#" + std::string(id) + ')'));
    return pattern;
}

} // namespace

bool ZAMPrepressFading::Concerns(const ZAMLightXmlElementItf& element) {
    static constexpr ZAMLightXmlName kOpacity("fill-opacity");
    return element.GetName() == "image" && !element.GetAttribute(kOpacity).empty();
}

void ZAMPrepressFading::Rewrite(ZAMPrepressTree& tree) {
    if (ZAMPrepressHasAny(tree.GetRoot(), [](const auto& element) { return element.Is("image"); })) {
        Rewriter(tree).RewriteChildren(tree.GetRoot());
    }
}
