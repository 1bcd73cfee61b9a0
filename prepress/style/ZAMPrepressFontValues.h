// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressValues.h"

/// How the values of text properties are computed.
namespace ZAMPrepressValues {

/// A number of user units.
Result ComputeFontSize(std::string_view value, const Bases& bases);
/// 100, 200 … 900.
Result ComputeFontWeight(std::string_view value, const Bases& bases);
/// Names with ", " between them, quoted unless generic.
Result ComputeFontFamily(std::string_view value, const Bases& bases);
/// A number of user units, 0 for "normal".
Result ComputeSpacing(std::string_view value, const Bases& bases);
/// "none", or of "underline", "overline" and "line-through" those that are drawn, in that order.
Result ComputeDecoration(std::string_view value, const Bases& bases);
/// "baseline", "sub", "super", or a number of user units, upwards.
Result ComputeBaselineShift(std::string_view value, const Bases& bases);

} // namespace ZAMPrepressValues
