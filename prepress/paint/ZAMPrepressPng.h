// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressPicture.h"

#include <string>

/// The picture as a PNG file (ISO 15948): with a palette when 256 colours are enough, without alpha when it is opaque.
/// Throws std::bad_alloc when memory is out.
[[nodiscard]] std::string ZAMPrepressWritePng(const ZAMPrepressPicture& picture);
