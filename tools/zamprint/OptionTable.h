// SPDX-License-Identifier: MIT
#pragma once

#include "tools/zamprint/Options.h"

#include <span>
#include <string>
#include <string_view>

/// An option that takes a value. Everything that is told about options is made from these rows.
struct OptionRow {
    const char* names; ///< "-o,--output"
    const char* value; ///< what the help calls the value: a placeholder, or all values as in "pdf|png"
    const char* help;
    /// Puts the value into the options; returns what is wrong with it, or nothing.
    std::string (*read)(std::string_view text, Options& options);
};

/// All options that take a value, in the order of the help.
std::span<const OptionRow> GetOptionTable();
