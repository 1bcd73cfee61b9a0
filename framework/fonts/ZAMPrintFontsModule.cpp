// SPDX-License-Identifier: MIT
#include "framework/base/ZAMExport.h"
#include "framework/fonts/ZAMFontsGlyphTracer.h"
#include "framework/fonts/ZAMFontsInstalled.h"
#include "framework/fonts/ZAMFontsLineShaper.h"
#include "framework/fonts/ZAMFontsWorkers.h"

namespace {

bool ShapeLine(const ZAMFontsShapeRequest* request, const ZAMFontsShapeSink* sink) {
    static auto* shapers = new ZAMFontsWorkers<ZAMFontsLineShaper>;
    try {
        return ZAMFontsAreInstalled() && shapers->Use([&](auto& shaper) { return shaper.Shape(*request, *sink); });
    } catch (...) {
        return false;
    }
}

bool TraceGlyph(const ZAMFontsOutlineRequest* request, const ZAMFontsOutlineSink* sink) {
    static auto* tracers = new ZAMFontsWorkers<ZAMFontsGlyphTracer>;
    try {
        return tracers->Use([&](auto& tracer) { return tracer.Trace(*request, *sink); });
    } catch (...) {
        return false;
    }
}

} // namespace

extern "C" ZAM_EXPORT const ZAMPrintFontsTable* ZAMPrintFontsGetTable();

extern "C" const ZAMPrintFontsTable* ZAMPrintFontsGetTable() {
    static constexpr ZAMPrintFontsTable table{ZAMFontsListFaces, ZAMFontsMatchFace, ZAMFontsMatchStandIn, ShapeLine,
                                              TraceGlyph};
    return &table;
}
