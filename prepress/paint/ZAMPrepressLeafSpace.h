// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <string_view>

// A bitmap pattern repeats along the axes of the leaf that it fills. A picture that is to lie otherwise needs a leaf in
// a space of its own: with a transform that carries the space to where the leaf was, and geometry that undoes it.

/// The map that undoes another, which can be undone.
[[nodiscard]] ZAMMathAffine2D ZAMPrepressInverse(const ZAMMathAffine2D& map);

/// The largest factor by which the map makes lengths along the axes longer.
[[nodiscard]] double ZAMPrepressGetScale(const ZAMMathAffine2D& map);

/// The path with each point mapped.
[[nodiscard]] ZAMPrepressPath ZAMPrepressMapPath(ZAMPrepressPath path, const ZAMMathAffine2D& map);

/// Makes a path of a leaf: `path` in a space that the map `toLeaf` carries to the leaf's own. A leaf with a stroke
/// becomes a group of the path and the stroke as it was, for the space would distort it. What clips the leaf goes on to
/// do so. Gives the element that bears the fill.
ZAMPrepressElement& ZAMPrepressMoveLeaf(ZAMPrepressTree& tree, ZAMPrepressElement& leaf, const ZAMPrepressPath& path,
                                        const ZAMMathAffine2D& toLeaf);

/// A leaf whose stroke has become a shape of its own.
struct ZAMPrepressSplitLeaf {
    ZAMPrepressElement& fill; ///< the leaf without its stroke; the other one when it has no fill
    ZAMPrepressElement& stroke;
};

/// Makes the stroke of a leaf a path: its outline in the leaf's own units, filled with `paint`. Where the leaf has a
/// fill too it becomes a group of both.
ZAMPrepressSplitLeaf ZAMPrepressSplitStroke(ZAMPrepressTree& tree, ZAMPrepressElement& leaf,
                                            const ZAMPrepressPath& outline, std::string_view paint);
