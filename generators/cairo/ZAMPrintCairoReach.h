// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintPath.h"

/// The box of what a path encloses, as the map carries it over: curves count, not their control points. Empty for a
/// path without points.
[[nodiscard]] ZAMMathBox2D ZAMPrintCairoReach(const ZAMPrintPath& path, const ZAMMathAffine2D& map = {});
