// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Names as the interpreter spells them: SVG's elements without the prefix of a namespace, links as "xlink:href".
namespace ZAMPrepressNames {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressNames
