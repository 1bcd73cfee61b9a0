// SPDX-License-Identifier: MIT
#pragma once

#include "framework/fonts/ZAMPrintFontsTable.h"

// What fontconfig knows, as the table of the module offers it.

/// False when the configuration holds no font at all: layout must not be tried then.
bool ZAMFontsAreInstalled();
void ZAMFontsListFaces(void* target, void (*take)(void*, const ZAMFontsFace*));
void ZAMFontsMatchFace(const char* const* families, std::size_t count, void* target,
                       void (*take)(void*, const char*, int));
void ZAMFontsMatchStandIn(const char* family, void* target, void (*take)(void*, const char*, int));
