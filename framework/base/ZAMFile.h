// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// @file
/// Files as documents may name them. Only regular files are there, after links are followed, and of those only the ones
/// that the thread's ZAMFileAccessPolicy allows: a folder, device, pipe or socket is not there and is never opened. A
/// text that cannot be a path costs no copy and no system call. These functions give 0, or -1 with the results
/// untouched.

struct ZAMFileInformation {
    std::uint64_t size;            ///< bytes
    std::int64_t modificationTime; ///< seconds since 1970
};

ZAM_EXPORT int ZAMFileStat(std::string_view path, ZAMFileInformation& information);

enum class ZAMFileAccessMode : std::uint8_t { Exists, Read };

ZAM_EXPORT int ZAMFileAccess(std::string_view path, ZAMFileAccessMode mode);

/// Reads the file whole; -1 also when it has more than `mostBytes`. It never waits for another process, and what it
/// reads is what the policy allowed even if the path is changed meanwhile.
ZAM_EXPORT int ZAMReadFile(std::string_view path, std::size_t mostBytes, std::vector<unsigned char>& bytes);
