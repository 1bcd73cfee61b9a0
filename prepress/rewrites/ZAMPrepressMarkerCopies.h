// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/rewrites/ZAMPrepressMarkerShape.h"

#include <optional>
#include <string_view>

/// A marker that is drawn.
struct ZAMPrepressMarker {
    ZAMPrepressMarkerShape shape;
    const ZAMPrepressElement* content;
    std::string_view clip; ///< the reference to it; empty before the first copy, and where all is seen
    bool isClipped;
};

/// What markers take from the shape that they stand on.
struct ZAMPrepressMarkedPaint {
    std::optional<std::string_view> fill; ///< nothing: the initial value
    std::optional<std::string_view> stroke;
    double opacity;

    [[nodiscard]] static ZAMPrepressMarkedPaint Of(const ZAMPrepressElement& shape);
};

/// Makes copies of markers' contents.
class ZAMPrepressMarkerCopies {
public:
    ZAMPrepressMarkerCopies(ZAMPrepressTree& tree, ZAMPrepressIds& ids) : _Tree(tree), _Ids(ids) {}

    /// A group without a parent. Null when the map leads nowhere and when there is no room for more copies.
    [[nodiscard]] ZAMPrepressElement* Make(ZAMPrepressMarker& marker, const ZAMMathAffine2D& map,
                                           const ZAMPrepressMarkedPaint& paint);

private:
    void Adapt(ZAMPrepressElement& element, const ZAMPrepressMarkedPaint& paint);
    void Fade(ZAMPrepressElement& element, std::string_view attribute, double opacity);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds& _Ids;
};
