// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintColour.h"

#include <ctime>
#include <optional>
#include <string>

/// How a drawing that is not of the page's size is put on the page. It is always centred.
enum class ZAMPrintFit {
    None,   ///< at its natural size
    Shrink, ///< at its natural size, made smaller when it is larger than the printable area
    Page    ///< made as large as the printable area allows
};

/// What the output says about itself. Texts are UTF-8; empty ones are left out.
struct ZAMPrintMetadata {
    std::string title;
    std::string author;
    std::string subject;
    std::optional<std::time_t> creationTime; ///< without one the output carries the time of printing
};

/// How a model is put on pages. Lengths are in points, 72 to the inch.
struct ZAMPrintParameters {
    double pageWidth = 0.0; ///< with the height: the paper; unless both are positive each page has its drawing's size
    double pageHeight = 0.0;
    double margin = 0.0; ///< on each side of the paper; a page of the drawing's size has none
    ZAMPrintFit fit = ZAMPrintFit::Page;
    double scale = 1.0;       ///< of the natural size, or of the fitted size for Page
    double resolution = 90.0; ///< pixels to the inch, for outputs made of pixels
    std::optional<ZAMPrintColour> background;
    ZAMPrintMetadata metadata;
};
