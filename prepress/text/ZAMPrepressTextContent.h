// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressElement.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

/// A text element or an element in one, and the characters that it and its descendants have.
struct ZAMPrepressTextSpan {
    const ZAMPrepressElement* element = nullptr;
    const ZAMPrepressTextSpan* parent = nullptr; ///< null for the text element itself
    std::size_t index = 0;                       ///< among the spans of the text
    std::size_t firstCharacter = 0;
    std::size_t endCharacter = 0;

    [[nodiscard]] bool Is(std::string_view name) const { return element->Is(name); }
};

/// Characters that follow one another in one element.
struct ZAMPrepressTextPiece {
    const ZAMPrepressTextSpan* span = nullptr;
    std::size_t firstCharacter = 0;
    std::size_t endCharacter = 0;
};

/// The characters of a text element with white space as it is shown (SVG 1.1, 10.15, and CSS Text 3, 4.1): a line break
/// or a tab is a blank, and of several blanks the first one is left unless they are to be preserved.
class ZAMPrepressTextContent {
public:
    /// `preserves` is what xml:space says around the element.
    ZAMPrepressTextContent(const ZAMPrepressElement& text, bool preserves);
    ZAMPrepressTextContent(const ZAMPrepressTextContent&) = delete;
    ZAMPrepressTextContent& operator=(const ZAMPrepressTextContent&) = delete;

    [[nodiscard]] std::size_t GetSize() const { return _Offsets.size(); }
    /// The text element first; each one before those within it.
    [[nodiscard]] const std::deque<ZAMPrepressTextSpan>& GetSpans() const { return _Spans; }
    /// In the order of the text; none is empty.
    [[nodiscard]] const std::vector<ZAMPrepressTextPiece>& GetPieces() const { return _Pieces; }
    /// From one character to before another one, as UTF-8.
    [[nodiscard]] std::string_view GetText(std::size_t first, std::size_t end) const {
        return std::string_view(_Text).substr(OffsetOf(first), OffsetOf(end) - OffsetOf(first));
    }
    [[nodiscard]] char GetFirstByte(std::size_t character) const { return _Text[_Offsets[character]]; }

    /// Whether xml:space and white-space of the element preserve blanks, when they do or do not around it.
    [[nodiscard]] static bool Preserves(const ZAMPrepressElement& element, bool preservesAround);

private:
    void AddElement(const ZAMPrepressElement& element, const ZAMPrepressTextSpan* parent, bool preserves);
    void AddText(std::string_view text, const ZAMPrepressTextSpan& span, bool preserves);
    void DropLastBlank();
    [[nodiscard]] std::size_t OffsetOf(std::size_t character) const {
        return character < _Offsets.size() ? _Offsets[character] : _Text.size();
    }

    std::string _Text;
    std::vector<std::uint32_t> _Offsets; // of the characters' first bytes
    std::deque<ZAMPrepressTextSpan> _Spans;
    std::vector<ZAMPrepressTextPiece> _Pieces;
    bool _SwallowsBlank = true; // the next blank goes when it need not be preserved
};
