// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"
#include "prepress/geometry/ZAMPrepressLength.h"

/// Makes numbers of the percentages in the element's attributes of geometry and stroke (SVG 1.1, 7.10), which count
/// against the viewport. What counts against the box of a painted element stays as it is.
void ZAMPrepressResolvePercentages(ZAMPrepressElement& element, const ZAMPrepressViewportSize& viewport,
                                   ZAMPrepressTree& tree);
