// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressPercentages.h"

#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

enum class Axis : std::uint8_t { Horizontal, Vertical, Diagonal, DiagonalOfStroke };

struct Row {
    std::string_view attribute;
    Axis axis;
};

constexpr Row kRows[] = {
    {"cx", Axis::Horizontal},
    {"cy", Axis::Vertical},
    {"dx", Axis::Horizontal},
    {"dy", Axis::Vertical},
    {"fx", Axis::Horizontal},
    {"fy", Axis::Vertical},
    {"height", Axis::Vertical},
    {"markerHeight", Axis::Vertical},
    {"markerWidth", Axis::Horizontal},
    {"r", Axis::Diagonal},
    {"refX", Axis::Horizontal},
    {"refY", Axis::Vertical},
    {"rx", Axis::Horizontal},
    {"ry", Axis::Vertical},
    {"stroke-dasharray", Axis::DiagonalOfStroke},
    {"stroke-dashoffset", Axis::DiagonalOfStroke},
    {"stroke-width", Axis::DiagonalOfStroke},
    {"width", Axis::Horizontal},
    {"x", Axis::Horizontal},
    {"x1", Axis::Horizontal},
    {"x2", Axis::Horizontal},
    {"y", Axis::Vertical},
    {"y1", Axis::Vertical},
    {"y2", Axis::Vertical},
};

struct Units {
    std::string_view element;
    std::string_view attribute; ///< says "userSpaceOnUse" where the viewport counts
};

constexpr Units kUnits[] = {
    {"filter", "filterUnits"},   {"linearGradient", "gradientUnits"}, {"mask", "maskUnits"},
    {"pattern", "patternUnits"}, {"radialGradient", "gradientUnits"},
};

bool CountsAgainstBox(const ZAMPrepressElement& element) {
    const auto* const found = std::ranges::find(kUnits, element.name, &Units::element);
    return found == std::end(kUnits) ? element.name.starts_with("fe")
                                     : element.Get(found->attribute) != "userSpaceOnUse";
}

double WholeOf(Axis axis, const ZAMPrepressViewportSize& viewport) {
    switch (axis) {
    case Axis::Horizontal:
        return viewport.width;
    case Axis::Vertical:
        return viewport.height;
    case Axis::Diagonal:
    case Axis::DiagonalOfStroke:
        break;
    }
    return viewport.GetDiagonal();
}

// The text may be a list; what is no percentage in it stays as it is.
std::string Resolved(std::string_view text, double whole) {
    std::string result;
    ZAMPrepressScanner scanner(text);
    while (!scanner.AtEnd()) {
        const std::string_view number = scanner.TakeNumber();
        if (number.empty()) {
            result += scanner.TakeAny();
        } else if (scanner.Take('%')) {
            ZAMPrepressAppendNumber(result, ZAMPrepressNumber(number) * whole / 100.0);
        } else {
            result += number;
        }
    }
    return result;
}

} // namespace

void ZAMPrepressResolvePercentages(ZAMPrepressElement& element, const ZAMPrepressViewportSize& viewport,
                                   ZAMPrepressTree& tree) {
    for (ZAMPrepressElement::Attribute& attribute : element.attributes) {
        if (attribute.value.find('%') == std::string_view::npos) {
            continue;
        }
        const auto* const row = std::ranges::find(kRows, attribute.name, &Row::attribute);
        if (row != std::end(kRows) && (row->axis == Axis::DiagonalOfStroke || !CountsAgainstBox(element))) {
            attribute.value = tree.Keep(Resolved(attribute.value, WholeOf(row->axis, viewport)));
        }
    }
}
