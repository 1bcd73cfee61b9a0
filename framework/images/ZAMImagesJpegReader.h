// SPDX-License-Identifier: MIT
#pragma once

#include "framework/images/ZAMPrintImagesTable.h"

/// Reads a JPEG file with TurboJPEG; see ZAMPrintImagesTable.
bool ZAMImagesReadJpeg(const unsigned char* data, std::size_t size, const ZAMImagesSink* sink, std::size_t* usableSize);
