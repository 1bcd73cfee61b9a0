// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Conditional processing (SVG 1.1, 5.8): a switch becomes a group with the first child whose conditions hold, and what
/// else has conditions that do not hold is drawn no more, though it can still be referred to.
namespace ZAMPrepressConditions {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressConditions
