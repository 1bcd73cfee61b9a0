// SPDX-License-Identifier: MIT
#pragma once

#include "tools/zamprint/Options.h"

#include <span>
#include <string>
#include <string_view>

/// An option. Everything that is told about options is made from these rows.
struct OptionRow {
    const char* names; ///< "-o,--output"
    const char*
        value; ///< what the help calls the value: a placeholder, or all values as in "pdf|png"; null without one
    const char* help;
    /// Puts the value, empty without one, into the options; returns what is wrong with it, or nothing.
    std::string (*read)(std::string_view text, Options& options);
};

/// All options but --help and --version, in the order of the help.
std::span<const OptionRow> GetOptionTable();
