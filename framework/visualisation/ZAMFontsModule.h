// SPDX-License-Identifier: MIT
#pragma once

#include "framework/fonts/ZAMPrintFontsTable.h"

/// The fonts module, opened with the first call: libZAMPrintFonts.so beside the library that this code is in, else
/// where the dynamic linker finds it. Null when there is none; then there are no fonts.
const ZAMPrintFontsTable* ZAMOpenFontsModule();
