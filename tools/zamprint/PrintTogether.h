// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/Options.h"

#include <functional>
#include <span>
#include <string>

/// Prints documents into one output, one after the other; those that cannot be read are told of and left out. Whether
/// none was. `ended` is called with the name of each. Throws a Failure when there is no output: nothing could be read,
/// or nothing could be written. What was at its place stays then.
bool PrintTogether(std::span<const std::string> inputs, const std::string& output, const Options& options,
                   const std::function<void(const std::string& input)>& ended);
