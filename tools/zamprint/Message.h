// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Writes one line on standard error: the program's name, a colon and the text. Control characters, which a file name
/// may hold, are replaced, so that a message is always one line.
void PrintMessage(std::string_view text);

/// From now on standard error has a last line that is written again and again; messages make it go first.
void BeginStatusLine();
/// Writes that line.
void PrintStatus(std::string_view text);
/// Takes the line away for good.
void EndStatusLine();
