// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Gradients and patterns as the interpreter has them: as bitmap patterns, which stand in front of the drawing. Strokes
/// with a gradient or pattern become shapes that are filled with it; those of texts have its mean colour.
namespace ZAMPrepressPaints {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressPaints
