// SPDX-License-Identifier: MIT
#pragma once

#include "framework/fonts/ZAMPrintFontsTable.h"

/// The fonts module, opened with the first call (ZAMModule.h). Null when there is none; then there are no fonts.
const ZAMPrintFontsTable* ZAMOpenFontsModule();
