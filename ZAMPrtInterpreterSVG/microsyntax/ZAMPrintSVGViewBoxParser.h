// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Reads a viewBox (SVG 1.1, 7.7), with blanks as the only separators.
class ZAMPrintSVGViewBoxParser {
public:
    /// Stores what it reads; a value that is not there or no number keeps what the caller put in. 1, or -1 for an empty
    /// text.
    static int ParseViewBoxString(std::string_view text, double& minX, double& minY, double& width, double& height);
};
