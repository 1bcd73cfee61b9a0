// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMTextCompare.h"

#include <cstdint>
#include <string_view>

enum class ZAMPrepressCssTokenType : std::uint8_t {
    End,
    Blank,
    Ident,
    Function, ///< its parenthesis is part of the token
    AtKeyword,
    Hash,
    String,
    BadString,
    Url,
    BadUrl,
    Number,
    Percentage,
    Dimension,
    HtmlComment, ///< one of the two marks that hide a sheet from very old programs
    Delim,       ///< any other character, brackets and separators among them
};

/// A token of CSS text (CSS Syntax 3, section 4).
struct ZAMPrepressCssToken {
    ZAMPrepressCssTokenType type = ZAMPrepressCssTokenType::End;
    bool isIdentifier = false; ///< of a hash: it can name an element
    double number = 0.0;       ///< of a number, percentage or dimension
    std::string_view text;     ///< name, string, address, unit or character, without escapes
    std::string_view source;   ///< the token as written

    [[nodiscard]] bool Is(char character) const {
        return type == ZAMPrepressCssTokenType::Delim && text.front() == character;
    }
    [[nodiscard]] bool IsIdent(std::string_view keyword) const {
        return type == ZAMPrepressCssTokenType::Ident && ZAMTextMatches(text, keyword);
    }
    [[nodiscard]] bool IsFunction(std::string_view name) const {
        return type == ZAMPrepressCssTokenType::Function && ZAMTextMatches(text, name);
    }
};
