// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What messages call the input: the file's name, or "standard input" for "-".
std::string GetInputName(const std::string& file);

/// Throws the Failure of wrong usage when the output would replace the input: "-o drawing.svg" is soon typed, and would
/// replace the drawing by its print.
void RefuseOwnInput(const std::string& input, const std::string& output);

/// The whole content of a file, or of standard input for "-". Throws a Failure when it cannot be read to its end. What
/// is compressed is decompressed; `isUnlimited` as Inflate has it.
std::string ReadInputFile(const std::string& file, bool isUnlimited);
