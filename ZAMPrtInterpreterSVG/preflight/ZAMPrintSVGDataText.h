// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// References as the preflight has to understand them to tell what is wrong with them.
namespace ZAMPrintSVGDataText {

/// Whether the reference holds its data itself (RFC 2397).
bool IsData(std::string_view reference);

/// The data, of base64 (both alphabets, padded or not) or percent-encoded; what is neither is passed over.
std::vector<unsigned char> Decode(std::string_view reference);

/// The path that an address names (RFC 8089: percent-encoded, perhaps behind "file://").
std::string PathOfAddress(std::string_view address);

} // namespace ZAMPrintSVGDataText
