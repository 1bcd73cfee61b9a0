// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/Options.h"

/// Prints the documents that the options name; whether all could be printed, the others having been told of. Throws a
/// Failure when nothing could; then no output is left.
bool Print(const Options& options);
