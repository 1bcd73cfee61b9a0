// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <array>

/// A colour keyword and its sRGB components.
struct ZAMPrintSVGColorKeyword {
    const char* name;
    unsigned char red;
    unsigned char green;
    unsigned char blue;
};

/// The colour keywords of SVG 1.1 (section 4.4) in that table's order, names in lower case.
ZAM_EXPORT extern const std::array<ZAMPrintSVGColorKeyword, 147> SVG_ColorKeywordTab;
