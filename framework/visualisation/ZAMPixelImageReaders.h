// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/visualisation/ZAMPixelImage.h"

#include <span>

/// @file
/// The readers of pictures in memory. Each gives null for what is not its format, is damaged or cut short, has more
/// than ZAMLimits::kPicturePixels or more than the thread's ZAMAllocationBudget has left, and when memory is out.
/// Bytes behind the end of the picture do not matter. No exception leaves them, and nothing is loaded for other
/// formats.

/// PNG (ISO 15948), every colour type and depth; 16 bits are brought to 8, and colours are taken as sRGB.
ZAM_EXPORT ZAMRef<ZAMPixelImage> ReadMemoryPNGPixelImage(std::span<const unsigned char> data, ZAMReadOnlyState state);

/// JPEG (ISO/IEC 10918-1), sequential and progressive with Huffman codes and 8 bits; grey, YCbCr, RGB, CMYK and YCCK.
/// Orientation marks do not count. The file is kept for GetJpeg, up to its EOI marker, unless its colours would come
/// out otherwise in a PDF: Adobe's inverted inks, and RGB that is only named so.
ZAM_EXPORT ZAMRef<ZAMPixelImage> ReadMemoryJPEGPixelImage(std::span<const unsigned char> data, ZAMReadOnlyState state);

/// BMP, the Windows bitmap: 1, 4, 8, 16, 24 and 32 bits, RLE4 and RLE8, bit fields, top-down, headers of every age.
/// Only a bit field makes alpha; what a run-length coding leaves out is transparent, and colours that the palette does
/// not have are black.
ZAM_EXPORT ZAMRef<ZAMPixelImage> ReadMemBMPPixelImage(std::span<const unsigned char> data, ZAMReadOnlyState state);
