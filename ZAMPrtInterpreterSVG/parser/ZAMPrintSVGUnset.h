// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGAttributeState.h"

class ZAMPrtGraphicPrimitiveElt;

/// Attributes that a definition leaves open are written as unset markers and completed where the definition is used.
/// Some markers are also ordinary values (an even-odd fill rule): what a definition sets to such a value is taken for
/// unset.
namespace ZAMPrintSVGUnset {

/// Writes the unset markers into the state. The dash pattern, the fill's pattern, the marker references and the two
/// current colours stay.
void Mark(ZAMPrintSVGAttributeState& state);

/// Replaces the markers in the element, and in those that it is made of, by what the state holds.
void Complete(ZAMPrtGraphicPrimitiveElt& element, const ZAMPrintSVGAttributeState& state);

} // namespace ZAMPrintSVGUnset
