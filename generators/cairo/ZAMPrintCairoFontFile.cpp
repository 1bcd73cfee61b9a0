// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoFontFile.h"

#include "framework/fonts/ZAMFontsVariations.h"

#include <cairo-ft.h>
#include <ft2build.h>
#include <memory>
#include <type_traits>
#include FT_FREETYPE_H

namespace {

struct ReleaseLibrary {
    void operator()(FT_Library library) const noexcept { FT_Done_FreeType(library); }
};
using Library = std::unique_ptr<std::remove_pointer_t<FT_Library>, ReleaseLibrary>;

Library MakeLibrary() {
    FT_Library library = nullptr;
    FT_Init_FreeType(&library);
    return Library(library);
}

/// FreeType's own function, so that cairo may call it even when this library has been unloaded.
cairo_destroy_func_t GetDestroyer() {
    return reinterpret_cast<cairo_destroy_func_t>(reinterpret_cast<void (*)()>(&FT_Done_FreeType));
}

} // namespace

/// Cairo keeps some fonts for all documents of the process and drops them whenever it likes: each face is the only one
/// of a FreeType library of its own, so that this meets no other thread.
ZAMPrintCairoFontFace ZAMPrintCairoFontFile::Open(const ZAMTextFace& face) {
    static const cairo_user_data_key_t key{};
    Library library = MakeLibrary();
    FT_Face opened = nullptr;
    if (library == nullptr || FT_New_Face(library.get(), face.file.c_str(), face.faceIndex, &opened) != 0) {
        return nullptr;
    }
    // Glyphs that are drawn in layers of colours cairo would paint as coarse pictures.
    if (FT_HAS_COLOR(opened) && face.hasOutlines) {
        return nullptr;
    }
    ZAMFontsVariations::Apply(library.get(), opened, face.variations);
    ZAMPrintCairoFontFace made(cairo_ft_font_face_create_for_ft_face(opened, 0));
    if (cairo_font_face_status(made.get()) != CAIRO_STATUS_SUCCESS ||
        cairo_font_face_set_user_data(made.get(), &key, library.get(), GetDestroyer()) != CAIRO_STATUS_SUCCESS) {
        made.reset();
        return nullptr;
    }
    static_cast<void>(library.release());
    if (face.syntheticBold) {
        cairo_ft_font_face_set_synthesize(made.get(), CAIRO_FT_SYNTHESIZE_BOLD);
    }
    return made;
}
