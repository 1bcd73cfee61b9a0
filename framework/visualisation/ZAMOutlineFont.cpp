// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMOutlineFont.h"

#include "framework/visualisation/ZAMFontCatalogue.h"

int ZAMOutlineFont::sGetFontOtherGeneralInformation(int number, ZAMString& name, ZAMString& file, int& faceIndex,
                                                    int& weight, ZAMString& family, int& slant, float& stretch,
                                                    ZAMString& type, ZAMString& fullName, ZAMString& postScriptName) {
    const ZAMFont* font = ZAMFontCatalogue::sGet().At(number);
    if (font == nullptr || font->GetTypeCode() == ZAMFont::kBuiltIn) {
        return 0;
    }
    const ZAMFont::Face& face = font->GetFace();
    name = face.name;
    file = face.file;
    faceIndex = face.faceIndex;
    weight = face.weight;
    family = face.family;
    slant = face.slant;
    stretch = static_cast<float>(face.stretch) / 100.0F;
    type = face.typeCode == ZAMFont::kPostScript ? "PostScript" : "TrueType";
    fullName = face.fullName;
    postScriptName = face.postScriptName;
    return 1;
}
