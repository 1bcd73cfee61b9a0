// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMPixelImage.h"

#include <cstdlib>

/// Ends the program when a picture does not have as many pixels as it says.
inline void CheckFuzzedPicture(const ZAMRef<ZAMPixelImage>& image) {
    if (image && image->GetPixels().size() !=
                     static_cast<std::size_t>(image->GetWidth()) * static_cast<std::size_t>(image->GetHeight())) {
        std::abort();
    }
}
