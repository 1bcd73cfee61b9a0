// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"

/// More about the fonts of the list whose glyphs are outlines: those of the type codes 1 and 2.
class ZAM_EXPORT ZAMOutlineFont {
public:
    /// 1 when the font of this number (see ZAMFont) is an outline font, else 0 with everything unchanged. Gives its
    /// name in the list, its file, the face's index in the file, its weight (100 to 1000), its family, its slant (0
    /// upright, 1 italic, 2 oblique), its width (1 is normal), its type ("PostScript" or "TrueType"), its full name and
    /// its PostScript name.
    static int sGetFontOtherGeneralInformation(int number, ZAMString& name, ZAMString& file, int& faceIndex,
                                               int& weight, ZAMString& family, int& slant, float& stretch,
                                               ZAMString& type, ZAMString& fullName, ZAMString& postScriptName);
};
