// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressElement.h"

/// Grows the box by the geometry (no strokes) of an element: a shape, an image or a group of them, under a map. The
/// element's own transform is not part of it. False when it holds what cannot be measured.
[[nodiscard]] bool ZAMPrepressAddGeometry(ZAMMathBox2D& box, const ZAMPrepressElement& element,
                                          const ZAMMathAffine2D& map);

/// The same with the element's own transform.
[[nodiscard]] bool ZAMPrepressAddTransformedGeometry(ZAMMathBox2D& box, const ZAMPrepressElement& element,
                                                     const ZAMMathAffine2D& map);
