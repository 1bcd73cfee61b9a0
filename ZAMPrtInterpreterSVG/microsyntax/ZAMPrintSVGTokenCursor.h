// SPDX-License-Identifier: MIT
#pragma once

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
    };

    explicit ZAMPrintSVGTokenCursor(std::string_view text) : _Rest(text) {}

    /// True when the text is used up; blanks that are left count as a last, empty token.
    [[nodiscard]] bool AtEnd() const { return _Rest.empty(); }

    /// Eats separators, a token and the one separator behind it. The token is empty at the end of the text.
    Token Next() {
        while (!_Rest.empty() && IsSeparator(_Rest.front())) {
            _Rest.remove_prefix(1);
        }
        const std::size_t length = Length();
        const Token token{_Rest.substr(0, length), length < _Rest.size()};
        _Rest.remove_prefix(length);
        if (!_Rest.empty() && IsSeparator(_Rest.front())) {
            _Rest.remove_prefix(1);
        }
        return token;
    }

private:
    static bool IsSeparator(char c) { return c == ' ' || c == ','; }

    [[nodiscard]] std::size_t Length() const {
        for (std::size_t i = 0; i < _Rest.size(); ++i) {
            const char c = _Rest[i];
            if (IsSeparator(c)) {
                return i;
            }
            if constexpr (minus == ZAMPrintSVGMinus::StartsToken) {
                if (c == '-' && i > 0 && _Rest[i - 1] != 'e') {
                    return i;
                }
            }
        }
        return _Rest.size();
    }

    std::string_view _Rest;
};
