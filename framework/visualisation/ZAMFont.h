// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"

/// An installed font: one face, or a family that is not installed but has a metric-compatible stand-in that is.
///
/// The list is read with the first call of any static operation here and stays as it is. Its objects live as long as
/// the process and are never freed by anyone; all operations may be called from several threads. Where no font can be
/// had, the list is empty.
class ZAM_EXPORT ZAMFont {
public:
    /// How the glyphs are described. Fonts of plain bitmaps are not listed.
    enum TypeCode : int { kBuiltIn = 0, kPostScript = 1, kTrueType = 2 };

    /// What is known of a face. Weights are those of CSS (100 to 1000, 400 is normal).
    struct Face {
        ZAMString name; ///< unique in the list: the full name wherever that is
        ZAMString family;
        ZAMString fullName;
        ZAMString postScriptName;
        ZAMString file;
        int faceIndex = 0; ///< as FreeType counts it: a named instance in the upper 16 bits
        int typeCode = kTrueType;
        int weight = 400;
        int slant = 0;     ///< 0 upright, 1 italic, 2 oblique
        int stretch = 100; ///< width in percent of the normal one
    };

    ZAMFont(int number, Face face) : _Number(number), _Face(static_cast<Face&&>(face)) {}

    /// The font with this name in the list, or from this file, of which only the base name counts, without letter case.
    /// "times.ttf", "arial.ttf", "cour.ttf", "MTCORSVA.TTF" and "Alpha Geometrique" give the best serif, sans-serif,
    /// monospace, cursive and fantasy font at hand when they are not installed themselves. Null for any other name.
    [[nodiscard]] static ZAMFont* sGetFont(const char* name);
    [[nodiscard]] static int sGetFontCount();
    /// The name of font `i`, from 1 to the count; null outside.
    [[nodiscard]] static const char* sGetFontName(int i);
    /// Name, type code and file of a font: 1, or 0 with everything unchanged when there is no font of that number.
    static int sGetFontGeneralInformation(int number, ZAMString& name, int& typeCode, ZAMString& file);

    [[nodiscard]] int GetTypeCode() const { return _Face.typeCode; }
    /// The place in the list, from 1.
    [[nodiscard]] int GetNumber() const { return _Number; }
    [[nodiscard]] const ZAMString& GetName() const { return _Face.name; }
    [[nodiscard]] const ZAMString& GetFamily() const { return _Face.family; }
    [[nodiscard]] const Face& GetFace() const { return _Face; }

private:
    int _Number;
    Face _Face;
};
