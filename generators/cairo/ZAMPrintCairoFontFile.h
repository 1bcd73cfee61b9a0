// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMTextFace.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"

/// Font files as FreeType reads them.
namespace ZAMPrintCairoFontFile {

/// The face with its variations and boldness; null when the file cannot be read, or the font is better drawn by its
/// outlines. Cairo may keep it for longer than the
/// caller, and give it back on another thread.
[[nodiscard]] ZAMPrintCairoFontFace Open(const ZAMTextFace& face);

} // namespace ZAMPrintCairoFontFile
