// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/rewrites/ZAMPrepressClipRegion.h"

/// The only leaf that the element draws; `map`, which is of the element's content, goes on to be that from the leaf's
/// coordinates. Null when there are several leaves or none, or when something on the way is clipped.
[[nodiscard]] ZAMPrepressElement* ZAMPrepressFindOnlyLeaf(const ZAMPrepressElement& element, ZAMMathAffine2D& map);

/// Whether the path is one figure of straight lines that fills its box.
[[nodiscard]] bool ZAMPrepressIsUprightRectangle(const ZAMPrepressPath& path);

/// The only thing that the element draws, when that is a rectangle without a stroke, or a picture, that covers the
/// outline: it shows the outline's shape and nothing else. Otherwise null.
[[nodiscard]] ZAMPrepressElement* ZAMPrepressFindCovering(ZAMPrepressElement& element,
                                                          const ZAMPrepressClipRegion::Outline& outline);

/// Gives such a rectangle the shape of the outline. False when there is none; then nothing is changed. The work is
/// charged to the thread's ZAMAllocationBudget.
[[nodiscard]] bool ZAMPrepressCutToOutline(ZAMPrepressElement& element, const ZAMPrepressClipRegion::Outline& outline,
                                           ZAMPrepressTree& tree);
