// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/paint/ZAMPrepressRamp.h"
#include "prepress/paint/ZAMPrepressServer.h"

#include <optional>

/// A pattern made of elements (SVG 1.1, 13.3) as it fills a leaf.
struct ZAMPrepressVectorPattern {
    ZAMPrepressElement* content = nullptr; ///< whose children are drawn
    ZAMMathAffine2D toLeaf;                ///< from the tile's units, its upper left corner at 0 0, to the leaf's
    double width = 0.0;                    ///< of the tile
    double height = 0.0;
    ZAMMathAffine2D toTile; ///< from the units of the content

    /// Nothing when the pattern paints nothing: without content or an area.
    [[nodiscard]] static std::optional<ZAMPrepressVectorPattern> Read(const ZAMPrepressServer& server,
                                                                      const ZAMMathBox2D& box);

    /// The paints of the leaves below, each multiplied by the area that its box covers in units of the content.
    [[nodiscard]] static ZAMPrepressPremultiplied SumPaints(const ZAMPrepressElement& content);
    /// The mean colour of the tile, from the sum of its paints.
    [[nodiscard]] ZAMPrepressPremultiplied EstimateMean(ZAMPrepressPremultiplied sum) const;
};
