// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressSolidPaint.h"

#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/paint/ZAMPrepressPicture.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace {

std::string_view OpacityOf(std::string_view property) {
    return property == "fill" ? "fill-opacity" : "stroke-opacity";
}

} // namespace

void ZAMPrepressPaintSolid(ZAMPrepressTree& tree, ZAMPrepressElement& leaf, std::string_view property,
                           const ZAMPrepressPremultiplied& colour) {
    const std::uint32_t pixel = ZAMPrepressPicture::ToPixel(colour);
    if (pixel == 0) {
        leaf.Set(property, "none");
        return;
    }
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%06x", pixel & 0xFFFFFFU);
    leaf.Set(property, tree.Keep(text.data()));
    if (colour[3] < 1.0) {
        const double opacity = ZAMPrepressNumberOr(leaf, OpacityOf(property), 1.0) * colour[3];
        leaf.Set(OpacityOf(property), tree.Keep(ZAMPrepressNumberText(opacity)));
    }
}

ZAMPrepressPremultiplied ZAMPrepressReadSolid(const ZAMPrepressElement& leaf, std::string_view property) {
    const std::string_view initial = property == "fill" ? "#000000" : "none";
    const std::string_view text = leaf.Find(property).value_or(initial);
    if (!text.starts_with('#')) {
        return {};
    }
    const double alpha = ZAMPrepressNumberOr(leaf, OpacityOf(property), 1.0);
    const ZAMPrepressStop stop{0.0, ZAMPrepressReadHexColour(text), alpha};
    return ZAMPrepressRamp(std::span(&stop, 1), ZAMPrepressSpread::Pad).GetMean();
}

std::uint32_t ZAMPrepressReadHexColour(std::string_view text) {
    std::uint32_t colour = 0;
    if (text.starts_with('#')) {
        std::from_chars(text.data() + 1, text.data() + text.size(), colour, 16);
    }
    return colour;
}
