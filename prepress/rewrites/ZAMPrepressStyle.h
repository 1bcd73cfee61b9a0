// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Computed styles (SVG 1.1, chapter 6; CSS 2.1, 6.1): each shape, text, part of a text and image says by itself, as
/// attributes in one form, how it is painted, and containers say nothing of it any more. What is not displayed or not
/// visible is gone, but for what others may refer to.
namespace ZAMPrepressStyle {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressStyle
