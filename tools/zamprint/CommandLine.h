// SPDX-License-Identifier: MIT
#pragma once

#include "tools/zamprint/Options.h"

#include <optional>
#include <string>

/// Reads the arguments of the program.
class CommandLine {
public:
    /// Throws a Failure when the usage is wrong.
    CommandLine(int argc, const char* const* argv);

    [[nodiscard]] const Options& GetOptions() const { return _Options; }
    /// The text that --help or --version asks for; then nothing is to be printed.
    [[nodiscard]] const std::optional<std::string>& GetInformation() const { return _Information; }

private:
    void Check() const;

    Options _Options;
    std::optional<std::string> _Information;
};
