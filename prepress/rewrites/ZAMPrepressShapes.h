// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Basic shapes, whose lengths are numbers, as the interpreter draws them: rounded rectangles and filled polylines are
/// paths, and what has no size is gone.
namespace ZAMPrepressShapes {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressShapes
