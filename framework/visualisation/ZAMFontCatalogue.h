// SPDX-License-Identifier: MIT
#pragma once

#include "framework/visualisation/ZAMFont.h"

#include <array>
#include <deque>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The list of fonts, read once; what ZAMFont and ZAMOutlineFont answer from.
class ZAMFontCatalogue {
public:
    static ZAMFontCatalogue& sGet();

    ZAMFontCatalogue();

    [[nodiscard]] ZAMFont* Find(std::string_view name);
    /// Font `number`, from 1; null outside the list.
    [[nodiscard]] const ZAMFont* At(int number) const;
    [[nodiscard]] int Count() const { return static_cast<int>(_Fonts.size()); }

private:
    static constexpr std::size_t kSubstituteCount = 5;

    struct Substitute {
        std::once_flag sought;
        ZAMFont* font = nullptr;
    };

    void AddFaces();
    void AddStandIns();
    void Add(ZAMFont::Face face);
    [[nodiscard]] ZAMFont* FindFile(std::string_view name);
    [[nodiscard]] ZAMFont* FindFace(const std::string& file, int faceIndex);
    [[nodiscard]] ZAMFont* FindSubstitute(std::string_view name);

    std::deque<ZAMFont> _Fonts; ///< a deque: the objects never move
    std::unordered_map<std::string, ZAMFont*> _ByName;
    std::unordered_map<std::string, ZAMFont*> _ByFile; ///< base names in lower case
    std::array<Substitute, kSubstituteCount> _Substitutes;
};
