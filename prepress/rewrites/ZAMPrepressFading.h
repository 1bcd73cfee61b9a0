// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Images that let shine through what is below them. The interpreter draws images opaque but patterns as opaque as the
/// shape that they fill: such an image becomes a rectangle that is filled with it. So does one that covers the shape
/// that clips it, for a rectangle can be given that shape. Relies on computed styles.
namespace ZAMPrepressFading {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressFading
