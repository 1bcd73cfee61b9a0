// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <vector>

/// A place where a marker may stand.
struct ZAMPrepressVertex {
    ZAMMathPoint2D point;
    ZAMMathVector2D direction; ///< of length 1: where a marker with the orientation "auto" looks
};

/// The vertices of a path in their order (SVG 1.1, 11.6.2): between two segments a vertex looks halfway from one
/// direction to the other, and so do the two ends of a closed subpath. Segments without a length look where those about
/// them look (SVG 1.1, F.5).
[[nodiscard]] std::vector<ZAMPrepressVertex> ZAMPrepressGetVertices(const ZAMPrepressPath& path);
