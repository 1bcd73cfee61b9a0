// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Parts a painted shape or text whose outline is to lie below its fill: the outline becomes an element of its own, to
/// be drawn before this one, and this one has none any more. Null, and nothing done, when there is nothing to part.
[[nodiscard]] ZAMPrepressElement* ZAMPrepressSplitStroke(ZAMPrepressElement& element, ZAMPrepressTree& tree);
