// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The manual page, for man(1), from the table of options.
[[nodiscard]] std::string WriteManual();
