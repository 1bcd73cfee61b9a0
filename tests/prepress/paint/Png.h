// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressPicture.h"

#include <optional>
#include <string_view>

/// The picture of a PNG file of 8 bits a channel, not interlaced; nothing when a rule of ISO 15948 is broken.
std::optional<ZAMPrepressPicture> DecodePng(std::string_view file);
