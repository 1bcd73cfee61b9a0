// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMTextStyle.h"
#include "prepress/document/ZAMPrepressElement.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// How the interpreter is told of a font. It knows families, weights and the names of single faces, but neither italics
/// nor widths: those are had by naming the face.
struct ZAMPrepressFont {
    static constexpr std::string_view kNormalWeight = "400";

    std::string family;      ///< the font-family attribute
    std::string_view weight; ///< the font-weight attribute
    bool leans = false;      ///< the font has no slanted face: uprights are to be leaned
};

/// Heights over the baseline, but for the descent, which is below.
struct ZAMPrepressFontMetrics {
    double ascent = 0.0;
    double descent = 0.0;
    double xHeight = 0.0;
};

/// Chooses fonts as CSS does (CSS Fonts 3, 5.2): the first family that is installed, and of it the face whose width,
/// slant and weight come nearest. Reading the list of fonts takes longer than most documents do: it is read when it is
/// needed first, which it is for faces that families do not lead to, and for measuring.
class ZAMPrepressFonts {
public:
    /// By the element's font-family, font-weight, font-style and font-stretch. It lives as long as this object.
    const ZAMPrepressFont& Find(const ZAMPrepressElement& element);
    /// Font and weight as the text will be laid out.
    [[nodiscard]] const ZAMTextStyle& GetStyle(const ZAMPrepressFont& font) { return GetLooks(font).style; }
    /// Of the font at a size of 1.
    [[nodiscard]] const ZAMPrepressFontMetrics& GetMetrics(const ZAMPrepressFont& font);

private:
    using Faces = std::vector<const ZAMFont*>;
    struct Wish {
        std::string_view families;
        int weight;
        int slant; ///< as in ZAMFont::Face
        int stretch;
    };

    struct Looks {
        ZAMTextStyle style;
        std::optional<ZAMPrepressFontMetrics> metrics;
    };

    void ReadList();
    [[nodiscard]] Looks& GetLooks(const ZAMPrepressFont& font);
    [[nodiscard]] ZAMPrepressFont Choose(const Wish& wish);
    void ChooseFace(const Wish& wish, ZAMPrepressFont& font);
    [[nodiscard]] const ZAMFont* FindFamily(std::string_view families);
    [[nodiscard]] const Faces* FacesOf(const ZAMFont& font) const;
    [[nodiscard]] std::string_view NameOf(const ZAMFont& face) const;

    std::unordered_map<std::string, ZAMPrepressFont> _Chosen;
    std::unordered_map<const ZAMPrepressFont*, Looks> _Looks;
    std::unordered_map<std::string, const ZAMFont*> _ByName; ///< what each name, folded, means to the interpreter
    std::unordered_map<std::string, Faces> _ByFamily;        ///< folded
    std::unordered_map<std::string, const ZAMFont*> _ByFile; ///< the file's own faces, not what stands in for others
    bool _IsRead = false;
};
