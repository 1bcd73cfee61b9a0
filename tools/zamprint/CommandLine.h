// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/Options.h"

/// Reads the arguments of the program.
class CommandLine {
public:
    /// Throws a Failure when the usage is wrong.
    CommandLine(int argc, const char* const* argv);

    [[nodiscard]] const Options& GetOptions() const { return _Options; }

private:
    void Check() const;

    Options _Options;
};
