// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Appends the bytes in base64 (RFC 4648, 4), padded and without line breaks.
void ZAMPrepressAddBase64(std::string_view bytes, std::string& text);
