// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"
#include "prepress/geometry/ZAMPrepressLength.h"

/// Whether the text is the name of a length, or of a list of lengths, of shapes, texts and images.
[[nodiscard]] bool ZAMPrepressIsGeometry(std::string_view attribute);

/// Writes the lengths of a shape, text or image as numbers of user units. What is no length stays.
void ZAMPrepressResolveLengths(ZAMPrepressElement& element, double fontSize, const ZAMPrepressViewportSize& viewport,
                               ZAMPrepressTree& tree);
