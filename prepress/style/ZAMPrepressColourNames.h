// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// 0xRRGGBB of a colour keyword of CSS Color 4, letter case aside; nothing for other words.
[[nodiscard]] std::optional<std::uint32_t> ZAMPrepressFindColour(std::string_view name);
