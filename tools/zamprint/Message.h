// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Writes one line on standard error: the program's name, a colon and the text. Control characters, which a file name
/// may hold, are replaced, so that a message is always one line.
void PrintMessage(std::string_view text);
