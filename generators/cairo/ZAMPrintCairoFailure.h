// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

/// A failure of the output, in words for a person. It is thrown inside the generator only and never leaves it.
class ZAMPrintCairoFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
