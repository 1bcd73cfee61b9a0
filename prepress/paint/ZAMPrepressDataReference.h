// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Whether the link holds its data itself ("data:…", RFC 2397).
[[nodiscard]] bool ZAMPrepressIsDataReference(std::string_view link);

/// The data of such a link, of base64 (both alphabets, padded or not) or percent-encoded; what is no base64 in it is
/// passed over. Nothing for any other link.
[[nodiscard]] std::optional<std::string> ZAMPrepressReadDataReference(std::string_view link);

/// The text with each "%" and two hexadecimal digits as the byte that they stand for (RFC 3986, 2.1).
[[nodiscard]] std::string ZAMPrepressDecodePercent(std::string_view text);
