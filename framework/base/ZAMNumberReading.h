// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <string_view>

/// @file
/// Readers of the number at the start of a text. They accept exactly what the standard formatted scan accepts in the
/// "C" locale, whatever the process locale is: leading white space, a sign, then the longest prefix that the scan
/// takes; what follows is ignored. Each returns 1 when a number was stored, 0 when the text starts with none, -1 when
/// the text holds nothing but white space; only 1 touches `value`.

/// As "%le": decimal and hexadecimal notation, "inf", "infinity", "nan". What is too large becomes an infinity, what is
/// too small a zero.
ZAM_EXPORT int ZAMReadDouble(std::string_view text, double& value) noexcept;

/// As "%u": decimal digits. A negative number and one above 32 bits wrap; from 2^64 on every number is 4294967295.
ZAM_EXPORT int ZAMReadUnsigned(std::string_view text, unsigned int& value) noexcept;

/// Reads a text that is one plain decimal number and nothing else ("12", "-.5", "1e3"): the form that nearly every
/// number of a real document has. False, and `value` as it was, for any other text.
ZAM_EXPORT bool ZAMReadPlainDouble(std::string_view text, double& value) noexcept;

/// Eats the decimal number without an exponent that `text` starts with ("-1.25" of "-1.25e3"), whatever follows it.
/// False, and both as they were, when it starts with none.
ZAM_EXPORT bool ZAMTakePlainDouble(std::string_view& text, double& value) noexcept;
