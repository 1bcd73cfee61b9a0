// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Reads texts of letters and numbers as SVG 1.1 means them (8.3.9), and says whether the interpreter, whose rules are
/// stricter, tells the numbers apart.
class ZAMPrintSVGNumberText {
public:
    /// Path data has flags, and a minus sign begins a number; elsewhere only blanks and commas do.
    enum class Kind : std::uint8_t { Path, Plain };

    struct Token {
        enum Type : std::uint8_t { End, Letter, Number };
        Type kind = End;
        char letter = '\0'; ///< a letter, or any other character that begins no number
        double value = 0.0;
    };

    /// The text must outlive this object.
    ZAMPrintSVGNumberText(std::string_view text, Kind kind) : _Rest(text), _Kind(kind) {}

    Token Next();
    /// Two numbers that were read stood so close together that the interpreter makes others of them.
    [[nodiscard]] bool AreCrowded() const { return _AreCrowded; }

    /// The same of a whole text.
    static bool HasCrowdedNumbers(std::string_view text, Kind kind);

private:
    [[nodiscard]] std::size_t NumberLength() const;
    [[nodiscard]] bool IsFlagNext() const;

    std::string_view _Rest;
    Kind _Kind;
    char _Command = '\0';
    std::size_t _Index = 0;       // of the next number behind the command
    bool _IsBehindNumber = false; // nothing separates it from what comes next
    bool _AreCrowded = false;
};
