// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

// A list of words and numbers is walked with a sink:
//   Word(w)    a word where it stands in the text: a path's letter, a function's name, a bracket
//   Number(n)  a number where it stands in the text
//   Insert(t)  words and numbers that are not in the text
//   Space()    here a blank is good to look at, but nothing needs it
//   Reject()   the interpreter does not read as it should what stands here, or what follows is in error

/// What stands between the numbers of a list.
struct ZAMPrepressListSyntax {
    std::string_view separators; ///< that the interpreter knows
    bool minusSeparates;         ///< a minus may follow a number directly
};

/// Finds out whether the interpreter reads a text as it is meant.
class ZAMPrepressPlainnessSink {
public:
    ZAMPrepressPlainnessSink(std::string_view text, const ZAMPrepressListSyntax& syntax)
        : _Rest(text), _Syntax(syntax) {}

    void Word(std::string_view word) {
        TakeGap(word);
        _BehindNumber = false;
    }
    void Number(std::string_view number) {
        const bool gap = TakeGap(number);
        const bool separated = gap || (_Syntax.minusSeparates && number.front() == '-');
        _Plain = _Plain && (separated || !_BehindNumber) && number.front() != '+' &&
                 number.find('E') == std::string_view::npos;
        _BehindNumber = true;
    }
    void Insert(std::string_view /*text*/) { _Plain = false; }
    void Space() {}
    void Reject() { _Plain = false; }

    [[nodiscard]] bool IsPlain() const { return _Plain && AreSeparators(_Rest); }

private:
    // Eats the text up to the part's end; whether something stands before the part.
    bool TakeGap(std::string_view part) {
        const auto length = static_cast<std::size_t>(part.data() - _Rest.data());
        _Plain = _Plain && AreSeparators(_Rest.substr(0, length));
        _Rest.remove_prefix(length + part.size());
        return length > 0;
    }
    [[nodiscard]] bool AreSeparators(std::string_view gap) const {
        return std::ranges::all_of(gap,
                                   [this](char c) { return _Syntax.separators.find(c) != std::string_view::npos; });
    }

    std::string_view _Rest;
    ZAMPrepressListSyntax _Syntax;
    bool _Plain = true;
    bool _BehindNumber = false;
};

/// Writes a text anew, as the interpreter reads it.
class ZAMPrepressPlainTextSink {
public:
    explicit ZAMPrepressPlainTextSink(std::size_t expectedSize) { _Text.reserve(expectedSize); }

    void Word(std::string_view word) {
        _Text += word;
        _BehindNumber = false;
    }
    void Number(std::string_view number) {
        if (_BehindNumber) {
            _Text += ' ';
        }
        if (number.front() == '+') {
            number.remove_prefix(1);
        }
        _Text += number;
        if (const std::size_t exponent = number.find('E'); exponent != std::string_view::npos) {
            _Text[_Text.size() - number.size() + exponent] = 'e';
        }
        _BehindNumber = true;
    }
    void Insert(std::string_view text) { Word(text); }
    void Space() { _Text += _Text.empty() ? "" : " "; }
    void Reject() {}

    [[nodiscard]] std::string TakeText() { return std::move(_Text); }

private:
    std::string _Text;
    bool _BehindNumber = false;
};
