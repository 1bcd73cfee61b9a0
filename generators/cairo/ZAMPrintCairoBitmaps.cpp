// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoBitmaps.h"

const ZAMPrintCairoBitmap& ZAMPrintCairoBitmaps::Find(const ZAMTextFace& face, std::uint32_t glyph,
                                                      ZAMPrintCairoFonts& fonts) {
    // Some 30 MB of pictures; one that is dropped and comes again is stored again.
    constexpr std::size_t kMostBitmaps = 256;
    const std::pair key(&face, glyph);
    const auto known = _Bitmaps.find(key);
    if (known != _Bitmaps.end()) {
        return known->second;
    }
    if (_Bitmaps.size() >= kMostBitmaps) {
        _Bitmaps.clear();
    }
    cairo_scaled_font_t* font = fonts.Find(face, {kEm, 0.0, 0.0, -kEm});
    return _Bitmaps[key] = font == nullptr ? ZAMPrintCairoBitmap() : ZAMPrintCairoBitmap(font, glyph);
}
