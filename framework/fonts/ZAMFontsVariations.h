// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <ft2build.h>
#include <string_view>
#include <vector>
#include FT_FREETYPE_H
#include FT_MULTIPLE_MASTERS_H

/// Sets the axes of a variable font as ZAMTextFace writes them, "wght=250,wdth=80". For whoever opens a face with
/// FreeType, so that the same face looks the same wherever it is opened.
class ZAMFontsVariations {
public:
    /// Axes that the face does not have and settings that are none are left out.
    static void Apply(FT_Library library, FT_Face face, std::string_view settings) {
        FT_MM_Var* axes = nullptr;
        if (settings.empty() || FT_Get_MM_Var(face, &axes) != 0) {
            return;
        }
        std::vector<FT_Fixed> coordinates(axes->num_axis);
        if (FT_Get_Var_Design_Coordinates(face, axes->num_axis, coordinates.data()) == 0) {
            while (!settings.empty()) {
                const std::size_t end = std::min(settings.find(','), settings.size());
                SetAxis(*axes, coordinates, settings.substr(0, end));
                settings.remove_prefix(std::min(end + 1, settings.size()));
            }
            FT_Set_Var_Design_Coordinates(face, axes->num_axis, coordinates.data());
        }
        FT_Done_MM_Var(library, axes);
    }

private:
    static void SetAxis(const FT_MM_Var& axes, std::vector<FT_Fixed>& coordinates, std::string_view setting) {
        constexpr std::size_t kTagLength = 4;
        double value = 0.0;
        if (setting.size() <= kTagLength + 1 || setting[kTagLength] != '=') {
            return;
        }
        const char* const number = setting.data() + kTagLength + 1;
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
};
