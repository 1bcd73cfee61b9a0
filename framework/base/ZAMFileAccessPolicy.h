// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <string>
#include <string_view>

/// Which files the functions of ZAMFile.h see. While a policy lives it is that of its thread, whatever the one before
/// allowed; without one every file is allowed. A file that is not allowed is not there.
class ZAM_EXPORT ZAMFileAccessPolicy {
public:
    [[nodiscard]] static ZAMFileAccessPolicy All();
    [[nodiscard]] static ZAMFileAccessPolicy None();
    /// The files in a folder and below it, as they are once every link is followed: neither ".." nor a link inside the
    /// folder leads out of it. "" is the current folder. The folder is looked up here and now; one that is not there
    /// allows nothing.
    [[nodiscard]] static ZAMFileAccessPolicy OneFolder(std::string_view folder);

    ZAMFileAccessPolicy(const ZAMFileAccessPolicy&) = delete;
    ZAMFileAccessPolicy& operator=(const ZAMFileAccessPolicy&) = delete;
    ~ZAMFileAccessPolicy();

    /// Whether the thread's policy allows every file, so that no path needs to be resolved.
    [[nodiscard]] static bool AllowsAll() noexcept;
    /// Whether the thread's policy allows nothing, so that no path needs to be looked at.
    [[nodiscard]] static bool AllowsNone() noexcept;
    /// Whether the thread's policy allows a file, named by its absolute path without links, "." and "..".
    [[nodiscard]] static bool AllowsResolved(std::string_view path) noexcept;

private:
    explicit ZAMFileAccessPolicy(std::string root);

    ZAMFileAccessPolicy* _Before;
    std::string _Root; ///< what an allowed path begins with: empty, or a folder with its slash, or what no path has
};
