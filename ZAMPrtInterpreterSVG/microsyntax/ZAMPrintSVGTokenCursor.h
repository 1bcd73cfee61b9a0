// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMNumberReading.h"

#include <cstddef>
#include <string_view>

/// Whether a minus sign starts a new token, as it does in path data, or is part of the one it stands in.
enum class ZAMPrintSVGMinus { IsPart, StartsToken };

/// Eats a list of tokens from the front. Blanks and commas separate them; tabs and line breaks do not. Where a minus
/// starts a token, one behind a small "e" is part of an exponent and does not ("1e-5", but "1E" and "-5").
template <ZAMPrintSVGMinus minus> class ZAMPrintSVGTokenCursor {
public:
    struct Token {
        std::string_view text;
        bool separated; ///< something separates it from what follows: it is not the text's very end
        bool isPlain;   ///< it is a plain decimal number, as nearly all are, and that is `number`
        double number;
    };

    explicit ZAMPrintSVGTokenCursor(std::string_view text) : _Rest(text) {}

    /// True when the text is used up; blanks that are left count as a last, empty token.
    [[nodiscard]] bool AtEnd() const { return _Rest.empty(); }

    /// Eats separators, a token and the one separator behind it. The token is empty at the end of the text.
    Token Next() {
        while (!_Rest.empty() && IsSeparator(_Rest.front())) {
            _Rest.remove_prefix(1);
        }
        Token token{_Rest, false, false, 0.0};
        token.isPlain = ZAMTakePlainDouble(_Rest, token.number) && IsTokenEnd();
        const std::size_t length = token.isPlain ? token.text.size() - _Rest.size() : Length(token.text);
        _Rest = token.text.substr(length);
        token.text.remove_suffix(_Rest.size());
        token.separated = !_Rest.empty();
        if (token.separated && IsSeparator(_Rest.front())) {
            _Rest.remove_prefix(1);
        }
        return token;
    }

private:
    static bool IsSeparator(char c) { return c == ' ' || c == ','; }

    // Whether a number that has been eaten is all of its token.
    [[nodiscard]] bool IsTokenEnd() const {
        return _Rest.empty() || IsSeparator(_Rest.front()) ||
               (minus == ZAMPrintSVGMinus::StartsToken && _Rest.front() == '-');
    }

    static std::size_t Length(std::string_view text) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const char c = text[i];
            if (IsSeparator(c)) {
                return i;
            }
            if constexpr (minus == ZAMPrintSVGMinus::StartsToken) {
                if (c == '-' && i > 0 && text[i - 1] != 'e') {
                    return i;
                }
            }
        }
        return text.size();
    }

    std::string_view _Rest;
};
