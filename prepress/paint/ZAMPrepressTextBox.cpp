// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressTextBox.h"

#include "framework/visualisation/ZAMTextLayout.h"
#include "prepress/geometry/ZAMPrepressLength.h"

#include <string>

namespace {

// The codes of the anchors on the baseline, see ZAMTextStyle.
int AnchorOf(const ZAMPrepressElement& text) {
    const std::string_view anchor = text.Get("text-anchor");
    if (anchor == "middle") {
        return 33;
    }
    return anchor == "end" ? 37 : 29;
}

} // namespace

ZAMMathBox2D ZAMPrepressGetTextBox(const ZAMPrepressElement& text, ZAMPrepressFonts& fonts) {
    std::string characters;
    for (const ZAMPrepressElement* child : text.children) {
        characters += child->text;
    }
    ZAMTextStyle style = fonts.GetStyle(fonts.Find(text));
    style.height = ZAMPrepressNumberOr(text, "font-size", style.height);
    style.anchor = AnchorOf(text);
    const ZAMTextLayout layout(characters, style);
    const ZAMMathBox2D& line = layout.GetExtents(); // y upward
    const double x = ZAMPrepressNumberOr(text, "x", 0.0);
    const double y = ZAMPrepressNumberOr(text, "y", 0.0);
    return layout.IsEmpty() ? ZAMMathBox2D() : ZAMMathBox2D{x + line.xMin, y - line.yMax, x + line.xMax, y - line.yMin};
}
