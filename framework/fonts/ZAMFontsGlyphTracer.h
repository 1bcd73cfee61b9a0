// SPDX-License-Identifier: MIT
#pragma once

#include "framework/fonts/ZAMPrintFontsTable.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include <map>
#include <string>
#include <tuple>

/// Reads outlines from font files, in the font's own units and so without any rounding or hinting.
class ZAMFontsGlyphTracer {
public:
    ZAMFontsGlyphTracer();
    ZAMFontsGlyphTracer(const ZAMFontsGlyphTracer&) = delete;
    ZAMFontsGlyphTracer& operator=(const ZAMFontsGlyphTracer&) = delete;
    ~ZAMFontsGlyphTracer();

    bool Trace(const ZAMFontsOutlineRequest& request, const ZAMFontsOutlineSink& sink);

private:
    using Key = std::tuple<std::string, int, std::string>;

    FT_Face FindFace(const ZAMFontsOutlineRequest& request);
    FT_Face OpenFace(const ZAMFontsOutlineRequest& request);
    void CloseFaces();

    FT_Library _Library = nullptr;
    std::map<Key, FT_Face> _Faces; ///< null for those that cannot be opened
};
