// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/Options.h"

/// What became of the documents that were checked.
struct CheckResult {
    bool areAllRead = true; ///< else there were messages
    bool hasFindings = false;
};

/// Writes to standard output what of each document will not come out as it is drawn: a line for each finding and one of
/// counts, or JSON. A document that cannot be read gets a message and does not stop the others. Throws the Failure of a
/// write.
CheckResult Check(const Options& options);
