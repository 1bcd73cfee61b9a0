// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"
#include "prepress/paint/ZAMPrepressRamp.h"

/// Paints the leaf's fill or stroke (`property`) with one colour; its opacity is multiplied with what the leaf has.
/// What would be transparent is not painted.
void ZAMPrepressPaintSolid(ZAMPrepressTree& tree, ZAMPrepressElement& leaf, std::string_view property,
                           const ZAMPrepressPremultiplied& colour);

/// The colour of a leaf's fill or stroke, its opacity included; transparent when it has none or no plain one.
[[nodiscard]] ZAMPrepressPremultiplied ZAMPrepressReadSolid(const ZAMPrepressElement& leaf, std::string_view property);

/// The value of a colour written as #rrggbb, 0xRRGGBB; black for any other text.
[[nodiscard]] std::uint32_t ZAMPrepressReadHexColour(std::string_view text);
