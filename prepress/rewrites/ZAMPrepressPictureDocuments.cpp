// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressPictureDocuments.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "prepress/document/ZAMPrepressElementNames.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/ZAMPrepressRewrite.h"

#include <limits>
#include <utility>

namespace {

constexpr std::string_view kReference = "xlink:href";
constexpr std::string_view kOpacity = "fill-opacity";
constexpr std::string_view kPlace[] = {"x", "y", "width", "height", "preserveAspectRatio"};

ZAMLightXmlElement Parse(std::string_view document) {
    ZAMLightXmlElement root;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    const bool isRead =
        document.size() <= static_cast<std::size_t>(std::numeric_limits<int>::max()) &&
        ZAMLightXmlParser().Parse(ZAMLightXmlInputStreamBuffer(bytes, static_cast<int>(document.size())), root) == 1;
    return isRead && (root.GetName() == "svg" || root.GetName() == "svg:svg") ? root : ZAMLightXmlElement();
}

// The root becomes an svg element in the image's place, within a root that has no size.
void Enclose(ZAMPrepressTree& tree, const ZAMPrepressElement& image) {
    ZAMPrepressElement& root = tree.GetRoot();
    ZAMPrepressElement& svg = tree.NewElement("svg");
    svg.attributes = std::exchange(root.attributes, {});
    for (ZAMPrepressElement* child : std::exchange(root.children, {})) {
        ZAMPrepressTree::Append(svg, *child);
    }
    root.name = "svg";
    ZAMPrepressTree::Append(root, svg);
    if (!svg.Has("viewBox")) {
        const auto width = ZAMPrepressReadLength(svg.Get("width"));
        const auto height = ZAMPrepressReadLength(svg.Get("height"));
        if (width && height) {
            svg.Set("viewBox",
                    tree.Keep("0 0 " + ZAMPrepressNumberText(*width) + ' ' + ZAMPrepressNumberText(*height)));
        }
    }
    for (const std::string_view attribute : kPlace) {
        const auto value = image.Find(attribute);
        value ? svg.Set(attribute, *value) : svg.Remove(attribute);
    }
}

void RewriteBeforePictures(ZAMPrepressTree& tree) {
    for (const ZAMPrepressRewrite& rewrite : ZAMPrepressGetRewrites()) {
        if (rewrite.name == "pictures") {
            return;
        }
        rewrite.rewrite(tree);
    }
}

// Gives ids and what refers to them a prefix.
void Rename(ZAMPrepressElement& element, const std::string& prefix, ZAMPrepressTree& tree) {
    for (ZAMPrepressElement::Attribute& attribute : element.attributes) {
        const std::string_view value = attribute.value;
        if (attribute.name == "id") {
            attribute.value = tree.Keep(prefix + std::string(value));
        } else if (attribute.name == kReference && value.starts_with('#')) {
            attribute.value = tree.Keep('#' + prefix + std::string(value.substr(1)));
        } else if (const std::string_view id = ZAMPrepressIds::IdOfUrl(value); !id.empty()) {
            const std::string_view rest = value.substr(value.find(')') + 1);
            attribute.value = tree.Keep("url(#" + prefix + std::string(id) + ')' + std::string(rest));
        }
    }
    for (ZAMPrepressElement* child : element.children) {
        Rename(*child, prefix, tree);
    }
}

// The opacity of all of the picture, as near as it can be had: that of its parts.
void Fade(ZAMPrepressElement& element, double opacity, ZAMPrepressTree& tree) {
    if (!ZAMPrepressIsContainer(element.name)) {
        for (const std::string_view attribute : {"fill-opacity", "stroke-opacity"}) {
            const double own = ZAMPrepressNumberOr(element, attribute, 1.0);
            element.Set(attribute, tree.Keep(ZAMPrepressNumberText(own * opacity)));
        }
    }
    for (ZAMPrepressElement* child : element.children) {
        if (ZAMPrepressIsDrawn(child->name) || ZAMPrepressIsTextPart(child->name)) {
            Fade(*child, opacity, tree);
        }
    }
}

} // namespace

ZAMPrepressElement* ZAMPrepressPictureDocuments::FindDrawing(const ZAMPrepressElement& image,
                                                             std::string_view document) {
    std::string key = std::to_string(reinterpret_cast<std::uintptr_t>(document.data()));
    key.append(" ").append(image.Get(kOpacity));
    for (const std::string_view attribute : kPlace) {
        key.append(" ").append(image.Get(attribute));
    }
    const auto found = _Drawings.find(key);
    if (found != _Drawings.end()) {
        return found->second == nullptr ? nullptr : _Tree.Copy(*found->second);
    }
    return _Drawings.emplace(std::move(key), ReadDrawing(image, document)).first->second;
}

ZAMPrepressElement* ZAMPrepressPictureDocuments::ReadDrawing(const ZAMPrepressElement& image,
                                                             std::string_view document) {
    const ZAMLightXmlElement source = Parse(document);
    if (source.GetName().empty()) {
        return nullptr;
    }
    ZAMPrepressTree tree(source);
    if (!_Known.insert(document.data()).second && !ZAMAllocationBudget::Spend(tree.GetSize())) {
        return nullptr;
    }
    Enclose(tree, image);
    RewriteBeforePictures(tree);
    ZAMPrepressElement& drawing = _Tree.Adopt(tree.ToDocument());
    Rename(drawing, "picture-" + std::to_string(_Drawings.size() + 1) + '-', _Tree);
    drawing.name = "g";
    drawing.attributes.clear();
    if (image.Has(kOpacity)) {
        Fade(drawing, ZAMPrepressNumberOr(image, kOpacity, 1.0), _Tree);
    }
    return &drawing;
}

bool ZAMPrepressPictureDocuments::Draw(ZAMPrepressElement& image, std::string_view document) {
    ZAMPrepressElement* const drawing = FindDrawing(image, document);
    if (drawing == nullptr) {
        return false;
    }
    for (const std::string_view attribute : kPlace) {
        image.Remove(attribute);
    }
    image.Remove(kOpacity);
    image.Remove(kReference);
    image.name = "g";
    image.children = {drawing};
    drawing->parent = &image;
    return true;
}
