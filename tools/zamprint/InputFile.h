// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What messages call the input: the file's name, or "standard input" for "-".
std::string GetInputName(const std::string& file);

/// The whole content of a file, or of standard input for "-". Throws a Failure when it cannot be read to its end.
std::string ReadInputFile(const std::string& file);
