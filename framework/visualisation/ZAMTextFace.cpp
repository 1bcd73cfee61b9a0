// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMTextFace.h"

#include "framework/visualisation/ZAMFontsModule.h"

namespace {

ZAMGlyphOutline& OutlineOf(void* target) {
    return *static_cast<ZAMGlyphOutline*>(target);
}

} // namespace

ZAMGlyphOutline ZAMTextFace::GetOutline(std::uint32_t glyph) const {
    ZAMGlyphOutline outline;
    const ZAMPrintFontsTable* module = hasOutlines ? ZAMOpenFontsModule() : nullptr;
    if (module == nullptr) {
        return outline;
    }
    const ZAMFontsOutlineRequest request{file.c_str(), faceIndex, variations.c_str(), syntheticBold, glyph};
    const ZAMFontsOutlineSink sink{&outline,
                                   [](void* target, double x, double y) {
                                       OutlineOf(target).MoveTo({x, y});
                                   },
                                   [](void* target, double x, double y) {
                                       OutlineOf(target).LineTo({x, y});
                                   },
                                   [](void* target, double x1, double y1, double x2, double y2, double x, double y) {
                                       OutlineOf(target).CubicTo({x1, y1}, {x2, y2}, {x, y});
                                   },
                                   [](void* target) { OutlineOf(target).ClosePath(); }};
    return module->traceGlyph(&request, &sink) ? outline : ZAMGlyphOutline();
}
