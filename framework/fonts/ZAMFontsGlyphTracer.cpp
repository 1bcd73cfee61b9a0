// SPDX-License-Identifier: MIT
#include "framework/fonts/ZAMFontsGlyphTracer.h"

#include "framework/fonts/ZAMFontsVariations.h"

#include FT_OUTLINE_H

namespace {

// Each open face holds a file; more than this in one document is rare.
constexpr std::size_t kMostOpenFaces = 64;

// Turns FreeType's contours, which close by themselves and may be quadratic, into the sink's.
struct Decomposer {
    const ZAMFontsOutlineSink& sink;
    double unit;
    double x = 0.0;
    double y = 0.0;
    bool open = false;

    void Close() {
        if (open) {
            sink.close(sink.target);
        }
        open = false;
    }
    void GoTo(const FT_Vector* to) {
        x = static_cast<double>(to->x) * unit;
        y = static_cast<double>(to->y) * unit;
    }
    static int MoveTo(const FT_Vector* to, void* user) {
        auto& self = *static_cast<Decomposer*>(user);
        self.Close();
        self.GoTo(to);
        self.sink.moveTo(self.sink.target, self.x, self.y);
        self.open = true;
        return 0;
    }
    static int LineTo(const FT_Vector* to, void* user) {
        auto& self = *static_cast<Decomposer*>(user);
        self.GoTo(to);
        self.sink.lineTo(self.sink.target, self.x, self.y);
        return 0;
    }
    static int ConicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
        auto& self = *static_cast<Decomposer*>(user);
        const double controlX = static_cast<double>(control->x) * self.unit;
        const double controlY = static_cast<double>(control->y) * self.unit;
        const double x1 = self.x + (controlX - self.x) * 2.0 / 3.0;
        const double y1 = self.y + (controlY - self.y) * 2.0 / 3.0;
        self.GoTo(to);
        self.sink.cubicTo(self.sink.target, x1, y1, self.x + (controlX - self.x) * 2.0 / 3.0,
                          self.y + (controlY - self.y) * 2.0 / 3.0, self.x, self.y);
        return 0;
    }
    static int CubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
        auto& self = *static_cast<Decomposer*>(user);
        self.GoTo(to);
        self.sink.cubicTo(self.sink.target, static_cast<double>(control1->x) * self.unit,
                          static_cast<double>(control1->y) * self.unit, static_cast<double>(control2->x) * self.unit,
                          static_cast<double>(control2->y) * self.unit, self.x, self.y);
        return 0;
    }
};

} // namespace

ZAMFontsGlyphTracer::ZAMFontsGlyphTracer() {
    if (FT_Init_FreeType(&_Library) != 0) {
        _Library = nullptr;
    }
}

ZAMFontsGlyphTracer::~ZAMFontsGlyphTracer() {
    CloseFaces();
    FT_Done_FreeType(_Library);
}

bool ZAMFontsGlyphTracer::Trace(const ZAMFontsOutlineRequest& request, const ZAMFontsOutlineSink& sink) {
    FT_Face face = _Library == nullptr ? nullptr : FindFace(request);
    if (face == nullptr || face->units_per_EM == 0 ||
        FT_Load_Glyph(face, request.glyph, FT_LOAD_NO_SCALE | FT_LOAD_NO_BITMAP) != 0 ||
        face->glyph->format != FT_GLYPH_FORMAT_OUTLINE) {
        return false;
    }
    FT_Outline& outline = face->glyph->outline;
    if (request.syntheticBold) {
        // As much as FreeType's own emboldening adds.
        FT_Outline_Embolden(&outline, face->units_per_EM / 24);
    }
    Decomposer decomposer{.sink = sink, .unit = 1.0 / face->units_per_EM};
    const FT_Outline_Funcs functions{
        Decomposer::MoveTo, Decomposer::LineTo, Decomposer::ConicTo, Decomposer::CubicTo, 0, 0};
    const bool done = FT_Outline_Decompose(&outline, &functions, &decomposer) == 0;
    decomposer.Close();
    return done;
}

FT_Face ZAMFontsGlyphTracer::FindFace(const ZAMFontsOutlineRequest& request) {
    Key key(request.file, request.faceIndex, request.variations);
    const auto known = _Faces.find(key);
    if (known != _Faces.end()) {
        return known->second;
    }
    if (_Faces.size() >= kMostOpenFaces) {
        CloseFaces();
    }
    return _Faces[std::move(key)] = OpenFace(request);
}

FT_Face ZAMFontsGlyphTracer::OpenFace(const ZAMFontsOutlineRequest& request) {
    FT_Face face = nullptr;
    if (FT_New_Face(_Library, request.file, request.faceIndex, &face) != 0) {
        return nullptr;
    }
    ZAMFontsVariations::Apply(_Library, face, request.variations);
    return face;
}

void ZAMFontsGlyphTracer::CloseFaces() {
    for (const auto& [key, face] : _Faces) {
        FT_Done_Face(face);
    }
    _Faces.clear();
}
