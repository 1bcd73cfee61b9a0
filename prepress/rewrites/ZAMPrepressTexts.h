// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Texts (SVG 1.1, 10) as the interpreter draws them: one text element for each run of characters, at one point, in one
/// font. It relies on the flattened properties of texts and the elements in them.
namespace ZAMPrepressTexts {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressTexts
