// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressTileDrawing.h"

#include "prepress/geometry/ZAMPrepressTransformText.h"
#include "prepress/rewrites/ZAMPrepressPaints.h"
#include "prepress/ZAMPrepressRewrite.h"
#include "prepress/ZAMPrepressTileRenderer.h"

#include <unordered_set>

namespace {

// What it takes to draw anything at all, in elements.
constexpr std::size_t kCostOfDrawing = 100;
// Longer chains of definitions are cut: each step costs stack.
constexpr std::size_t kDeepestReference = 64;

// Collects what the attributes of a pattern's content refer to, each once, and what that refers to before it.
class References {
public:
    References(const ZAMPrepressIds& ids, const ZAMPrepressTileBook& book) : _Ids(ids), _Book(book) {}

    void Collect(const ZAMPrepressElement& element) {
        for (const ZAMPrepressElement::Attribute& attribute : element.attributes) {
            CollectUrl(attribute.value);
        }
        for (const ZAMPrepressElement* child : element.children) {
            Collect(*child);
        }
    }
    [[nodiscard]] const std::vector<ZAMPrepressElement*>& Get() const { return _Found; }

private:
    void CollectUrl(std::string_view value) {
        const std::string_view id = value.starts_with("url(") ? ZAMPrepressIds::IdOfUrl(value) : std::string_view();
        ZAMPrepressElement* const defined = _Book.Find(id);
        ZAMPrepressElement* const found = defined != nullptr ? defined : _Ids.Find(id);
        if (found != nullptr && _Depth < kDeepestReference && _Seen.insert(found).second) {
            ++_Depth;
            Collect(*found);
            --_Depth;
            _Found.push_back(found);
        }
    }

    const ZAMPrepressIds& _Ids;
    const ZAMPrepressTileBook& _Book;
    std::unordered_set<const ZAMPrepressElement*> _Seen;
    std::vector<ZAMPrepressElement*> _Found;
    std::size_t _Depth = 0;
};

std::size_t CountElements(const ZAMPrepressElement& element) {
    std::size_t count = 1;
    for (const ZAMPrepressElement* child : element.children) {
        count += CountElements(*child);
    }
    return count;
}

// The rewrites before have been done on the content already.
ZAMLightXmlElement Complete(const ZAMLightXmlElement& drawing) {
    ZAMPrepressTree tree(drawing);
    bool isToDo = false;
    for (const ZAMPrepressRewrite& rewrite : ZAMPrepressGetRewrites()) {
        if (isToDo) {
            rewrite.rewrite(tree);
        }
        isToDo = isToDo || rewrite.rewrite == ZAMPrepressPaints::Rewrite;
    }
    return tree.ToDocument();
}

} // namespace

// Its elements stay where they are as well: it is only written.
ZAMPrepressElement& ZAMPrepressTileDrawer::MakeDrawing(const ZAMPrepressVectorPattern& pattern,
                                                       const ZAMMathBox2D& part,
                                                       const ZAMPrepressPixels& pixels) const {
    References references(ids, book);
    references.Collect(*pattern.content);
    ZAMPrepressElement& definitions = tree.NewElement("defs");
    definitions.children.assign(references.Get().begin(), references.Get().end());
    ZAMPrepressElement& group = tree.NewElement("g");
    const double xScale = static_cast<double>(pixels.width) / part.Width();
    const double yScale = static_cast<double>(pixels.height) / part.Height();
    const ZAMMathAffine2D toPixels{xScale, 0.0, 0.0, yScale, -part.xMin * xScale, -part.yMin * yScale};
    group.Set("transform", tree.Keep(ZAMPrepressTransformText(toPixels * pattern.toTile)));
    group.children = pattern.content->children;
    ZAMPrepressElement& drawing = tree.NewElement("svg");
    drawing.Set("width", tree.Keep(std::to_string(pixels.width)));
    drawing.Set("height", tree.Keep(std::to_string(pixels.height)));
    drawing.children = {&definitions, &group};
    return drawing;
}

std::string ZAMPrepressTileDrawer::Draw(const ZAMPrepressVectorPattern& pattern, const ZAMMathBox2D& part,
                                        const ZAMPrepressPixels& pixels) const {
    if (!book.Spend(kCostOfDrawing)) {
        return {};
    }
    const ZAMPrepressElement& drawing = MakeDrawing(pattern, part, pixels);
    if (!book.Spend(CountElements(drawing))) {
        return {};
    }
    return tree.GetTileRenderer()->Render(Complete(tree.ToDocument(drawing)));
}
