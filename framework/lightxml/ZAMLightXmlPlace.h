// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

/// A place in a document, which moves on from its beginning. It takes a byte for a character, and so knows its place
/// only as far as the document is ASCII with line feeds: that is enough for most, and several times as quick as asking
/// a parser that knows every encoding.
class ZAMLightXmlPlace {
public:
    explicit ZAMLightXmlPlace(std::span<const char> document) : _Document(document) {}

    /// Moves on to the byte with number `offset`, which is not before the one it is at. False, also from then on, when
    /// something on the way is not ASCII text or the document ends.
    bool MoveTo(std::size_t offset) {
        _IsKnown = _IsKnown && offset <= _Document.size();
        while (_IsKnown && _Offset < offset) {
            if (offset - _Offset >= sizeof(Word) && IsPrintable(_Document.data() + _Offset)) {
                _Offset += sizeof(Word);
            } else {
                Step();
            }
        }
        return _IsKnown;
    }

    /// From 1.
    [[nodiscard]] std::uint32_t GetLine() const { return _Line; }
    /// From 1, in characters.
    [[nodiscard]] std::uint32_t GetColumn() const { return static_cast<std::uint32_t>(_Offset - _LineBegin) + 1; }

private:
    using Word = std::uint64_t;

    // Whether so many bytes as a word has are all from 0x20 to 0x7F.
    static bool IsPrintable(const char* bytes) {
        constexpr Word kOnes = 0x0101010101010101U;
        Word word = 0;
        std::memcpy(&word, bytes, sizeof word);
        return (((word - kOnes * 0x20U) | word) & (kOnes * 0x80U)) == 0;
    }

    void Step() {
        const auto c = static_cast<unsigned char>(_Document[_Offset++]);
        if (c == '\n') {
            ++_Line;
            _LineBegin = _Offset;
        } else {
            _IsKnown = (c >= ' ' && c < 0x80) || c == '\t';
        }
    }

    std::span<const char> _Document;
    std::size_t _Offset = 0;
    std::size_t _LineBegin = 0;
    std::uint32_t _Line = 1;
    bool _IsKnown = true;
};
