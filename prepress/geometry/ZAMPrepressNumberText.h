// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A number as attributes hold it: ten significant digits, no more than needed, whatever the locale. What is not finite
/// is written as 0, for no attribute could hold it.
void ZAMPrepressAppendNumber(std::string& text, double number);
[[nodiscard]] std::string ZAMPrepressNumberText(double number);
