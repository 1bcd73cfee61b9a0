// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressCssToken.h"

#include <list>
#include <string>
#include <string_view>

/// Reads CSS text token by token, comments left out. No text is in error: what is malformed becomes a bad token or a
/// character for itself, and the last open string or comment ends with the text.
class ZAMPrepressCssTokenizer {
public:
    /// Texts that an escape changes are put into `texts`; tokens point there or into `source`.
    ZAMPrepressCssTokenizer(std::string_view source, std::list<std::string>& texts) : _Rest(source), _Texts(&texts) {
        Next();
    }

    /// The token that Next will return.
    [[nodiscard]] const ZAMPrepressCssToken& Peek() const { return _Token; }
    /// Goes on to the next token and returns the one that was next. At the end it stays.
    ZAMPrepressCssToken Next();
    void SkipBlanks();
    /// Whether the token that is next is this character; it is eaten if so.
    bool Eat(char character);
    /// Eats all up to the closing bracket of a function or bracket that was just eaten, and that bracket, too. Returns
    /// what lies before the closing bracket.
    std::string_view TakeBlock(char closing);
    /// Eats what belongs together: one token, or a whole block in brackets.
    void SkipComponent();

private:
    [[nodiscard]] char At(std::size_t index) const { return index < _Rest.size() ? _Rest[index] : '\0'; }
    [[nodiscard]] bool IsEscape(std::size_t index) const;
    [[nodiscard]] bool StartsName(std::size_t index) const;
    [[nodiscard]] bool StartsNumber() const;
    void SkipComments();
    void ReadToken(ZAMPrepressCssToken& token);
    std::string_view ReadName();
    std::string_view Keep(std::string_view source);
    void ReadHash(ZAMPrepressCssToken& token);
    void ReadIdent(ZAMPrepressCssToken& token);
    void ReadUrl(ZAMPrepressCssToken& token);
    void ReadString(ZAMPrepressCssToken& token);
    void ReadNumber(ZAMPrepressCssToken& token);
    void ReadDelim(ZAMPrepressCssToken& token);

    std::string_view _Rest;
    std::list<std::string>* _Texts;
    ZAMPrepressCssToken _Token;
};
