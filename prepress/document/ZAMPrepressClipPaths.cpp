// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressClipPaths.h"

#include "prepress/geometry/ZAMPrepressLength.h"

#include <string>

void ZAMPrepressSetClip(ZAMPrepressElement& group, const ZAMMathBox2D& box, ZAMPrepressIds& ids,
                        ZAMPrepressTree& tree) {
    const auto text = [&](double number) { return tree.Keep(ZAMPrepressNumberText(number)); };
    const std::string_view id = ids.NewId("viewport-");
    ZAMPrepressElement& rectangle = tree.NewElement("rect");
    rectangle.attributes = {
        {"x", text(box.xMin)}, {"y", text(box.yMin)}, {"width", text(box.Width())}, {"height", text(box.Height())}};
    ZAMPrepressElement& path = tree.NewElement("clipPath");
    path.Set("id", id);
    ZAMPrepressTree::Append(path, rectangle);
    path.parent = &group;
    group.children.insert(group.children.begin(), &path);
    group.Set("clip-path", tree.Keep("url(#" + std::string(id) + ')'));
}

ZAMPrepressElement& ZAMPrepressWrapToClip(ZAMPrepressElement& element, const ZAMMathBox2D& box, ZAMPrepressIds& ids,
                                          ZAMPrepressTree& tree) {
    ZAMPrepressElement& group = ZAMPrepressWrap(element, tree);
    ZAMPrepressSetClip(group, box, ids, tree);
    return group;
}

ZAMPrepressElement& ZAMPrepressWrap(ZAMPrepressElement& element, ZAMPrepressTree& tree) {
    ZAMPrepressElement& group = tree.NewElement("g");
    group.parent = element.parent;
    if (const auto transform = element.Find("transform")) {
        group.Set("transform", *transform);
        element.Remove("transform");
    }
    ZAMPrepressTree::Append(group, element);
    return group;
}
