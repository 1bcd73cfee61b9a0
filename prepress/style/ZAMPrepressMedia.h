// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Whether a list of media queries (Media Queries 4, section 3) holds for paper. An empty list does.
[[nodiscard]] bool ZAMPrepressMediaHolds(std::string_view queries);
