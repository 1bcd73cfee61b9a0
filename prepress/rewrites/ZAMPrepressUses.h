// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Reuse (SVG 1.1, 5.6): every use that is drawn becomes a group, placed where the use is, with a copy of what it
/// refers to. Copies have no ids. A symbol becomes an svg element of its instance. A use of nothing, of itself or of
/// what would make the drawing too deep or too large draws nothing.
namespace ZAMPrepressUses {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressUses
