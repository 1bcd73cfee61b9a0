// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/geometry/ZAMPrepressLength.h"

#include <optional>
#include <string_view>

/// What the attributes of the outermost svg element make of the page.
struct ZAMPrepressRootFrame {
    struct Texts {
        std::string_view width;
        std::string_view height;
        std::string_view viewBox;
        std::string_view aspect; ///< preserveAspectRatio
    };

    bool isAsWritten = true;     ///< the interpreter makes the same of the attributes: the rest is not to be written
    std::optional<double> width; ///< of the page; nothing where only the content could tell
    std::optional<double> height;
    std::optional<ZAMMathBox2D> viewBox; ///< shown on all of the page
    ZAMMathAffine2D content;             ///< from the content's coordinates to those of the viewBox
    ZAMPrepressViewportSize percentages; ///< what the content's percentages count against; 0 when unknown

    [[nodiscard]] static ZAMPrepressRootFrame Of(const Texts& texts);
};
