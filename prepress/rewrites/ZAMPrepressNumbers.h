// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Path data, points, transforms and viewBoxes in the interpreter's syntax: a blank between numbers, whatever SVG lets
/// stand there, and nothing behind an error that SVG stops at. Paths are such that the interpreter draws all of them.
namespace ZAMPrepressNumbers {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressNumbers
