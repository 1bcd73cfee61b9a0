// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightFonts.h"

#include "framework/base/ZAMTextCompare.h"
#include "framework/visualisation/ZAMFont.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGFontFinder.h"

#include <map>

namespace {

// The installed fonts by the files that they are in: a font that stands in for another bears the other's name.
class FacesByFile {
public:
    FacesByFile() {
        for (int i = 1; i <= ZAMFont::sGetFontCount(); ++i) {
            if (const ZAMFont* const font = ZAMFont::sGetFont(ZAMFont::sGetFontName(i))) {
                _Faces.try_emplace({font->GetFace().file, font->GetFace().faceIndex}, &font->GetFace());
            }
        }
    }

    /// The face itself, which is listed before those that it stands in for.
    [[nodiscard]] const ZAMFont::Face& FindReal(const ZAMFont& font) const {
        const auto found = _Faces.find({font.GetFace().file, font.GetFace().faceIndex});
        return found == _Faces.end() ? font.GetFace() : *found->second;
    }

private:
    std::map<std::pair<std::string, int>, const ZAMFont::Face*> _Faces;
};

bool IsNameOf(const ZAMFont::Face& face, std::string_view name) {
    return ZAMTextMatches(face.family, name) || ZAMTextMatches(face.fullName, name) ||
           ZAMTextMatches(face.postScriptName, name) || ZAMTextMatches(face.name, name);
}

} // namespace

void ZAMPrintSVGPreflightFonts::Note(const ZAMLightXmlElementItf& element, std::string_view families) {
    if (!families.empty() && !ZAMTextMatches(families, "inherit") && _Known.emplace(families).second) {
        ZAMLightXmlElement place;
        place.Assign(element);
        _Asked.emplace_back(std::move(place), families);
    }
}

void ZAMPrintSVGPreflightFonts::Check() {
    if (!_HasText || _Asked.empty()) {
        return;
    }
    const FacesByFile faces;
    ZAMPrintSVGFontFinder finder;
    for (const auto& [element, families] : _Asked) {
        std::string_view rest = families;
        const std::string first = ZAMPrintSVGFontFinder::TakeFamily(rest);
        const ZAMFont* const font = finder.FindInList(families);
        if (font == nullptr) {
            _Report.Add(ZAMPrintSVGFault::FontMissing, element, families);
            continue;
        }
        const ZAMFont::Face& face = faces.FindReal(*font);
        if (!ZAMPrintSVGFontFinder::IsGeneric(first) && !IsNameOf(face, first)) {
            _Report.Add(ZAMPrintSVGFault::FontReplaced, element, first, face.family);
        }
    }
}
