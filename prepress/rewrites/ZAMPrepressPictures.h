// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Images (SVG 1.1, 5.7): placed as their preserveAspectRatio says, as far as their size is known, which it is of those
/// that the document holds itself and of files that can be read. Their data is spelt as the interpreter reads it, and
/// those that are documents are drawn as groups.
namespace ZAMPrepressPictures {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressPictures
