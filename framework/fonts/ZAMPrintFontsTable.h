// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

// What the fonts module offers to the layer that opens it. The module is the only place that names the text libraries;
// it is opened with the first text because loading those takes longer than printing a small drawing. Only plain data
// crosses: strings and arrays that a callback is given are valid until it returns.

/// One installed face.
struct ZAMFontsFace {
    const char* family;
    const char* style;
    const char* fullName;       ///< may be empty
    const char* postScriptName; ///< may be empty
    const char* file;
    int faceIndex; ///< as FreeType counts it: a named instance in the upper 16 bits
    bool isPostScript;
    int weight;  ///< 100 to 1000, 400 is normal
    int slant;   ///< 0 upright, 1 italic, 2 oblique
    int stretch; ///< percent of the normal width
};

struct ZAMFontsShapeRequest {
    const char* text; ///< valid UTF-8 without control characters
    std::size_t length;
    const char* family;
    int weight;
    int slant;
    int stretch;
    int writingMode; ///< 0 left to right, 1 right to left, 2 top to bottom
    bool ligatures;  ///< false for spaced text
};

/// A glyph of a run: its advance along the line, and where its origin is from the pen, along the line and upward from
/// it, in em.
struct ZAMFontsGlyph {
    std::uint32_t id;
    double advance;
    double along;
    double across;
};

struct ZAMFontsCluster {
    std::uint32_t bytes;
    std::uint32_t glyphs;
};

/// Glyphs of one face in visual order; clusters in the order of the text.
struct ZAMFontsRun {
    const void* font; ///< equal for runs of the same face within one call
    const char* file;
    int faceIndex;
    const char* variations;
    bool syntheticBold;
    bool hasOutlines;
    double matrix[4]; ///< a, b, c, d of the synthetic shape: x' = a·x + c·y, y' = b·x + d·y
    int quarterTurns; ///< counter-clockwise turns of the glyphs against the line
    double ascent;    ///< em above the baseline
    double descent;   ///< em below it, positive
    bool rightToLeft; ///< the glyphs run against the text
    std::size_t textStart;
    std::size_t textLength;
    const ZAMFontsGlyph* glyphs;
    std::size_t glyphCount;
    const ZAMFontsCluster* clusters;
    std::size_t clusterCount;
};

struct ZAMFontsShapeSink {
    void* target;
    /// Once, before the runs: ascent and descent of the font asked for.
    void (*beginLine)(void* target, double ascent, double descent);
    /// In visual order.
    void (*addRun)(void* target, const ZAMFontsRun* run);
};

struct ZAMFontsOutlineRequest {
    const char* file;
    int faceIndex;
    const char* variations;
    bool syntheticBold;
    std::uint32_t glyph;
};

/// Receives contours in em, y upward; each is closed before the next begins.
struct ZAMFontsOutlineSink {
    void* target;
    void (*moveTo)(void* target, double x, double y);
    void (*lineTo)(void* target, double x, double y);
    void (*cubicTo)(void* target, double x1, double y1, double x2, double y2, double x, double y);
    void (*close)(void* target);
};

/// All functions may be called from several threads. Callbacks must not throw: there is C code below them.
struct ZAMPrintFontsTable {
    /// Every installed scalable face, in no order.
    void (*listFaces)(void* target, void (*take)(void* target, const ZAMFontsFace* face));
    /// The best match for the families, the first one preferred: at most one call of `take`.
    void (*matchFace)(const char* const* families, std::size_t count, void* target,
                      void (*take)(void* target, const char* file, int faceIndex));
    /// The same for a family that is not installed, only when the configuration names a metric-compatible one for it.
    void (*matchStandIn)(const char* family, void* target, void (*take)(void* target, const char* file, int faceIndex));
    /// Lays out one line. False when there is no font or no memory.
    bool (*shapeLine)(const ZAMFontsShapeRequest* request, const ZAMFontsShapeSink* sink);
    /// False when the glyph has no outline.
    bool (*traceGlyph)(const ZAMFontsOutlineRequest* request, const ZAMFontsOutlineSink* sink);
};

/// The module's one symbol, "ZAMPrintFontsGetTable".
using ZAMPrintFontsGetTableFunction = const ZAMPrintFontsTable*();
