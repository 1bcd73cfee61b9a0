// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMFontCatalogue.h"

#include "framework/visualisation/ZAMFontsModule.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace {

// File names that stand for a kind of font, and the families to take, the best first.
struct SubstituteRow {
    std::string_view file;
    std::array<const char*, 3> families;
};
constexpr std::array<SubstituteRow, 5> kSubstitutes{
    {{"times.ttf", {"Times New Roman", "Times", "serif"}},
     {"arial.ttf", {"Arial", "Helvetica", "sans-serif"}},
     {"cour.ttf", {"Courier New", "Courier", "monospace"}},
     {"mtcorsva.ttf", {"Monotype Corsiva", "Zapf Chancery", "cursive"}},
     {"alpha geometrique", {"Alpha Geometrique", "Impact", "fantasy"}}}};

// Families that documents name and that configurations have metric-compatible stand-ins for.
constexpr const char* kFamiliesWithStandIns[] = {"Arial",
                                                 "Arial Narrow",
                                                 "Avant Garde",
                                                 "Bookman",
                                                 "Bookman Old Style",
                                                 "Calibri",
                                                 "Cambria",
                                                 "Century Schoolbook",
                                                 "Courier",
                                                 "Courier New",
                                                 "Georgia",
                                                 "Helvetica",
                                                 "Helvetica Condensed",
                                                 "Helvetica Narrow",
                                                 "ITC Avant Garde Gothic",
                                                 "ITC Bookman",
                                                 "ITC Zapf Chancery",
                                                 "New Century Schoolbook",
                                                 "Palatino",
                                                 "Palatino Linotype",
                                                 "Symbol",
                                                 "Times",
                                                 "Times New Roman",
                                                 "Zapf Chancery",
                                                 "Zapf Dingbats"};

std::string FoldedBaseName(std::string_view path) {
    const std::size_t slash = path.find_last_of("/\\");
    std::string name(slash == std::string_view::npos ? path : path.substr(slash + 1));
    std::ranges::transform(name, name.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return name;
}

// A face as listed, with the style name that tells faces of one name apart.
struct ListedFace {
    ZAMFont::Face face;
    std::string style;
    std::string foldedFamily;
};

void TakeFace(void* target, const ZAMFontsFace* listed) {
    const std::string family = listed->family;
    const std::string style = listed->style;
    const std::string fullName = *listed->fullName != '\0' ? listed->fullName : family + ' ' + style;
    ZAMFont::Face face{.name = fullName,
                       .family = family,
                       .fullName = fullName,
                       .postScriptName = listed->postScriptName,
                       .file = listed->file,
                       .faceIndex = listed->faceIndex,
                       .typeCode = listed->isPostScript ? ZAMFont::kPostScript : ZAMFont::kTrueType,
                       .weight = listed->weight,
                       .slant = listed->slant,
                       .stretch = listed->stretch};
    static_cast<std::vector<ListedFace>*>(target)->push_back({std::move(face), style, FoldedBaseName(family)});
}

// By family; upright before slanted, then the weight and the width nearest the normal ones. The rest fixes the order.
auto RankOf(const ListedFace& listed) {
    const ZAMFont::Face& face = listed.face;
    return std::make_tuple(std::string_view(listed.foldedFamily), face.slant != 0, std::abs(face.weight - 400),
                           std::abs(face.stretch - 100), std::string_view(face.name), std::string_view(face.file),
                           face.faceIndex);
}

using FileAndIndex = std::pair<std::string, int>;

void TakeMatch(void* target, const char* file, int faceIndex) {
    *static_cast<FileAndIndex*>(target) = {file, faceIndex};
}

} // namespace

ZAMFontCatalogue& ZAMFontCatalogue::sGet() {
    static auto* const catalogue = new ZAMFontCatalogue;
    return *catalogue;
}

ZAMFontCatalogue::ZAMFontCatalogue() {
    static_assert(kSubstitutes.size() == kSubstituteCount);
    if (ZAMOpenFontsModule() != nullptr) {
        AddFaces();
        AddStandIns();
    }
}

void ZAMFontCatalogue::AddFaces() {
    std::vector<ListedFace> listed;
    ZAMOpenFontsModule()->listFaces(&listed, TakeFace);
    std::ranges::sort(listed, {}, RankOf);
    for (ListedFace& entry : listed) {
        // Two faces of one name are told apart by their style; the same face in a second file is no second entry.
        if (_ByName.contains(entry.face.name)) {
            entry.face.name = entry.face.family + ", " + entry.style;
        }
        if (!_ByName.contains(entry.face.name)) {
            Add(std::move(entry.face));
        }
    }
}

void ZAMFontCatalogue::AddStandIns() {
    for (const char* family : kFamiliesWithStandIns) {
        FileAndIndex match;
        ZAMOpenFontsModule()->matchStandIn(family, &match, TakeMatch);
        const ZAMFont* standIn = match.first.empty() ? nullptr : FindFace(match.first, match.second);
        if (standIn != nullptr && !_ByName.contains(family)) {
            ZAMFont::Face face = standIn->GetFace();
            face.name = face.family = face.fullName = face.postScriptName = family;
            Add(std::move(face));
        }
    }
}

void ZAMFontCatalogue::Add(ZAMFont::Face face) {
    ZAMFont& font = _Fonts.emplace_back(Count() + 1, std::move(face));
    _ByName.emplace(font.GetName(), &font);
    _ByFile.emplace(FoldedBaseName(font.GetFace().file), &font);
}

ZAMFont* ZAMFontCatalogue::Find(std::string_view name) {
    const auto named = _ByName.find(std::string(name));
    return named != _ByName.end() ? named->second : FindFile(name);
}

const ZAMFont* ZAMFontCatalogue::At(int number) const {
    return number >= 1 && number <= Count() ? &_Fonts[static_cast<std::size_t>(number - 1)] : nullptr;
}

ZAMFont* ZAMFontCatalogue::FindFile(std::string_view name) {
    const std::string baseName = FoldedBaseName(name);
    const auto inFile = _ByFile.find(baseName);
    return inFile != _ByFile.end() ? inFile->second : FindSubstitute(baseName);
}

ZAMFont* ZAMFontCatalogue::FindFace(const std::string& file, int faceIndex) {
    const auto isFace = [&](const ZAMFont& font) {
        return font.GetFace().file == file && font.GetFace().faceIndex == faceIndex;
    };
    const auto found = std::ranges::find_if(_Fonts, isFace);
    if (found != _Fonts.end()) {
        return &*found;
    }
    const auto sameFile = _ByFile.find(FoldedBaseName(file));
    return sameFile == _ByFile.end() ? nullptr : sameFile->second;
}

ZAMFont* ZAMFontCatalogue::FindSubstitute(std::string_view name) {
    const auto row = std::ranges::find(kSubstitutes, name, &SubstituteRow::file);
    if (row == kSubstitutes.end() || _Fonts.empty()) {
        return nullptr;
    }
    Substitute& substitute = _Substitutes[static_cast<std::size_t>(row - kSubstitutes.begin())];
    std::call_once(substitute.sought, [&] {
        FileAndIndex match;
        ZAMOpenFontsModule()->matchFace(row->families.data(), row->families.size(), &match, TakeMatch);
        ZAMFont* const font = FindFace(match.first, match.second);
        substitute.font = font == nullptr ? &_Fonts.front() : font;
    });
    return substitute.font;
}
