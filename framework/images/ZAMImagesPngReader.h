// SPDX-License-Identifier: MIT
#pragma once

#include "framework/images/ZAMPrintImagesTable.h"

/// Reads a PNG file with libpng; see ZAMPrintImagesTable.
bool ZAMImagesReadPng(const unsigned char* data, std::size_t size, const ZAMImagesSink* sink);
