// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressProperties.h"

#include <string_view>
#include <utility>
#include <vector>

/// The declarations that one of a shorthand property stands for. None for a name that is no shorthand's and for a value
/// in error. Values point into `value` or are literals.
[[nodiscard]] std::vector<std::pair<ZAMPrepressProperty, std::string_view>>
ZAMPrepressExpandShorthand(std::string_view name, std::string_view value);
