// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/Options.h"
#include "tools/zamprint/Progress.h"

/// Prints each document into an output of its own, in the folder of the options and named after it, several at once.
/// Those that cannot be printed are told of; whether there were none. Throws a Failure when the usage is wrong: two
/// documents would have the same output, or one would be replaced by its own.
bool PrintApart(const Options& options, Progress& progress);
