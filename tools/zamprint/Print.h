// SPDX-License-Identifier: MIT
#pragma once

#include "tools/zamprint/Options.h"

/// Prints the document that the options name. Throws a Failure when that cannot be done; then no output file is left.
void Print(const Options& options);
