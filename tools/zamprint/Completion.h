// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The script that lets a shell ("bash", "zsh", "fish") complete options and their values, from the table of options.
/// Nothing for another shell.
[[nodiscard]] std::optional<std::string> WriteCompletion(std::string_view shell);
