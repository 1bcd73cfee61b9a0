// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMFont.h"

#include "framework/visualisation/ZAMFontCatalogue.h"

ZAMFont* ZAMFont::sGetFont(const char* name) {
    return name == nullptr ? nullptr : ZAMFontCatalogue::sGet().Find(name);
}

int ZAMFont::sGetFontCount() {
    return ZAMFontCatalogue::sGet().Count();
}

const char* ZAMFont::sGetFontName(int i) {
    const ZAMFont* font = ZAMFontCatalogue::sGet().At(i);
    return font == nullptr ? nullptr : font->GetName().c_str();
}

int ZAMFont::sGetFontGeneralInformation(int number, ZAMString& name, int& typeCode, ZAMString& file) {
    const ZAMFont* font = ZAMFontCatalogue::sGet().At(number);
    if (font == nullptr) {
        return 0;
    }
    name = font->GetName();
    typeCode = font->GetTypeCode();
    file = font->GetFace().file;
    return 1;
}
