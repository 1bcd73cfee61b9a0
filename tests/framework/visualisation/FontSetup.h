// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/FontFolders.h"

/// Runs one test of this program, disabled ones included, in a process of its own, from `program` if that is given;
/// true when it passes.
bool PassesAlone(const std::string& test, const std::string& program = "/proc/self/exe");
