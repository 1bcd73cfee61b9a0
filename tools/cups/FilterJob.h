// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>

/// What the filter does for the scheduler of CUPS: one document, and what it is called.
struct FilterJob {
    std::string title; ///< as the person who prints gave it, or their program: a file's name, mostly
    std::string input; ///< a file of the spool, or kStandardStream
};

/// The job that the command line `filter job user title copies options [file]` asks for, the filter's own name
/// included; nothing when it has another form. Copies and options are for the filters that follow.
[[nodiscard]] std::optional<FilterJob> ReadFilterJob(std::span<const char* const> commandLine);
