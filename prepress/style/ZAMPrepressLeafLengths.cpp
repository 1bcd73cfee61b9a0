// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressLeafLengths.h"

#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>

namespace {

using Viewport = ZAMPrepressViewportSize;

struct Geometry {
    std::string_view name;
    double (*getWhole)(const Viewport& viewport); ///< what 100% is
};

double GetWidth(const Viewport& viewport) {
    return viewport.width;
}

double GetHeight(const Viewport& viewport) {
    return viewport.height;
}

double GetDiagonal(const Viewport& viewport) {
    return viewport.GetDiagonal();
}

constexpr Geometry kGeometry[] = {
    {"x", GetWidth},   {"y", GetHeight},  {"width", GetWidth}, {"height", GetHeight},
    {"cx", GetWidth},  {"cy", GetHeight}, {"r", GetDiagonal},  {"rx", GetWidth},
    {"ry", GetHeight}, {"x1", GetWidth},  {"y1", GetHeight},   {"x2", GetWidth},
    {"y2", GetHeight}, {"dx", GetWidth},  {"dy", GetHeight},   {"textLength", GetWidth},
};

const Geometry* Find(std::string_view attribute) {
    const auto* const found = std::ranges::find(kGeometry, attribute, &Geometry::name);
    return found == std::end(kGeometry) ? nullptr : found;
}

// An exponent's letter is none, which needs one of another kind beside it to be a unit.
bool HasUnit(std::string_view value) {
    return std::ranges::any_of(
        value, [](char c) { return c == '%' || (ZAMPrepressScanner::IsLetter(c) && c != 'e' && c != 'E'); });
}

// The numbers of a list; empty when one item is no length.
std::string ReadList(std::string_view value, const ZAMPrepressLengthBase& base) {
    constexpr std::string_view kSeparators = " ,\t\r\n\f";
    std::string numbers;
    while (true) {
        value.remove_prefix(std::min(value.find_first_not_of(kSeparators), value.size()));
        if (value.empty()) {
            return numbers;
        }
        const std::string_view item = value.substr(0, value.find_first_of(kSeparators));
        value.remove_prefix(item.size());
        const auto length = ZAMPrepressReadLength(item, base);
        if (!length) {
            return {};
        }
        numbers.append(numbers.empty() ? "" : " ");
        ZAMPrepressAppendNumber(numbers, *length);
    }
}

} // namespace

bool ZAMPrepressIsGeometry(std::string_view attribute) {
    return Find(attribute) != nullptr;
}

void ZAMPrepressResolveLengths(ZAMPrepressElement& element, double fontSize, const Viewport& viewport,
                               ZAMPrepressTree& tree) {
    for (ZAMPrepressElement::Attribute& attribute : element.attributes) {
        const Geometry* const geometry = Find(attribute.name);
        if (geometry == nullptr || !HasUnit(attribute.value)) {
            continue;
        }
        if (std::string numbers = ReadList(attribute.value, {geometry->getWhole(viewport), fontSize});
            !numbers.empty()) {
            attribute.value = tree.Keep(std::move(numbers));
        }
    }
}
