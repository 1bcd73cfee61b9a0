// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintPath.h"

#include <vector>

/// Paths of one contour: a move, segments, and a close or not.
namespace ZAMPrintCairoContour {

/// Appends the segments of an open contour that starts where `path` ends.
void Continue(ZAMPrintPath& path, const ZAMPrintPath& other);

/// Open contours of a few hundred segments that, stroked one by one with an opaque, solid pen, look as the whole. They
/// overlap in the middle of lines that are longer than twice the pen's width, where neither caps nor seams show;
/// without such lines the contour stays as it is.
[[nodiscard]] std::vector<ZAMPrintPath> Divide(const ZAMPrintPath& contour, double penWidth);

} // namespace ZAMPrintCairoContour
