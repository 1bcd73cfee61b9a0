// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressElement.h"

#include <optional>
#include <unordered_map>

/// Boxes that hold all that is drawn. Each element is measured once: it must not change before it is asked for again.
class ZAMPrepressDrawnBoxes {
public:
    /// A box that holds all that the children of an element draw, strokes included, in the coordinates of the children.
    /// It may be a little larger than need be. Nothing when that cannot be told: texts, pictures and the like are not
    /// measured.
    [[nodiscard]] std::optional<ZAMMathBox2D> OfContent(const ZAMPrepressElement& element);

private:
    [[nodiscard]] std::optional<ZAMMathBox2D> Measure(const ZAMPrepressElement& element);

    std::unordered_map<const ZAMPrepressElement*, std::optional<ZAMMathBox2D>> _Known;
};
