// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Clipping (SVG 1.1, 14.3) by upright rectangles: what is clipped becomes a symbol of that size and a use of it, the
/// only clipping that the interpreter knows. A rectangle that covers another clipping path is given the shape of that;
/// else the path's box is taken. Afterwards no definitions are left but patterns of pictures.
namespace ZAMPrepressClips {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressClips
