// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressFonts.h"

#include "framework/base/ZAMTextCompare.h"
#include "framework/visualisation/ZAMFont.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/text/ZAMPrepressFamilies.h"
#include "prepress/text/ZAMPrepressTextMeasure.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <tuple>

namespace {

struct Keyword {
    std::string_view name;
    int code;
};
constexpr Keyword kSlants[] = {{"italic", 1}, {"oblique", 2}};
constexpr Keyword kStretches[] = {{"ultra-condensed", 50}, {"extra-condensed", 63}, {"condensed", 75},
                                  {"semi-condensed", 87},  {"semi-expanded", 113},  {"expanded", 125},
                                  {"extra-expanded", 150}, {"ultra-expanded", 200}};
constexpr int kNormalStretch = 100;
constexpr int kNormalWeight = 400;
constexpr int kBoldWeight = 700;
constexpr int kLeastBold = 600;

template <std::size_t size> int CodeOf(const Keyword (&keywords)[size], std::string_view name, int otherwise) {
    const auto* const found = std::ranges::find(keywords, name, &Keyword::name);
    return found == std::end(keywords) ? otherwise : found->code;
}

// The weights that a text can ask for, and the codes of ZAMTextStyle.
struct WeightRow {
    std::string_view attribute;
    int code;
};
constexpr WeightRow kOwnWeight{ZAMPrepressFont::kNormalWeight, 25};
constexpr WeightRow kMadeBold{"700", 26};

int SlantDistance(int wanted, int slant) {
    return wanted == slant ? 0 : (wanted != 0 && slant != 0 ? 1 : 2);
}

// CSS looks on one side first: a light text rather gets lighter, a bold one bolder.
int WeightDistance(int wanted, int weight) {
    constexpr int kOtherSide = 1000;
    constexpr int kMedium = 500;
    const int distance = std::abs(weight - wanted);
    if (wanted >= kNormalWeight && wanted <= kMedium && weight >= wanted) {
        return weight <= kMedium ? distance : 2 * kOtherSide + distance;
    }
    return (wanted > kMedium) == (weight > wanted) || distance == 0 ? distance : kOtherSide + distance;
}

std::string FileKey(const ZAMFont& font) {
    return font.GetFace().file + '\n' + std::to_string(font.GetFace().faceIndex);
}

} // namespace

const ZAMPrepressFont& ZAMPrepressFonts::Find(const ZAMPrepressElement& element) {
    const Wish wish{element.Get("font-family"),
                    static_cast<int>(std::clamp(ZAMPrepressNumberOr(element, "font-weight", kNormalWeight), 1.0, 1e3)),
                    CodeOf(kSlants, element.Get("font-style"), 0),
                    CodeOf(kStretches, element.Get("font-stretch"), kNormalStretch)};
    std::string key(wish.families);
    for (const int number : {wish.weight / 100, wish.weight % 100, wish.slant, wish.stretch}) {
        key += static_cast<char>(number);
    }
    const auto [known, isNew] = _Chosen.try_emplace(std::move(key));
    if (isNew) {
        known->second = Choose(wish);
    }
    return known->second;
}

void ZAMPrepressFonts::ReadList() {
    _IsRead = true;
    for (int i = 1; i <= ZAMFont::sGetFontCount(); ++i) {
        const ZAMFont* const font = ZAMFont::sGetFont(ZAMFont::sGetFontName(i));
        if (font == nullptr || font->GetTypeCode() == ZAMFont::kBuiltIn) {
            continue;
        }
        const ZAMFont::Face& face = font->GetFace();
        for (const ZAMString& name : {face.family, face.fullName, face.postScriptName}) {
            _ByName.emplace(ZAMFoldText(std::string_view(name)), font);
        }
        _ByFile.emplace(FileKey(*font), font);
        _ByFamily[ZAMFoldText(std::string_view(face.family))].push_back(font);
    }
}

ZAMPrepressFonts::Looks& ZAMPrepressFonts::GetLooks(const ZAMPrepressFont& font) {
    const auto [known, isNew] = _Looks.try_emplace(&font);
    if (isNew) {
        known->second.style.font = FindFamily(font.family);
        known->second.style.weight = font.weight == kMadeBold.attribute ? kMadeBold.code : kOwnWeight.code;
    }
    return known->second;
}

const ZAMPrepressFontMetrics& ZAMPrepressFonts::GetMetrics(const ZAMPrepressFont& font) {
    Looks& looks = GetLooks(font);
    if (!looks.metrics) {
        looks.metrics = ZAMPrepressText::Measure(looks.style);
    }
    return *looks.metrics;
}

ZAMPrepressFont ZAMPrepressFonts::Choose(const Wish& wish) {
    const bool isBold = wish.weight >= kLeastBold;
    ZAMPrepressFont chosen{ZAMPrepressFamilies::Complete(wish.families),
                           isBold ? kMadeBold.attribute : kOwnWeight.attribute, wish.slant != 0};
    const bool isPlain = wish.slant == 0 && wish.stretch == kNormalStretch &&
                         (wish.weight == kNormalWeight || wish.weight == kBoldWeight);
    if (!isPlain) {
        ChooseFace(wish, chosen);
    }
    return chosen;
}

void ZAMPrepressFonts::ChooseFace(const Wish& wish, ZAMPrepressFont& font) {
    const ZAMFont* const family = FindFamily(font.family);
    const Faces* const faces = family == nullptr ? nullptr : FacesOf(*family);
    if (faces == nullptr) {
        return;
    }
    const ZAMFont* const best = *std::ranges::min_element(*faces, {}, [&wish](const ZAMFont* each) {
        const ZAMFont::Face& face = each->GetFace();
        return std::make_tuple(std::abs(face.stretch - wish.stretch), SlantDistance(wish.slant, face.slant),
                               WeightDistance(wish.weight, face.weight));
    });
    const std::string_view name = best == family ? std::string_view(font.family) : NameOf(*best);
    if (!name.empty()) {
        const bool isMadeBold = wish.weight >= kLeastBold && best->GetFace().weight < kLeastBold;
        font = {std::string(name), isMadeBold ? kMadeBold.attribute : kOwnWeight.attribute,
                wish.slant != 0 && best->GetFace().slant == 0};
    }
}

// Null when no font can be had at all.
const ZAMFont* ZAMPrepressFonts::FindFamily(std::string_view families) {
    if (!_IsRead) {
        ReadList();
    }
    while (!families.empty()) {
        const std::string name = ZAMPrepressFamilies::TakeName(families);
        if (const char* const file = ZAMPrepressFamilies::FindGeneric(name)) {
            return ZAMFont::sGetFont(file);
        }
        const auto found = _ByName.find(ZAMFoldText(name));
        if (!name.empty() && found != _ByName.end()) {
            return found->second;
        }
    }
    return nullptr;
}

// A family that another stands in for has one face; the other ones are those of the stand-in.
const ZAMPrepressFonts::Faces* ZAMPrepressFonts::FacesOf(const ZAMFont& font) const {
    const auto own = _ByFile.find(FileKey(font));
    const ZAMFont& face = own == _ByFile.end() ? font : *own->second;
    const auto found = _ByFamily.find(ZAMFoldText(std::string_view(face.GetFamily())));
    return found == _ByFamily.end() ? nullptr : &found->second;
}

// A name by which the interpreter finds exactly this face; empty when there is none.
std::string_view ZAMPrepressFonts::NameOf(const ZAMFont& face) const {
    for (const ZAMString& name : {std::cref(face.GetFace().fullName), std::cref(face.GetFace().postScriptName)}) {
        const std::string_view text(name);
        const auto found = _ByName.find(ZAMFoldText(text));
        if (text.find_first_of(",'\"") == std::string_view::npos && found != _ByName.end() && found->second == &face) {
            return text;
        }
    }
    return {};
}
