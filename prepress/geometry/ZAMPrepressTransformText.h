// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "prepress/document/ZAMPrepressTree.h"

#include <string>

/// The map as a transform attribute: "translate(x y)" where that says it all, else "matrix(a b c d e f)".
[[nodiscard]] std::string ZAMPrepressTransformText(const ZAMMathAffine2D& map);

/// Lets the map come before the element's own transform, which counts as none when it is in error.
void ZAMPrepressAddTransform(ZAMPrepressElement& element, const ZAMMathAffine2D& map, ZAMPrepressTree& tree);
