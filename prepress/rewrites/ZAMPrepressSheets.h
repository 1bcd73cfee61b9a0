// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Style sheets and style attributes (CSS 2.1 with Selectors 3; SVG 1.1, chapter 6): what they say is said by
/// presentation attributes, and style elements and the attributes style and class are gone.
namespace ZAMPrepressSheets {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressSheets
