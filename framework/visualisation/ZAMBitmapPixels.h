// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMBitmapHeader.h"

/// Writes every pixel of a BMP file, as ZAMPixelImage wants them, or gives false: its run lengths are cut short, or a
/// bit field is not one run of bits.
bool ZAMDecodeBitmap(const ZAMBitmapHeader& header, std::uint32_t* pixels);
