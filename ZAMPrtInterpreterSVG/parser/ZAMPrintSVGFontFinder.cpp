// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGFontFinder.h"

#include "framework/base/ZAMTextCompare.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/visualisation/ZAMFont.h"
#include "framework/visualisation/ZAMOutlineFont.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGKeywords.h"

#include <algorithm>
#include <vector>

namespace {

constexpr ZAMPrintSVGKeyword<const char*> kGenericFamilies[] = {
    {"serif", "times.ttf"},           {"sans-serif", "arial.ttf"}, {"cursive", "MTCORSVA.TTF"},
    {"fantasy", "Alpha Geometrique"}, {"monospace", "cour.ttf"},
};

using Names = std::vector<ZAMString>;

Names BitmapFontNames(int number) {
    ZAMString name;
    ZAMString unused;
    int unusedNumber = 0;
    ZAMFont::sGetFontGeneralInformation(number, name, unusedNumber, unused);
    ZAMUnicodeString bare{std::string_view(name)};
    bare.ReplaceSubString(".font", "");
    return {ZAMString(bare.View())};
}

Names OutlineFontNames(int number) {
    ZAMString text[6];
    int integer[3] = {};
    float real = 0.0F;
    ZAMOutlineFont::sGetFontOtherGeneralInformation(number, text[0], text[1], integer[0], integer[1], text[2],
                                                    integer[2], real, text[3], text[4], text[5]);
    return {text[2], text[4], text[5]};
}

// The names that a family may have to be this font.
Names NamesOf(const ZAMFont& font) {
    switch (font.GetTypeCode()) {
    case 0:
        return BitmapFontNames(font.GetNumber());
    case 1:
    case 2:
        return OutlineFontNames(font.GetNumber());
    default:
        return {};
    }
}

// A name without its quotes, wherever they stand, and without blanks around it.
std::string Cleaned(std::string_view piece) {
    std::string name(piece);
    std::erase_if(name, [](char c) { return c == '"' || c == '\''; });
    name.erase(0, std::min(name.find_first_not_of(' '), name.size()));
    name.erase(name.find_last_not_of(' ') + 1);
    return name;
}

} // namespace

std::string ZAMPrintSVGFontFinder::TakeFamily(std::string_view& families) {
    const std::size_t length = std::min(families.find(','), families.size());
    const std::string_view family = families.substr(0, length);
    families.remove_prefix(std::min(length + 1, families.size()));
    return Cleaned(family);
}

bool ZAMPrintSVGFontFinder::IsGeneric(std::string_view family) {
    return ZAMPrintSVGFindKeyword(kGenericFamilies, family) != nullptr;
}

ZAMFont* ZAMPrintSVGFontFinder::FindInList(std::string_view families) {
    ZAMFont* font = nullptr;
    while (font == nullptr && !families.empty()) {
        const std::string family = TakeFamily(families);
        if (!family.empty()) {
            font = Find(family);
        }
    }
    return font;
}

ZAMFont* ZAMPrintSVGFontFinder::Find(std::string_view family) {
    if (const auto* const generic = ZAMPrintSVGFindKeyword(kGenericFamilies, family)) {
        return ZAMFont::sGetFont(generic->code);
    }
    if (!_IsListed) {
        ListInstalled();
    }
    const auto found = _Installed.find(ZAMFoldText(family));
    return found == _Installed.end() ? nullptr : found->second;
}

// The first font of a name keeps it.
void ZAMPrintSVGFontFinder::ListInstalled() {
    const int count = ZAMFont::sGetFontCount();
    for (int i = 1; i <= count; ++i) {
        ZAMFont* const font = ZAMFont::sGetFont(ZAMFont::sGetFontName(i));
        if (font != nullptr) {
            for (const ZAMString& name : NamesOf(*font)) {
                _Installed.emplace(ZAMFoldText(name), font);
            }
        }
    }
    _IsListed = true;
}
