// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressPaints.h"

#include "prepress/paint/ZAMPrepressLeafPainter.h"
#include "prepress/paint/ZAMPrepressServer.h"

#include <algorithm>
#include <utility>

namespace {

// What no leaf refers to any more, or what stands in front now.
void RemoveServers(ZAMPrepressElement& element) {
    std::erase_if(element.children,
                  [](const ZAMPrepressElement* child) { return ZAMPrepressServer::IsServer(*child); });
    for (ZAMPrepressElement* child : element.children) {
        RemoveServers(*child);
    }
}

void AddDefinitions(ZAMPrepressTree& tree, ZAMPrepressElement& drawing,
                    const std::vector<ZAMPrepressElement*>& definitions) {
    if (definitions.empty()) {
        return;
    }
    ZAMPrepressElement& defs = tree.NewElement("defs");
    for (ZAMPrepressElement* definition : definitions) {
        ZAMPrepressTree::Append(defs, *definition);
    }
    defs.parent = &drawing;
    drawing.children.insert(drawing.children.begin(), &defs);
}

std::vector<ZAMPrepressElement*> FindDrawings(ZAMPrepressElement& root) {
    if (root.Is("svg")) {
        return {&root};
    }
    std::vector<ZAMPrepressElement*> drawings(root.children.begin(), root.children.end());
    std::erase_if(drawings, [](const ZAMPrepressElement* child) { return !child->Is("svg"); });
    return drawings;
}

void PaintDrawing(ZAMPrepressTree& tree, ZAMPrepressIds& ids, ZAMPrepressElement& drawing, ZAMPrepressTileBook& book) {
    ZAMPrepressLeafPainter painter(tree, ids, book, drawing);
    painter.PaintBelow(drawing, {});
    book.Close();
}

} // namespace

bool ZAMPrepressPaints::Concerns(const ZAMLightXmlElementItf& element) {
    const std::string_view name = element.GetName();
    return name == "linearGradient" || name == "radialGradient" || name == "pattern";
}

void ZAMPrepressPaints::Rewrite(ZAMPrepressTree& tree) {
    ZAMPrepressIds ids(tree);
    std::vector<std::pair<ZAMPrepressElement*, ZAMPrepressTileBook>> drawings;
    for (ZAMPrepressElement* drawing : FindDrawings(tree.GetRoot())) {
        ZAMPrepressTileBook& book = drawings.emplace_back(drawing, ZAMPrepressTileBook(tree, ids)).second;
        PaintDrawing(tree, ids, *drawing, book);
    }
    RemoveServers(tree.GetRoot());
    for (const auto& [drawing, book] : drawings) {
        AddDefinitions(tree, *drawing, book.GetDefinitions());
    }
}
