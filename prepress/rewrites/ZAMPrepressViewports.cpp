// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressViewports.h"

#include "prepress/document/ZAMPrepressClipPaths.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressPercentages.h"
#include "prepress/geometry/ZAMPrepressTransformText.h"
#include "prepress/geometry/ZAMPrepressViewport.h"
#include "prepress/rewrites/ZAMPrepressRootFrame.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

constexpr std::string_view kSvg = "svg";
constexpr std::string_view kViewBox = "viewBox";
constexpr std::string_view kAspect = "preserveAspectRatio";

// What a nested svg element makes of its attributes.
struct Viewport {
    bool isDrawn = true;
    ZAMMathAffine2D content;           // from the coordinates of its content to those around it
    std::optional<ZAMMathBox2D> shown; // of the content; nothing where its size is not known
    ZAMPrepressViewportSize percentages;
};

// Nothing for a side that the surroundings, themselves of no known size, would have to give.
std::optional<double> ReadSide(std::string_view text, double whole) {
    const auto length = ZAMPrepressReadLength(text, {whole});
    const bool isRelative = !length || text.ends_with('%');
    return isRelative && whole == 0.0 ? std::nullopt : std::optional(length.value_or(whole));
}

Viewport ReadViewport(const ZAMPrepressElement& svg, const ZAMPrepressViewportSize& around) {
    const auto numbers = ZAMPrepressReadViewBox(svg.Get(kViewBox));
    const double x = ZAMPrepressReadLength(svg.Get("x"), {around.width}).value_or(0.0);
    const double y = ZAMPrepressReadLength(svg.Get("y"), {around.height}).value_or(0.0);
    auto width = ReadSide(svg.Get("width"), around.width);
    auto height = ReadSide(svg.Get("height"), around.height);
    if (numbers) {
        width = width ? width : (*numbers)[2];
        height = height ? height : (*numbers)[3];
    }
    if (!width || !height) {
        return {true, {1.0, 0.0, 0.0, 1.0, x, y}, std::nullopt, around};
    }
    const ZAMMathBox2D outer{x, y, x + *width, y + *height};
    const ZAMMathBox2D inner = numbers ? ZAMPrepressToBox(*numbers) : ZAMMathBox2D{0.0, 0.0, *width, *height};
    if (!ZAMPrepressHasArea(outer) || !ZAMPrepressHasArea(inner)) {
        return {false, {}, std::nullopt, around};
    }
    const ZAMMathAffine2D content = ZAMPrepressAspect::Parse(svg.Get(kAspect)).Map(inner, outer);
    return {true, content, ZAMPrepressUnmap(content, outer), {inner.Width(), inner.Height()}};
}

bool ShowsOverflow(const ZAMPrepressElement& svg) {
    const std::string_view overflow = svg.Get("overflow");
    return overflow == "visible" || overflow == "auto";
}

// What is drawn through properties may have coordinates of its own.
struct OwnCoordinates {
    std::string_view element;
    std::string_view units; ///< the attribute that may say that they are fractions of a box; empty for none
    bool hasViewBox;
};
constexpr OwnCoordinates kOwnCoordinates[] = {
    {"clipPath", "clipPathUnits", false},
    {"mask", "maskContentUnits", false},
    {"pattern", "patternContentUnits", true},
    {"marker", "", true},
    {"symbol", "", true},
};

ZAMPrepressViewportSize SizeWithin(const ZAMPrepressElement& element, const ZAMPrepressViewportSize& around) {
    const auto* const own = std::ranges::find(kOwnCoordinates, element.name, &OwnCoordinates::element);
    if (own == std::end(kOwnCoordinates)) {
        return around;
    }
    if (!own->units.empty() && element.Get(own->units) == "objectBoundingBox") {
        return {1.0, 1.0};
    }
    const auto viewBox = own->hasViewBox ? ZAMPrepressReadViewBox(element.Get(kViewBox)) : std::nullopt;
    return viewBox ? ZAMPrepressViewportSize{(*viewBox)[2], (*viewBox)[3]} : around;
}

class Rewriter {
public:
    explicit Rewriter(ZAMPrepressTree& tree) : _Tree(tree), _Ids(tree) {}

    void RewriteRoot(ZAMPrepressElement& root);

private:
    void RewriteChildren(ZAMPrepressElement& element, const ZAMPrepressViewportSize& viewport);
    void RewriteNested(ZAMPrepressElement& svg, const ZAMPrepressViewportSize& around);
    // Moves the children into a new group, which becomes the only child.
    ZAMPrepressElement& Wrap(ZAMPrepressElement& element);
    void SetNumber(ZAMPrepressElement& element, std::string_view attribute, double number) {
        element.Set(attribute, _Tree.Keep(ZAMPrepressNumberText(number)));
    }

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds _Ids;
};

ZAMPrepressElement& Rewriter::Wrap(ZAMPrepressElement& element) {
    ZAMPrepressElement& group = _Tree.NewElement("g");
    for (ZAMPrepressElement* child : std::exchange(element.children, {})) {
        ZAMPrepressTree::Append(group, *child);
    }
    ZAMPrepressTree::Append(element, group);
    return group;
}

void Rewriter::RewriteRoot(ZAMPrepressElement& root) {
    const auto frame =
        ZAMPrepressRootFrame::Of({root.Get("width"), root.Get("height"), root.Get(kViewBox), root.Get(kAspect)});
    RewriteChildren(root, frame.percentages);
    if (frame.isAsWritten) {
        return;
    }
    if (frame.width && frame.height) {
        SetNumber(root, "width", *frame.width);
        SetNumber(root, "height", *frame.height);
    }
    root.Remove(kAspect);
    root.Remove(kViewBox);
    if (frame.viewBox) {
        std::string text;
        for (const double number :
             {frame.viewBox->xMin, frame.viewBox->yMin, frame.viewBox->Width(), frame.viewBox->Height()}) {
            text += text.empty() ? "" : " ";
            ZAMPrepressAppendNumber(text, number);
        }
        root.Set(kViewBox, _Tree.Keep(std::move(text)));
    }
    if (frame.content != ZAMMathAffine2D()) {
        ZAMPrepressAddTransform(Wrap(root), frame.content, _Tree);
    }
}

void Rewriter::RewriteChildren(ZAMPrepressElement& element, const ZAMPrepressViewportSize& viewport) {
    for (ZAMPrepressElement* child : element.children) {
        if (child->Is(kSvg)) {
            RewriteNested(*child, viewport);
        } else {
            if (viewport.width > 0.0 && viewport.height > 0.0) {
                ZAMPrepressResolvePercentages(*child, viewport, _Tree);
            }
            if (!child->children.empty()) {
                RewriteChildren(*child, SizeWithin(*child, viewport));
            }
        }
    }
}

// The element's own clipping is in the coordinates around its viewport, that of the viewport within.
void Rewriter::RewriteNested(ZAMPrepressElement& svg, const ZAMPrepressViewportSize& around) {
    const Viewport viewport = ReadViewport(svg, around);
    const bool isClipped = viewport.shown && !ShowsOverflow(svg);
    RewriteChildren(svg, viewport.percentages);
    svg.name = "g";
    for (const std::string_view attribute :
         {std::string_view("x"), std::string_view("y"), std::string_view("width"), std::string_view("height"), kViewBox,
          kAspect, std::string_view("overflow"), std::string_view("version")}) {
        svg.Remove(attribute);
    }
    if (!viewport.isDrawn) {
        svg.children.clear();
        return;
    }
    ZAMPrepressElement& content = isClipped && svg.Has("clip-path") ? Wrap(svg) : svg;
    ZAMPrepressAddTransform(content, viewport.content, _Tree);
    if (isClipped) {
        ZAMPrepressSetClip(content, *viewport.shown, _Ids, _Tree);
    }
}

} // namespace

// Which svg element is the root is not known here: only svg elements within others are sure to be nested.
bool ZAMPrepressViewports::Concerns(const ZAMLightXmlElementItf& element) {
    if (element.GetName() == kSvg &&
        !ZAMPrepressRootFrame::Of({element.GetAttribute("width"), element.GetAttribute("height"),
                                   element.GetAttribute("viewBox"), element.GetAttribute("preserveAspectRatio")})
             .isAsWritten) {
        return true;
    }
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        if (element.GetNextChild(position).GetName() == kSvg) {
            return true;
        }
    }
    return false;
}

void ZAMPrepressViewports::Rewrite(ZAMPrepressTree& tree) {
    Rewriter rewriter(tree);
    for (ZAMPrepressElement* drawing : tree.GetDrawings()) {
        rewriter.RewriteRoot(*drawing);
    }
}
