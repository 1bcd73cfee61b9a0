// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoFontFile.h"

#include <algorithm>
#include <cairo-ft.h>
#include <charconv>
#include <cmath>
#include <ft2build.h>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>
#include FT_FREETYPE_H
#include FT_MULTIPLE_MASTERS_H

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

/// Writes the coordinate that a setting "wght=250" names, if the face has that axis.
void SetAxis(const FT_MM_Var& axes, std::vector<FT_Fixed>& coordinates, std::string_view setting) {
    constexpr std::size_t kTagLength = 4;
    double value = 0.0;
    if (setting.size() <= kTagLength + 1 || setting[kTagLength] != '=') {
        return;
    }
    const char* number = setting.data() + kTagLength + 1;
    if (std::from_chars(number, setting.data() + setting.size(), value).ec != std::errc() ||
        !(std::abs(value) < 32768.0)) {
        return;
    }
    const FT_ULong tag = FT_MAKE_TAG(setting[0], setting[1], setting[2], setting[3]);
    for (FT_UInt i = 0; i < axes.num_axis; ++i) {
        if (axes.axis[i].tag == tag) {
            coordinates[i] = static_cast<FT_Fixed>(std::lround(value * 65536.0));
        }
    }
}

void Vary(FT_Library library, FT_Face face, std::string_view variations) {
    FT_MM_Var* axes = nullptr;
    if (variations.empty() || FT_Get_MM_Var(face, &axes) != 0) {
        return;
    }
    std::vector<FT_Fixed> coordinates(axes->num_axis);
    if (FT_Get_Var_Design_Coordinates(face, axes->num_axis, coordinates.data()) == 0) {
        while (!variations.empty()) {
            const std::size_t end = std::min(variations.find(','), variations.size());
            SetAxis(*axes, coordinates, variations.substr(0, end));
            variations.remove_prefix(std::min(end + 1, variations.size()));
        }
        FT_Set_Var_Design_Coordinates(face, axes->num_axis, coordinates.data());
    }
    FT_Done_MM_Var(library, axes);
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
    Vary(library.get(), opened, face.variations);
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
