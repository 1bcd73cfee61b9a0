// SPDX-License-Identifier: MIT
#include "tools/cups/FilterJob.h"

#include "tools/common/Options.h"

std::optional<FilterJob> ReadFilterJob(std::span<const char* const> commandLine) {
    constexpr std::size_t kTitle = 3;
    constexpr std::size_t kFile = 6;
    if (commandLine.size() != kFile && commandLine.size() != kFile + 1) {
        return std::nullopt;
    }
    return FilterJob{commandLine[kTitle], commandLine.size() > kFile ? commandLine[kFile] : kStandardStream};
}
