// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/Options.h"

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

/// The options of a print, in the order of the help.
std::span<const OptionRow> GetOptionTable();

/// The options that ask for a text instead of a print: they put it into Options::information.
std::span<const OptionRow> GetInformationTable();
