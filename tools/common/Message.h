// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The text with control characters, which a name may hold, replaced, so that it is always part of one line.
std::string WithoutControls(std::string_view text);

/// Writes one line on standard error: the program's name, a colon and the text, without its control characters.
void PrintMessage(std::string_view text);

/// From now on standard error has a last line that is written again and again; messages make it go first.
void BeginStatusLine();
/// Writes that line.
void PrintStatus(std::string_view text);
/// Takes the line away for good.
void EndStatusLine();
