// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"

#include <string>
#include <string_view>

/// Splits a path at its last slash, so that ZAMMakePath joins the parts again. The directory loses the slashes at its
/// end unless it is the root: "a//b" gives "a" and "b", "b" gives "" and "b", "/b" gives "/" and "b".
ZAM_EXPORT void ZAMSplitPath(std::string_view path, ZAMUnicodeString& directory, ZAMUnicodeString& fileName);

/// Joins a directory, "" for the current one, and a name relative to it. 0, or -1 with `result` untouched when the name
/// is empty or absolute, or when no file can have such a path.
ZAM_EXPORT int ZAMMakePath(std::string_view directory, std::string_view name, ZAMUnicodeString& result);

/// Whether the system takes the text as a path: it is not empty, shorter than PATH_MAX and has no NUL. It costs nothing
/// for texts that are megabytes long.
ZAM_EXPORT bool ZAMIsPossiblePath(std::string_view path) noexcept;

/// The absolute path without links, "." and "..", or "" when there is nothing under that path.
ZAM_EXPORT std::string ZAMResolvePath(std::string_view path);
