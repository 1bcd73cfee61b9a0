// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressPath.h"

#include <optional>
#include <unordered_map>

/// What clipping paths leave to be seen. Each is read once.
class ZAMPrepressClipRegion {
public:
    explicit ZAMPrepressClipRegion(const ZAMPrepressIds& ids) : _Ids(ids) {}

    /// The box of the element's clipping path, in the coordinates of the element's content. Nothing when it has none or
    /// one that cannot be measured; a box without an area when nothing is to be seen.
    [[nodiscard]] std::optional<ZAMMathBox2D> BoxFor(const ZAMPrepressElement& element) {
        return BoxFor(element, element, 0);
    }

    /// A clipping path that is a single shape but no upright rectangle.
    struct Outline {
        const ZAMPrepressPath& path;
        ZAMMathBox2D box; ///< of the path
        bool isEvenOdd;
        ZAMMathAffine2D map; ///< from the path's coordinates to those of the content
    };
    /// Nothing when the element's clipping path is of another kind. The path lives as long as this does.
    [[nodiscard]] std::optional<Outline> OutlineFor(const ZAMPrepressElement& element);

private:
    struct Clip {
        std::optional<ZAMMathBox2D> box;
        std::optional<ZAMPrepressPath> outline;
        bool isEvenOdd = false;
    };

    [[nodiscard]] const Clip& Read(const ZAMPrepressElement& path);
    [[nodiscard]] std::optional<ZAMMathBox2D> BoxFor(const ZAMPrepressElement& bearer,
                                                     const ZAMPrepressElement& clipped, int depth);

    const ZAMPrepressIds& _Ids;
    std::unordered_map<const ZAMPrepressElement*, Clip> _Clips;
};
