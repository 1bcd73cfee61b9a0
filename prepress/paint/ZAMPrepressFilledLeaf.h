// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressElement.h"
#include "prepress/geometry/ZAMPrepressPath.h"

/// What a gradient or pattern is to fill.
struct ZAMPrepressFilledLeaf {
    ZAMPrepressElement* element;
    const ZAMPrepressPath* path; ///< its outline; null for a text
    ZAMMathBox2D box;            ///< that the paint is measured by, not empty
    ZAMMathBox2D shown;          ///< what is to be covered, not empty: of its geometry, that within the drawing
    ZAMMathAffine2D toDrawing;   ///< from its own units to user units of the drawing
};
