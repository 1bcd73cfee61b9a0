// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Viewports (SVG 1.1, 7). Nested svg elements become groups: transformed as their viewBox and preserveAspectRatio say,
/// and with a clipPath of their own unless what flows over is visible. The root keeps its width, its height and a
/// viewBox of the same aspect, which is all that is shown. Percentages become numbers.
namespace ZAMPrepressViewports {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressViewports
