// SPDX-License-Identifier: MIT
#include "framework/fonts/ZAMFontsInstalled.h"

#include <cmath>
#include <cstring>
#include <fontconfig/fontconfig.h>
#include <memory>

namespace {

struct PatternRelease {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternRelease>;

const char* AsText(const FcChar8* text) {
    return reinterpret_cast<const char*>(text);
}
const FcChar8* AsFcText(const char* text) {
    return reinterpret_cast<const FcChar8*>(text);
}

const char* TextOf(const FcPattern* pattern, const char* object, int place = 0) {
    FcChar8* text = nullptr;
    return FcPatternGetString(pattern, object, place, &text) == FcResultMatch ? AsText(text) : "";
}
int NumberOf(const FcPattern* pattern, const char* object, int otherwise) {
    int number = otherwise;
    FcPatternGetInteger(pattern, object, 0, &number);
    return number;
}
double RealOf(const FcPattern* pattern, const char* object, double otherwise) {
    double number = otherwise;
    FcPatternGetDouble(pattern, object, 0, &number);
    return number;
}
bool FlagOf(const FcPattern* pattern, const char* object) {
    FcBool flag = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &flag) == FcResultMatch && flag == FcTrue;
}

// Names come in several languages; documents name fonts in English.
const char* EnglishTextOf(const FcPattern* pattern, const char* object, const char* languages) {
    FcChar8* language = nullptr;
    for (int place = 0; FcPatternGetString(pattern, languages, place, &language) == FcResultMatch; ++place) {
        if (std::strncmp(AsText(language), "en", 2) == 0) {
            return TextOf(pattern, object, place);
        }
    }
    return TextOf(pattern, object);
}

int SlantOf(const FcPattern* pattern) {
    const int slant = NumberOf(pattern, FC_SLANT, FC_SLANT_ROMAN);
    return slant == FC_SLANT_ITALIC ? 1 : (slant == FC_SLANT_OBLIQUE ? 2 : 0);
}

ZAMFontsFace FaceOf(const FcPattern* pattern) {
    const double weight = FcWeightToOpenTypeDouble(RealOf(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR));
    return {.family = EnglishTextOf(pattern, FC_FAMILY, FC_FAMILYLANG),
            .style = EnglishTextOf(pattern, FC_STYLE, FC_STYLELANG),
            .fullName = EnglishTextOf(pattern, FC_FULLNAME, FC_FULLNAMELANG),
            .postScriptName = TextOf(pattern, FC_POSTSCRIPT_NAME),
            .file = TextOf(pattern, FC_FILE),
            .faceIndex = NumberOf(pattern, FC_INDEX, 0),
            .isPostScript = std::strcmp(TextOf(pattern, FC_FONTFORMAT), "TrueType") != 0,
            .weight = weight > 0.0 ? static_cast<int>(std::lround(weight)) : 400,
            .slant = SlantOf(pattern),
            .stretch = static_cast<int>(std::lround(RealOf(pattern, FC_WIDTH, FC_WIDTH_NORMAL)))};
}

// A variable font is listed by its named instances and once as a whole, with ranges for numbers: that one is left out.
bool IsListed(const FcPattern* pattern) {
    return FlagOf(pattern, FC_SCALABLE) && !FlagOf(pattern, FC_VARIABLE) && *TextOf(pattern, FC_FAMILY) != '\0' &&
           *TextOf(pattern, FC_FILE) != '\0';
}

template <class Visit> void VisitFonts(Visit visit) {
    for (const FcSetName name : {FcSetSystem, FcSetApplication}) {
        const FcFontSet* set = FcConfigGetFonts(nullptr, name);
        for (int i = 0; set != nullptr && i < set->nfont; ++i) {
            visit(set->fonts[i]);
        }
    }
}

// The language is fixed, so that the same document takes the same fonts under every locale.
Pattern MakeQuery(const char* const* families, std::size_t count) {
    Pattern query(FcPatternCreate());
    for (std::size_t i = 0; query && i < count; ++i) {
        FcPatternAddString(query.get(), FC_FAMILY, AsFcText(families[i]));
    }
    if (query) {
        FcPatternAddString(query.get(), FC_LANG, AsFcText("en"));
        FcConfigSubstitute(nullptr, query.get(), FcMatchPattern);
        FcDefaultSubstitute(query.get());
    }
    return query;
}

bool IsFamilyInstalled(const char* family) {
    bool found = false;
    VisitFonts([&](const FcPattern* pattern) {
        FcChar8* name = nullptr;
        for (int place = 0; !found && FcPatternGetString(pattern, FC_FAMILY, place, &name) == FcResultMatch; ++place) {
            found = FcStrCmpIgnoreCase(name, AsFcText(family)) == 0;
        }
    });
    return found;
}

// Metric-compatible families are bound as strongly as the family they stand for; generic ones are weak.
bool HasStandIn(const FcPattern* query, const char* family) {
    FcValue value;
    FcValueBinding binding = FcValueBindingWeak;
    for (int place = 0; FcPatternGetWithBinding(query, FC_FAMILY, place, &value, &binding) == FcResultMatch; ++place) {
        if (binding != FcValueBindingWeak && value.type == FcTypeString &&
            FcStrCmpIgnoreCase(value.u.s, AsFcText(family)) != 0 && IsFamilyInstalled(AsText(value.u.s))) {
            return true;
        }
    }
    return false;
}

void TakeMatch(FcPattern* query, void* target, void (*take)(void*, const char*, int)) {
    FcResult result = FcResultNoMatch;
    const Pattern match(FcFontMatch(nullptr, query, &result));
    if (match) {
        take(target, TextOf(match.get(), FC_FILE), NumberOf(match.get(), FC_INDEX, 0));
    }
}

} // namespace

bool ZAMFontsAreInstalled() {
    bool any = false;
    VisitFonts([&any](const FcPattern*) { any = true; });
    return any;
}

void ZAMFontsListFaces(void* target, void (*take)(void*, const ZAMFontsFace*)) {
    VisitFonts([=](const FcPattern* pattern) {
        if (IsListed(pattern)) {
            const ZAMFontsFace face = FaceOf(pattern);
            take(target, &face);
        }
    });
}

void ZAMFontsMatchFace(const char* const* families, std::size_t count, void* target,
                       void (*take)(void*, const char*, int)) {
    const Pattern query = MakeQuery(families, count);
    if (query && ZAMFontsAreInstalled()) {
        TakeMatch(query.get(), target, take);
    }
}

void ZAMFontsMatchStandIn(const char* family, void* target, void (*take)(void*, const char*, int)) {
    const Pattern query = MakeQuery(&family, 1);
    if (query && !IsFamilyInstalled(family) && HasStandIn(query.get(), family)) {
        TakeMatch(query.get(), target, take);
    }
}
