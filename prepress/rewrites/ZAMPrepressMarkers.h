// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

/// Markers (SVG 1.1, 11.6) written out: behind each shape that has some stands a group for each vertex with a copy of
/// the marker's content. It relies on the flattened properties of leaves. Afterwards there are no marker properties,
/// and marker elements only where they are the home of other definitions.
namespace ZAMPrepressMarkers {

[[nodiscard]] bool Concerns(const ZAMLightXmlElementItf& element);
void Rewrite(ZAMPrepressTree& tree);

} // namespace ZAMPrepressMarkers
