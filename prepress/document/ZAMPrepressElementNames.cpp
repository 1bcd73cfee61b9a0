// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressElementNames.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::string_view kDrawn[] = {"a",        "circle",  "ellipse", "g",   "image",  "line", "path",
                                       "polyline", "polygon", "rect",    "svg", "switch", "text", "use"};
constexpr std::string_view kContainers[] = {"a", "g", "svg", "switch"};
constexpr std::string_view kTextParts[] = {"altGlyph", "textPath", "tref", "tspan"};

} // namespace

bool ZAMPrepressIsDrawn(std::string_view name) {
    return std::ranges::find(kDrawn, name) != std::end(kDrawn);
}

bool ZAMPrepressIsTextPart(std::string_view name) {
    return std::ranges::find(kTextParts, name) != std::end(kTextParts);
}

bool ZAMPrepressIsContainer(std::string_view name) {
    return std::ranges::find(kContainers, name) != std::end(kContainers);
}
