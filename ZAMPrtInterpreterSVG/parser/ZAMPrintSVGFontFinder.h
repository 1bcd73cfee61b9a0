// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

class ZAMFont;

/// Finds the fonts that a document names. The installed fonts are gone through once, so that neither ten thousand texts
/// nor a list of ten thousand names costs more than a look at each name. No font library is opened before the first
/// question.
class ZAMPrintSVGFontFinder {
public:
    /// The first family of a list (SVG 1.1, 10.10) for which there is a font, or null.
    ZAMFont* FindInList(std::string_view families);

    /// Eats the first family of a list and gives its name without quotes and the blanks around it.
    static std::string TakeFamily(std::string_view& families);
    /// Whether the family is a kind of font, which stands for some font in any case where there are fonts at all.
    static bool IsGeneric(std::string_view family);

private:
    ZAMFont* Find(std::string_view family);
    void ListInstalled();

    std::unordered_map<std::string, ZAMFont*> _Installed; ///< by folded name
    bool _IsListed = false;
};
